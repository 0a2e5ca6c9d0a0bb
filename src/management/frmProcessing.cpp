#include "management/frmProcessing.h"

#include "platform/host/host.h"
#include "ui_frmProcessing.h"

#include <QElapsedTimer>
#include <QWindow>

frmProcessing::frmProcessing(QWidget &owner) : Form(QStringLiteral("frmProcessing"))
{
    Ui::frmProcessing controls;
    controls.setupUi(this);
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    adjustSize();
    setFixedSize(size());
    SetOwner(owner);
}

void frmProcessing::ShowPainted()
{
    constexpr int patience = 100; // milliseconds; a window system may take its time
    ShowForm();
    QElapsedTimer timer;
    timer.start();
    do
        host::DoEvents();
    while (IsLoaded() && !windowHandle()->isExposed() && timer.elapsed() < patience);
}
