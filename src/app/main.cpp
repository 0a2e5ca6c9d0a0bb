#include "core/program.h"

#include <QApplication>
#include <QFileInfo>
#include <QTimer>

int main(int argc, char *argv[])
{
    const QString executable = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
    const QString share = Program::ShareFolder(executable, QStringLiteral(WORDMERE_SHARE_IN_BUILD));
    Program::PrepareProcess(share);
    const QApplication application(argc, argv);
    Program::PrepareApplication();

    Program::Options options;
    options.shareFolder = share;
    Program program(options);
    // Queued, because the run may end before the event loop has begun.
    // Not by asking the windows, for the figure of a character refuses to be closed.
    QObject::connect(
        &program, &Program::Ended, &application, [] { QApplication::exit(); }, Qt::QueuedConnection);
    host::OnEndSignal(&program, [&program] { program.End(); });
    QTimer::singleShot(0, &program, &Program::Start);
    return QApplication::exec();
}
