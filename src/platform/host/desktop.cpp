#include "platform/host/host.h"

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QMimeData>
#include <QScreen>

namespace
{

int pointerNow = host::PointerDefault;
int asides = 0;
bool overridden = false;
int standInScreenWidth = 0;
host::HelpViewer helpViewer;

void ShowPointer()
{
    const bool hourglass = pointerNow == host::PointerHourglass && asides == 0;
    if (hourglass == overridden || !qGuiApp)
        return;
    overridden = hourglass;
    if (hourglass)
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    else
        QGuiApplication::restoreOverrideCursor();
}

QSize ScreenSize()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->size() : QSize(0, 0);
}

} // namespace

void host::SetMousePointer(int pointer)
{
    pointerNow = pointer;
    ShowPointer();
}

int host::MousePointer() { return pointerNow; }

host::PointerAside::PointerAside()
{
    ++asides;
    ShowPointer();
}

host::PointerAside::~PointerAside()
{
    --asides;
    ShowPointer();
}

QString host::ClipboardText()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText() ? data->text() : QString();
}

bool host::ClipboardHasText()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText();
}

void host::SetClipboardText(const QString &text) { QGuiApplication::clipboard()->setText(text); }

int host::ScreenWidth() { return standInScreenWidth > 0 ? standInScreenWidth : ScreenSize().width(); }

int host::ScreenHeight() { return ScreenSize().height(); }

void host::SetScreenWidth(int pixels) { standInScreenWidth = pixels; }

bool host::NobodyIsThere() { return QGuiApplication::platformName() == QLatin1String("offscreen"); }

void host::SetHelpViewer(HelpViewer viewer) { helpViewer = std::move(viewer); }

void host::WinHelp(const QString &helpFile, int command, const QString &topic)
{
    if (const auto viewer = helpViewer)
        viewer(helpFile, command, topic);
}
