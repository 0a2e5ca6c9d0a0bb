#include "management/frmProcessing.h"

#include "platform/host/host.h"
#include "ui_frmProcessing.h"

#include <QElapsedTimer>
#include <QWindow>

frmProcessing::frmProcessing() : Form(QStringLiteral("frmProcessing"))
{
    Ui::frmProcessing controls;
    controls.setupUi(this);
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    adjustSize();
    setFixedSize(size());
}

void frmProcessing::ShowPainted(const Form &owner)
{
    constexpr int patience = 100; // milliseconds; a window system may take its time
    ShowAbove(owner);
    QElapsedTimer timer;
    timer.start();
    do
        host::DoEvents();
    while (IsLoaded() && !windowHandle()->isExposed() && timer.elapsed() < patience);
}
