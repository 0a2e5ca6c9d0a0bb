#include "platform/browser/web_browser.h"

#include <QCoreApplication>
#include <unistd.h>

namespace
{

bool DrawsBySoftware()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    return platform.startsWith("offscreen") || platform.startsWith("minimal") ||
           qgetenv("QT_QUICK_BACKEND") == "software";
}

void SetUnlessSet(const char *name, const QByteArray &value)
{
    if (!qEnvironmentVariableIsSet(name))
        qputenv(name, value);
}

} // namespace

void browser::PrepareProcess()
{
    QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    flags += " --disable-background-networking --disable-component-update --disable-domain-reliability"
             " --disable-sync --no-pings --no-first-run";
    if (DrawsBySoftware()) {
        SetUnlessSet("QT_QUICK_BACKEND", "software");
        flags += " --disable-gpu";
    }
    // The engine refuses to run its sandbox for root.
    if (geteuid() == 0)
        SetUnlessSet("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags.trimmed());
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}
