#include "management/frmProcessing.h"

#include "ui_frmProcessing.h"

frmProcessing::frmProcessing(QWidget &owner) : Form(QStringLiteral("frmProcessing"), &owner)
{
    Ui::frmProcessing controls;
    controls.setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    adjustSize();
    setFixedSize(size());
    move(owner.frameGeometry().center() - rect().center());
}
