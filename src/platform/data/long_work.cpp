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

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kProgressInterval{50};
/// Instructions of SQLite's machine between two looks at the clock: well below a millisecond.
constexpr int kInstructionsPerLook = 2000;

/// The hooks around one piece of work.
class Watch
{
public:
    explicit Watch(Session &session) : m_session(session)
    {
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
        const Clock::time_point now = Clock::now();
        if (now < self->m_next || !ADODB::EngineHooks().progress)
            return 0;
        try {
            ADODB::EngineHooks().progress();
        } catch (...) {
            self->m_hookFailure = std::current_exception();
            return 1;
        }
        self->m_next = Clock::now() + kProgressInterval;
        return 0;
    }

    Session &m_session;
    Clock::time_point m_next = Clock::now() + kProgressInterval;
    std::exception_ptr m_hookFailure;
};

} // namespace

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
    Clock::time_point next = Clock::now() + kProgressInterval;
    while (!isDone()) {
        if (Clock::now() < next) {
            std::this_thread::sleep_for(nap);
            continue;
        }
        if (ADODB::EngineHooks().progress)
            ADODB::EngineHooks().progress();
        next = Clock::now() + kProgressInterval;
    }
}

} // namespace data
