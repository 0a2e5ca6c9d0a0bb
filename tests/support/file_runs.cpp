#include "file_runs.h"

#include "tap.h"
#include "watchdog.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace
{

/// One file's process, whose lines become points of the common stream.
class FileRun
{
public:
    FileRun(Tap &tap, const QString &file, bool withServer)
        : m_tap(tap), m_name(QFileInfo(file).fileName()),
          m_server(withServer ? QFileInfo(file).absolutePath() + QStringLiteral("/serve") : QString())
    {
    }

    void Run(const QString &program, const QStringList &arguments)
    {
        // It ends with its input, and so with this process too.
        QProcess server;
        server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        if (QFileInfo(m_server).isExecutable() && !Serves(server))
            return Fail(QStringLiteral("its server does not start"));
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), m_folder.path());
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(program, arguments, QIODevice::ReadOnly);
        Follow(process);
        TakeLine(m_rest);
        Judge(process);
        server.closeWriteChannel();
        server.waitForFinished();
    }

private:
    /// Starts what the folder of the file has to serve its files; whether it tells its address.
    bool Serves(QProcess &server) const
    {
        constexpr int longest = 20'000, slice = 50;
        server.start(m_server, {m_folder.path()});
        QElapsedTimer timer;
        timer.start();
        while (!QFileInfo::exists(m_folder.filePath(QStringLiteral("site")))) {
            if (timer.elapsed() > longest || server.waitForFinished(slice))
                return false;
        }
        return true;
    }

    void Follow(QProcess &process)
    {
        constexpr int slice = 200, spareSeconds = 30;
        QElapsedTimer timer;
        timer.start();
        const qint64 allowed = 1000LL * (Watchdog::Allowance() + Watchdog::kGraceSeconds + spareSeconds);
        while (!process.waitForFinished(slice)) {
            TakeBytes(process.readAllStandardOutput());
            if (process.state() == QProcess::NotRunning)
                break;
            if (timer.elapsed() > allowed) {
                process.kill();
                m_killed = true;
            }
        }
        TakeBytes(process.readAllStandardOutput());
    }

    void TakeBytes(const QByteArray &bytes)
    {
        m_rest += bytes;
        for (qsizetype end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n')) {
            TakeLine(m_rest.left(end));
            m_rest.remove(0, end + 1);
        }
    }

    void TakeLine(const QByteArray &bytes)
    {
        static const QRegularExpression point(QStringLiteral("^(not )?ok\\b *\\d* *(?:- )?(.*)$"));
        static const QRegularExpression plan(QStringLiteral("^1\\.\\.\\d+$"));
        const QString line = QString::fromUtf8(bytes);
        if (const auto match = point.match(line); match.hasMatch()) {
            const bool passed = match.capturedLength(1) == 0;
            m_failed = m_failed || !passed;
            m_tap.Point(passed, m_name + QStringLiteral(": ") +
                                    match.captured(2).replace(QStringLiteral("\\#"), QStringLiteral("#")));
        } else if (plan.match(line).hasMatch()) {
            m_planned = true;
        } else if (!line.isEmpty()) {
            m_tap.Note(line.startsWith(QLatin1String("# ")) ? line.mid(2) : line);
        }
    }

    void Judge(const QProcess &process)
    {
        if (m_killed)
            Fail(QStringLiteral("hangs and was killed"));
        else if (process.error() == QProcess::FailedToStart)
            Fail(QStringLiteral("its process does not start"));
        else if (process.exitStatus() == QProcess::CrashExit)
            Fail(QStringLiteral("crashes with signal %1").arg(process.exitCode()));
        else if (!m_planned && !m_failed)
            Fail(QStringLiteral("ends early, with the exit code %1").arg(process.exitCode()));
        else if (process.exitCode() != 0 && !m_failed)
            Fail(QStringLiteral("its process fails with the exit code %1").arg(process.exitCode()));
    }

    void Fail(const QString &what) { m_tap.Point(false, m_name + QStringLiteral(": ") + what); }

    Tap &m_tap;
    QString m_name, m_server;
    // Holds the run's own folder, and removes it where the run crashes.
    QTemporaryDir m_folder{QDir::tempPath() + QStringLiteral("/wordmere-XXXXXX")};
    QByteArray m_rest;
    bool m_planned = false, m_failed = false, m_killed = false;
};

} // namespace

bool RunEachInItsProcess(const QString &program, const QStringList &options, const QStringList &files)
{
    // The recording pane has no use for a server.
    const bool withServers = !options.contains(QStringLiteral("recording"));
    Tap tap;
    tap.Begin();
    for (const QString &file : files)
        FileRun(tap, file, withServers).Run(program, options + QStringList{file});
    tap.PlanAndSummary();
    return tap.Failed() == 0;
}
