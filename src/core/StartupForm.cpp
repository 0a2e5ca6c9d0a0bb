#include "core/StartupForm.h"

#include "core/program.h"
#include "platform/dialogs/dialogs.h"
#include "platform/host/host.h"

#include <QPainter>
#include <QSvgRenderer>

StartupForm::StartupForm(Program &program) : Form(QStringLiteral("StartupForm")), m_program(program)
{
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setWindowTitle(QStringLiteral("Wordmere"));
    setFixedSize(480, 270);
}

void StartupForm::Form_Load()
{
    if (!m_program.TakeFolder())
        dialogs::MsgBox(QStringLiteral("Wordmere は既に開かれています。二重起動はできません！"),
                        dialogs::Exclamation, QStringLiteral("アプリケーション重複起動エラー"));
    host::SetMousePointer(host::PointerHourglass);
    Centre();
    show();
    host::Sleep(m_program.SplashMilliseconds());
    host::SetMousePointer(host::PointerDefault);
}

void StartupForm::Form_Unload(controls::UnloadReason) { m_program.LeaveSplash(); }

void StartupForm::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QSvgRenderer(QStringLiteral(":/icons/splash.svg")).render(&painter, rect());
}
