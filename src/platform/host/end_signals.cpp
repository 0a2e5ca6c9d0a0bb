#include "platform/host/host.h"

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

/// Where the signal's handler writes to, and where the event loop reads.
std::array<int, 2> wakeUp{-1, -1};

void TellEventLoop(int signal)
{
    // One that does not end by it is ended by the next.
    std::signal(signal, SIG_DFL);
    const int error = errno;
    const char byte = 0;
    if (write(wakeUp[0], &byte, 1) != 1)
        std::raise(signal);
    errno = error;
}

} // namespace

void host::OnEndSignal(QObject *context, const std::function<void()> &end)
{
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, wakeUp.data()) != 0)
        return;
    auto *notifier = new QSocketNotifier(wakeUp[1], QSocketNotifier::Read, context);
    QObject::connect(notifier, &QSocketNotifier::activated, context, [end] {
        char byte = 0;
        while (read(wakeUp[1], &byte, 1) == 1)
            continue;
        end();
    });
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
        std::signal(signal, TellEventLoop);
}
