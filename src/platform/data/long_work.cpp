#include "platform/data/long_work.h"

#include "platform/data/adodb.h"

#include <chrono>
#include <exception>
#include <sqlite3.h>
#include <thread>

namespace data
{

namespace
{

/// Instructions of SQLite's machine between two looks at the clock: well below a millisecond.
constexpr int kInstructionsPerLook = 2000;

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kProgressInterval{50};

int openings = 0;

const std::function<void()> &ProgressHook()
{
    const ADODB::Hooks &hooks = ADODB::EngineHooks();
    return openings > 0 && hooks.opening ? hooks.opening : hooks.progress;
}

/// When events are let through next, in whatever way the work goes on.
Clock::time_point &NextProgress()
{
    static Clock::time_point next;
    return next;
}

/// The hooks around one piece of work.
class Watch
{
public:
    explicit Watch(Session &session) : m_session(session)
    {
        NextProgress() = Clock::now() + kProgressInterval;
        m_session.SetInLongWork(true);
        if (ADODB::EngineHooks().busy)
            ADODB::EngineHooks().busy(true);
        sqlite3_progress_handler(session.Database(), kInstructionsPerLook, Look, this);
    }
    ~Watch()
    {
        sqlite3_progress_handler(m_session.Database(), 0, nullptr, nullptr);
        m_session.SetInLongWork(false);
        if (ADODB::EngineHooks().busy)
            ADODB::EngineHooks().busy(false);
    }
    Watch(const Watch &) = delete;
    Watch &operator=(const Watch &) = delete;

    const std::exception_ptr &HookFailure() const { return m_hookFailure; }

private:
    static int Look(void *watch)
    {
        auto *self = static_cast<Watch *>(watch);
        try {
            LetEventsThrough();
        } catch (...) {
            self->m_hookFailure = std::current_exception();
            return 1;
        }
        return 0;
    }

    Session &m_session;
    std::exception_ptr m_hookFailure;
};

} // namespace

Opening::Opening() { ++openings; }
Opening::~Opening() { --openings; }

void LetEventsThrough()
{
    if (Clock::now() < NextProgress() || !ProgressHook())
        return;
    ProgressHook()();
    NextProgress() = Clock::now() + kProgressInterval;
}

void DoLongWork(Session &session, const std::function<void()> &work)
{
    const Watch watch(session);
    try {
        work();
    } catch (...) {
        if (watch.HookFailure())
            std::rethrow_exception(watch.HookFailure());
        throw;
    }
}

void AwaitLongWork(const std::function<bool()> &isDone)
{
    constexpr std::chrono::milliseconds nap{1};
    while (!isDone()) {
        std::this_thread::sleep_for(nap);
        LetEventsThrough();
    }
}

} // namespace data
