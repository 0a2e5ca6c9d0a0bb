#include "speech/frmSpeaking.h"

#include "platform/controls/connect_handler.h"
#include "platform/controls/white_base.h"
#include "platform/dialogs/dialogs.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "speech/speaking.h"
#include "ui_frmSpeaking.h"

frmSpeaking::frmSpeaking() : Form(QStringLiteral("frmSpeaking")), m_ui(std::make_unique<Ui::frmSpeaking>())
{
    m_ui->setupUi(this);
    // Long texts want room: the frame keeps its size buttons.
    controls::UseWhiteBase(*m_ui->Text1);
    SetKeyButtons(nullptr, m_ui->Command3);
    using controls::ConnectHandler;
    ConnectHandler(m_ui->Command1, &QPushButton::clicked, this, &frmSpeaking::Command1_Click);
    ConnectHandler(m_ui->Command2, &QPushButton::clicked, this, &frmSpeaking::Command2_Click);
    ConnectHandler(m_ui->Command3, &QPushButton::clicked, this, &frmSpeaking::Command3_Click);
    ConnectHandler(m_ui->Command4, &QPushButton::clicked, this, &frmSpeaking::Command4_Click);
}

frmSpeaking::~frmSpeaking() = default;

void frmSpeaking::Command1_Click()
{
    if (!host::ClipboardHasText()) {
        dialogs::BeepAndMsgBox(host::BeepExclamation, QStringLiteral("クリップボードにデータがありません！"),
                               dialogs::Exclamation, QStringLiteral("テキストデータなし"));
        return;
    }
    m_ui->Text1->SetText(text::Trim(host::ClipboardText()));
}

void frmSpeaking::Command2_Click()
{
    if (SpeakTypedText(m_ui->Text1->Text()))
        m_ui->Text1->setFocus();
}

void frmSpeaking::Command3_Click() { Unload(); }

void frmSpeaking::Command4_Click() { m_ui->Text1->SetText(QString()); }
