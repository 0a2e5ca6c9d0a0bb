// The compaction with its check beside its floor: `cp` and `sync` of the file that it gives. Both are
// measured in turn, in the same run, by the clock on the wall, for most of the time is the disk's; the
// table shows medians and their ratio.

#include "platform/data/adodb.h"
#include "platform/data/jro.h"
#include "platform/files/drive_path.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

constexpr int kRepetitions = 5;

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double MedianOf(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void RunProgram(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() + " failed");
}

QString ConnectionTo(const QString &hostPath)
{
    return u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + files::DrivePath(hostPath);
}

/// The longest time between two turns of the event loop that the compaction lets through.
struct Turns {
    double longest = 0;
    Clock::time_point last = Clock::now();

    void Count()
    {
        longest = std::max(longest, MillisecondsSince(last));
        last = Clock::now();
    }
};

void Measure(const QString &dictionary)
{
    // Beside the dictionary, so that everything lies on one file system.
    const QTemporaryDir folder(QFileInfo(dictionary).absolutePath() + u"/compaction-XXXXXX"_s);
    const QString compact = folder.filePath(u"compact.mdb"_s);
    const QString copy = folder.filePath(u"copy.mdb"_s);
    std::vector<double> compactions, copies;
    Turns turns;
    ADODB::EngineHooks().progress = [&turns] { turns.Count(); };
    for (int i = 0; i < kRepetitions; ++i) {
        RunProgram(u"sync"_s, {});
        turns.last = Clock::now();
        const Clock::time_point start = Clock::now();
        JRO::JetEngine engine;
        engine.CompactDatabase(ConnectionTo(dictionary), ConnectionTo(compact));
        compactions.push_back(MillisecondsSince(start));
        turns.Count();

        RunProgram(u"sync"_s, {});
        const Clock::time_point floorStart = Clock::now();
        RunProgram(u"cp"_s, {compact, copy});
        RunProgram(u"sync"_s, {copy});
        copies.push_back(MillisecondsSince(floorStart));
        QFile::remove(compact);
        QFile::remove(copy);
    }
    std::printf("%-44s %9s %9s %6s %14s\n", "compaction", "ms", "floor ms", "ratio", "longest turn ms");
    std::printf("%-44s %9.0f %9.0f %6.2f %14.0f\n", "compaction with its check, cp and sync",
                MedianOf(compactions), MedianOf(copies), MedianOf(compactions) / MedianOf(copies),
                turns.longest);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s DICTIONARY\n", argv[0]);
        return 2;
    }
    try {
        Measure(QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath());
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
