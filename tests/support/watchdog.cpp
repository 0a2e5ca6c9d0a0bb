#include "watchdog.h"

#include <QtGlobal>
#include <chrono>
#include <unistd.h>

Watchdog::Watchdog(int seconds, std::function<void()> interrupt)
    : m_interrupt(std::move(interrupt)), m_thread([this, seconds] { Watch(seconds); })
{
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard lock(m_mutex);
        m_over = true;
    }
    m_wake.notify_all();
    m_thread.join();
}

void Watchdog::Tell(const QString &doing)
{
    const std::lock_guard lock(m_mutex);
    m_doing = doing;
}

QString Watchdog::Doing() const
{
    const std::lock_guard lock(m_mutex);
    return m_doing;
}

bool Watchdog::Barked() const
{
    const std::lock_guard lock(m_mutex);
    return m_barked;
}

int Watchdog::Allowance()
{
    constexpr int usual = 120;
    const int told = qEnvironmentVariableIntValue("WORDMERE_SCENARIO_TIMEOUT");
    return told > 0 ? told : usual;
}

void Watchdog::Watch(int seconds)
{
    std::unique_lock lock(m_mutex);
    if (m_wake.wait_for(lock, std::chrono::seconds(seconds), [this] { return m_over; }))
        return;
    m_barked = true;
    lock.unlock();
    m_interrupt();
    lock.lock();
    if (m_wake.wait_for(lock, std::chrono::seconds(kGraceSeconds), [this] { return m_over; }))
        return;
    // The GUI thread hangs and may hold any lock: no more than one write and out.
    const QByteArray line = "not ok - hangs for good in " + m_doing.toUtf8() + "\n";
    [[maybe_unused]] const auto written =
        ::write(STDOUT_FILENO, line.constData(), static_cast<std::size_t>(line.size()));
    ::_exit(1);
}
