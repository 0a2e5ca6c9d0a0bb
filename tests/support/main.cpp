#include "core/program.h"
#include "file_runs.h"
#include "platform/browser/web_browser.h"
#include "platform/failure/runtime_error.h"
#include "run_folder.h"
#include "scenario.h"

#include <QApplication>
#include <QFileInfo>
#include <QTimer>
#include <cstdio>
#include <optional>

namespace
{

constexpr auto kUsage = "usage: wordmere_scenario [--pane recording|engine] FILE...\n"
                        "Runs scenario files and writes their checks as TAP.\n";

struct CommandLine {
    QString pane = qEnvironmentVariable("WORDMERE_PANE", QStringLiteral("engine"));
    /// Whether this process is the one that runs the file.
    bool here = false;
    QStringList files;
};

std::optional<CommandLine> Parse(const QStringList &arguments)
{
    CommandLine line;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--pane") && i + 1 < arguments.size())
            line.pane = arguments[++i];
        else if (arguments[i] == QLatin1String("--here"))
            line.here = true;
        else if (arguments[i].startsWith(QLatin1String("--")))
            return std::nullopt;
        else
            line.files.append(QFileInfo(arguments[i]).absoluteFilePath());
    }
    const bool knownPane = line.pane == QLatin1String("recording") || line.pane == QLatin1String("engine");
    if (!knownPane || line.files.isEmpty() || (line.here && line.files.size() != 1))
        return std::nullopt;
    return line;
}

void PrepareProcess(const RunFolder &folder, const QString &shareFolder, const QString &pane)
{
    folder.EnterEnvironment();
    qputenv("QT_QPA_PLATFORM",
            qEnvironmentVariable("WORDMERE_SCENARIO_PLATFORM", QStringLiteral("offscreen")).toLocal8Bit());
    browser::SetBackend(pane == QLatin1String("recording") ? browser::Backend::Recording
                                                           : browser::Backend::Engine);
    Program::PrepareProcess(shareFolder);
}

void FillFolder(RunFolder &folder, const QString &shareFolder, Tap &tap)
{
    try {
        folder.FillApplicationFolder(shareFolder);
    } catch (const RuntimeError &failure) {
        tap.Point(false, QStringLiteral("the application folder cannot be filled: ") + failure.description());
    }
}

/// Runs one file in this process. The exit code is 0 when all its points passed.
int RunHere(const CommandLine &line, int argc, char *argv[])
{
    RunFolder folder;
    const QString executable = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
    const QString share = Program::ShareFolder(executable, QStringLiteral(WORDMERE_SHARE_IN_BUILD));
    PrepareProcess(folder, share, line.pane);
    Tap tap;
    {
        const QApplication application(argc, argv);
        Program::PrepareApplication();
        FillFolder(folder, share, tap);
        Scenario scenario(folder, share, tap);
        QTimer::singleShot(0, &scenario, [&] {
            scenario.Run(line.files.first());
            QCoreApplication::exit();
        });
        QApplication::exec();
    }
    tap.Plan();
    return tap.Failed() == 0 ? 0 : 1;
}

QStringList Words(int argc, char *argv[])
{
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}

} // namespace

int main(int argc, char *argv[])
{
    const std::optional<CommandLine> line = Parse(Words(argc, argv));
    if (!line) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    if (line->here)
        return RunHere(*line, argc, argv);
    const QStringList options{QStringLiteral("--here"), QStringLiteral("--pane"), line->pane};
    return RunEachInItsProcess(QStringLiteral("/proc/self/exe"), options, line->files) ? 0 : 1;
}
