#include "speech/speaking.h"

#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/agent/agent.h"
#include "platform/browser/web_browser.h"
#include "platform/dialogs/dialogs.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/file_operations.h"
#include "platform/files/fixed_record_file.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "speech/pure/character_choice.h"
#include "speech/pure/speaking_checks.h"

namespace
{

QString AgentFile() { return AppFilePath(QStringLiteral("AgentDefi.dat")); }

agent::Character &LoadedCharacter()
{
    if (!Shared.Character)
        throw RuntimeError(RuntimeError::ObjectNotSet);
    return *Shared.Character;
}

/// Tells what stands in the way; whether something does.
bool IsRefused(SpeakingObstacle obstacle)
{
    const std::optional<Notice> notice = SpeakingNotice(obstacle);
    if (notice)
        dialogs::MsgBox(notice->text, dialogs::Exclamation, notice->title);
    return notice.has_value();
}

/// Puts back what a selection took the place of on the clipboard.
void PutBack(const QString &saved)
{
    if (!saved.isEmpty())
        host::SetClipboardText(saved);
}

} // namespace

AgentSettings ReadAgentSettings()
{
    if (!files::Exists(AgentFile()))
        WriteAgentSettings(DefaultAgentSettings());
    return DecodeAgentSettings(files::FixedRecordFile(AgentFile(), kAgentRecordLength).Read(1));
}

void WriteAgentSettings(const AgentSettings &settings)
{
    files::Replace(AgentFile(), EncodeAgentSettings(settings));
}

void UseAgentSettings(const AgentSettings &settings)
{
    Shared.CharacterFolder = CharacterFolderOf(settings.folder, WindowsFolderRoot());
    Shared.CharacterFile = settings.file;
    if (Shared.CharacterFile.isEmpty())
        Shared.CharacterFile = files::Matching(Shared.CharacterFolder, QStringLiteral("*.acs")).value(0);
    Shared.NoCharacterFile = Shared.CharacterFile.isEmpty();
    Shared.SpeechEnabled = Shared.NoCharacterFile ? std::uint8_t{0} : settings.enabled;
    Shared.CharacterPath = Shared.CharacterFolder + u'\\' + Shared.CharacterFile;
    Shared.CharacterID = CharacterIdFromFile(Shared.CharacterFile);
}

void OpenCharacterInUse()
{
    frmFind *window = MainWindow();
    if (Shared.SpeechEnabled != 1 || !window)
        return;
    Shared.CharacterMoved = 0;
    try {
        window->Open_Character(Shared.CharacterID, Shared.CharacterPath);
    } catch (const RuntimeError &failure) {
        Shared.SpeechEnabled = 0;
        dialogs::MsgBox(
            QStringLiteral("キャラクタ ファイルを読み込めないため、英文発音機能は使用できません。\r\n") +
                Shared.CharacterPath + QStringLiteral("\r\n\r\n") + failure.description(),
            dialogs::Exclamation, QStringLiteral("キャラクタ ファイルの誤り"));
    }
}

void MoveCharacterToCorner()
{
    agent::Character &character = LoadedCharacter();
    character.MoveTo(host::ScreenWidth() - character.Width(), host::ScreenHeight() - character.Height());
}

void SpeakAloud(const QString &text)
{
    agent::Character &character = LoadedCharacter();
    constexpr int noRequest = -1;
    if (character.Show().ID != noRequest) {
        character.Show();
        if (Shared.CharacterMoved == 0) {
            MoveCharacterToCorner();
            Shared.CharacterMoved = 1;
        }
    }
    character.Speak(text);
}

bool SpeakTypedText(const QString &text)
{
    if (IsRefused(TypedTextObstacle(text, Shared.SpeechEnabled)))
        return false;
    try {
        SpeakAloud(text);
    } catch (const RuntimeError &) {
        return false;
    }
    return true;
}

void frmFind::LoadCharacter()
{
    UseAgentSettings(ReadAgentSettings());
    OpenCharacterInUse();
}

void frmFind::Open_Character(const QString &id, const QString &path)
{
    Agent1->SetConnected(true);
    try {
        Agent1->Characters().Load(id, path);
        Shared.Character = &Agent1->Characters().Item(id);
        Shared.Character->SetLanguageID(agent::kEnglish);
    } catch (const RuntimeError &) {
        Shared.Character = nullptr;
        Agent1->SetConnected(false);
        throw;
    }
}

void frmFind::Close_Character(const QString &id)
{
    Shared.Character = nullptr;
    Agent1->Characters().Unload(id);
    Agent1->SetConnected(false);
}

void frmFind::MoveToCharactor2() { MoveCharacterToCorner(); }

void frmFind::SpeakHeadword()
{
    if (SpeakTypedText(txtFind->Text()))
        txtFind->setFocus();
}

void frmFind::SpeakSelection()
{
    const QString saved = host::ClipboardHasText() ? text::Trim(host::ClipboardText()) : QString();
    const QString selection = WebBrowser1->SelectedText();
    WebBrowser1->ExecWB(browser::Copy);
    const SpeakingObstacle obstacle = SelectionObstacle(selection, Shared.SpeechEnabled);
    if (IsRefused(obstacle)) {
        // Without a selection nothing was copied. Where speech is off, the selection is left for use
        // elsewhere.
        if (!selection.isEmpty() && obstacle != SpeakingObstacle::SpeechOff)
            PutBack(saved);
        return;
    }
    SpeakAloud(selection);
    PutBack(saved);
}

void frmFind::Command1_Click()
{
    WebBrowser1->ExecWB(browser::Copy);
    LoadedCharacter().Speak(host::ClipboardText());
}
