#include "speech/frmSpeakingSetting.h"

#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/controls/connect_handler.h"
#include "platform/controls/white_base.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"
#include "presentation/frmFind.h"
#include "speech/pure/character_choice.h"
#include "speech/speaking.h"
#include "ui_frmSpeakingSetting.h"

#include <QAbstractItemView>

namespace
{

QString WithoutBackslash(QString folder)
{
    if (folder.endsWith(u'\\'))
        folder.chop(1);
    return folder;
}

void WarnOfFolderChange()
{
    dialogs::MsgBox(QStringLiteral("キャラクタ ファイルのデフォルト(既定)フォルダは\r\n"
                                   "通常はシステムフォルダ(Windows、WINNT等)中の\r\n"
                                   "\\msagent\\char です。この処理でフォルダパスを\r\n"
                                   "不用意に変更するとキャラクタ ファイルを正しく参照\r\n"
                                   "出来なくなる可能性がありますのでご注意ください。"),
                    dialogs::OKOnly, QStringLiteral("フォルダパス変更の注意"));
}

} // namespace

frmSpeakingSetting::frmSpeakingSetting()
    : Form(QStringLiteral("frmSpeakingSetting")), m_ui(std::make_unique<Ui::frmSpeakingSetting>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    SetKeyButtons(m_ui->Command2, m_ui->Command3);
    using controls::ConnectHandler;
    ConnectHandler(m_ui->Check1, &QCheckBox::toggled, this, &frmSpeakingSetting::Check1_Click);
    ConnectHandler(m_ui->Text1, &controls::TextBox::Change, this, &frmSpeakingSetting::Text1_Change);
    ConnectHandler(m_ui->Combo1, &controls::ComboBox::Click, this, &frmSpeakingSetting::Combo1_Click);
    ConnectHandler(m_ui->Command1, &QPushButton::clicked, this, &frmSpeakingSetting::Command1_Click);
    ConnectHandler(m_ui->Command2, &QPushButton::clicked, this, &frmSpeakingSetting::Command2_Click);
    ConnectHandler(m_ui->Command3, &QPushButton::clicked, this, &frmSpeakingSetting::Command3_Click);
}

frmSpeakingSetting::~frmSpeakingSetting() = default;

void frmSpeakingSetting::Form_Load()
{
    if (frmFind *window = MainWindow())
        window->SetTakesInput(false);
    m_loaded = ReadAgentSettings();
    Shared.SpeechEnabled = m_loaded.enabled;
    m_ui->Check1->setChecked(m_loaded.enabled == 0);
    m_ui->Text1->SetText(CharacterFolderOf(m_loaded.folder, WindowsFolderRoot()));
    if (m_loaded.file.isEmpty())
        // The first one is in use; that it is named by now is no change of the user's.
        m_loaded.file = m_ui->Combo1->Text();
    else
        m_ui->Combo1->SetText(m_loaded.file);
    if (!IsChosenFileThere()) {
        m_ui->Label3->setText(QStringLiteral("上記のファイルなし。発音機能は現在無効。"));
        Shared.NoCharacterFile = true;
    }
}

void frmSpeakingSetting::Form_Unload(controls::UnloadReason)
{
    // The file may ask for a character that could not be opened at the start.
    if (!Shared.Character)
        Shared.SpeechEnabled = 0;
    if (frmFind *window = MainWindow())
        window->SetTakesInput(true);
}

QString frmSpeakingSetting::Folder() const
{
    const QString typed = WithoutBackslash(files::TypedPath(m_ui->Text1->Text()));
    // The default folder is meant in any case of letters, whatever the host makes of them.
    return CharacterFolderOf(FolderFieldOf(typed, WindowsFolderRoot()), WindowsFolderRoot());
}

bool frmSpeakingSetting::IsChosenFileThere() const
{
    const QString file = m_ui->Combo1->Text();
    return !file.isEmpty() && files::Exists(Folder() + u'\\' + file);
}

void frmSpeakingSetting::Check1_Click()
{
    const bool isOn = !m_ui->Check1->isChecked();
    for (QWidget *control : {static_cast<QWidget *>(m_ui->Combo1), static_cast<QWidget *>(m_ui->Label1),
                             static_cast<QWidget *>(m_ui->Label2), static_cast<QWidget *>(m_ui->Label3),
                             static_cast<QWidget *>(m_ui->Text1), static_cast<QWidget *>(m_ui->Command1)})
        control->setEnabled(isOn);
}

void frmSpeakingSetting::Text1_Change()
{
    m_ui->Combo1->Clear();
    for (const QString &file : files::Matching(Folder(), QStringLiteral("*.acs")))
        m_ui->Combo1->AddItem(file);
    if (m_ui->Combo1->ListCount() > 0)
        m_ui->Combo1->Choose(0);
}

void frmSpeakingSetting::Combo1_Click()
{
    if (IsChosenFileThere())
        m_ui->Label3->clear();
}

void frmSpeakingSetting::Command1_Click()
{
    WarnOfFolderChange();
    const QString folder = dialogs::ChooseFolder(QStringLiteral("フォルダを選択してください。"), Folder());
    if (!folder.isEmpty())
        m_ui->Text1->SetText(folder);
}

AgentSettings frmSpeakingSetting::Chosen() const
{
    return ChosenSettings(m_ui->Check1->isChecked(), files::TypedPath(m_ui->Text1->Text()),
                          m_ui->Combo1->Text(), WindowsFolderRoot());
}

void frmSpeakingSetting::UseNewCharacter(const AgentSettings &settings)
{
    if (frmFind *window = MainWindow(); window && Shared.Character)
        window->Close_Character(CharacterIdFromFile(Shared.CharacterFile));
    UseAgentSettings(settings);
    OpenCharacterInUse();
}

void frmSpeakingSetting::Command2_Click()
{
    const AgentSettings chosen = Chosen();
    if (chosen != m_loaded) {
        WriteAgentSettings(chosen);
        UseNewCharacter(chosen);
        m_loaded = chosen;
    }
    m_closeHandled = true;
    Unload();
}

void frmSpeakingSetting::Command3_Click() { Unload(); }

bool frmSpeakingSetting::Form_QueryUnload(controls::UnloadReason reason)
{
    if (reason == controls::UnloadReason::Exit || m_closeHandled || Chosen() == m_loaded)
        return true;
    return dialogs::MsgBox(QStringLiteral("設定内容が変更されています。保存せずに終了してよろしいですか？"),
                           dialogs::OKCancel | dialogs::Question, QStringLiteral("終了確認")) == dialogs::OK;
}
