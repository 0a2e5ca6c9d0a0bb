// How long a request to speak takes: until it returns, and until its first sound reaches the sink.

#include "platform/agent/speaker.h"
#include "recording_sink.h"

#include <QCoreApplication>
#include <QThread>
#include <algorithm>
#include <cstdio>

namespace
{

struct Measured {
    double returned = 0, sounded = 0; ///< milliseconds
};

void WaitUntil(const std::function<bool()> &condition)
{
    while (!condition()) {
        QCoreApplication::processEvents();
        QThread::usleep(100);
    }
}

Measured Measure(agent::Speaker &speaker, int request, const QString &text)
{
    recording = {};
    recording.clock.start();
    speaker.Say(request, text);
    Measured measured;
    measured.returned = static_cast<double>(recording.clock.nsecsElapsed()) / 1e6;
    WaitUntil([] { return recording.firstSound >= 0; });
    measured.sounded = static_cast<double>(recording.firstSound);
    speaker.Stop();
    return measured;
}

void Report(const char *what, agent::Speaker &speaker, const QString &text)
{
    constexpr int runs = 51;
    std::vector<double> returned, sounded;
    for (int run = 1; run <= runs; ++run) {
        const Measured measured = Measure(speaker, run, text);
        returned.push_back(measured.returned);
        sounded.push_back(measured.sounded);
    }
    std::ranges::sort(returned);
    std::ranges::sort(sounded);
    std::printf("%-12s returns p50 %.3f ms, worst %.3f ms (target 5); first sound p50 %.0f ms, worst %.0f ms "
                "(target 100)\n",
                what, returned[runs / 2], returned.back(), sounded[runs / 2], sounded.back());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const RecordSounds sounds;
    agent::Speaker speaker({QStringLiteral("en-us"), 50, 165});
    Report("a word", speaker, QStringLiteral("dictionary"));
    Report("a sentence", speaker, QStringLiteral("The owl reads a book in the old library."));
    Report("1 MB", speaker, QStringLiteral("The owl reads a book. ").repeated(50000));
    return 0;
}
