#pragma once

#include <QString>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// Watches over one run. When its time is up it calls `interrupt` from a thread of its own; when
/// the run has not come to its end soon after, it writes a failed point and ends the process.
class Watchdog
{
public:
    Watchdog(int seconds, std::function<void()> interrupt);
    /// Ends the watch.
    ~Watchdog();
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;

    /// What the run is at, for the message.
    void Tell(const QString &doing);
    QString Doing() const;
    bool Barked() const;

    /// The seconds that a run may take; WORDMERE_SCENARIO_TIMEOUT tells otherwise.
    static int Allowance();
    /// The further seconds between the interruption and the end.
    static constexpr int kGraceSeconds = 15;

private:
    void Watch(int seconds);

    std::function<void()> m_interrupt;
    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_over = false, m_barked = false;
    QString m_doing = QStringLiteral("the script itself");
    std::thread m_thread;
};
