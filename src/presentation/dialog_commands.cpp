#include "aids/frmAddCondition.h"
#include "aids/frmHistory.h"
#include "aids/frmListSettings.h"
#include "aids/frmSearch.h"
#include "conversion/frmCreateDB.h"
#include "conversion/frmDataConv.h"
#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "management/frmDBCompress.h"
#include "management/frmDicList.h"
#include "management/frmMstmnt.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "presentation/frmAbout.h"
#include "presentation/frmColorSelect.h"
#include "presentation/frmFind.h"
#include "presentation/pure/dialog_checks.h"
#include "speech/frmSpeaking.h"
#include "speech/frmSpeakingSetting.h"
#include "web/frmFavorite.h"

#include <QMenu>

// The commands that open dialogs. No other file of the main window includes them.

namespace
{

/// Shows what comes in the place of a dialog. True when there was something to show.
bool Refused(const std::optional<Notice> &notice)
{
    if (notice)
        dialogs::MsgBox(notice->text, dialogs::Exclamation, notice->title);
    return notice.has_value();
}

/// The same, with a beep, for a dialog that works on the dictionary in use.
bool IsDictionaryMissing(DictionaryDialog dialog)
{
    const auto notice = DictionaryNotice(dialog, Shared.CurrentDicPath, files::Exists(Shared.CurrentDicPath));
    if (notice)
        host::MessageBeep(host::BeepExclamation);
    return Refused(notice);
}

} // namespace

void frmFind::mnuFileCreate_Click() { (new frmCreateDB)->ShowModal(); }

void frmFind::mnuOpen_Click()
{
    if (IsDictionaryMissing(DictionaryDialog::Editor))
        return;
    Shared.EditOpenMode = 0;
    ShowRecordEditor();
}

void frmFind::ShowRecordEditor() { (new frmMstmnt)->ShowAbove(*this); }

void frmFind::mnuDicAdd_Click()
{
    // The dialog saves what it has: entries that could not be read at start-up must not be lost by that.
    if (!m_hasReadCatalogue)
        LoadCatalogue();
    (new frmDicList)->ShowModal();
}

void frmFind::mnuCompress_Click()
{
    if (!IsDictionaryMissing(DictionaryDialog::Compaction))
        (new frmDBCompress)->ShowModal();
}

void frmFind::mnuCnv_Click() { (new frmDataConv)->ShowAbove(*this); }

void frmFind::mnuWildCardBuilder_Click()
{
    ClearForModeChange();
    SetWildcardMode();
    (new frmSearch)->ShowModal();
}

void frmFind::mnuAddSearchCondition_Click()
{
    ClearForModeChange();
    // The web mode takes no conditions either, and has nothing to say about it.
    if (!Refused(CompositeNotice(Shared.SearchMode)) && Shared.SearchMode != ModeWeb)
        (new frmAddCondition)->ShowModal();
}

void frmFind::mnuHistory_Click()
{
    HideHitPaging();
    StatusBar1->SetSimpleText(QString());
    (new frmHistory)->ShowModal();
}

void frmFind::Picture27_MouseDown() { (new frmFavorite)->ShowModal(); }

void frmFind::mnuListSettings_Click() { (new frmListSettings)->ShowModal(); }

void frmFind::Picture10_MouseDown()
{
    const controls::Picture *picture = PictureOf(10);
    m_popup->popup(picture->mapToGlobal(picture->rect().bottomLeft()));
}

void frmFind::Picture28_MouseDown()
{
    if (Refused(SpeechNotice(Shared.SpeechEnabled == 1 && Shared.Character)))
        return;
    constexpr auto name = u"frmSpeaking";
    if (controls::Form *open = Named(QString::fromUtf16(name))) {
        open->showNormal();
        open->raise();
        open->activateWindow();
        return;
    }
    (new frmSpeaking)->ShowAbove(*this);
}

void frmFind::mnuColorSel_Click() { (new frmColorSelect)->ShowModal(); }

void frmFind::mnuSpeakingSetting_Click() { (new frmSpeakingSetting)->ShowModal(); }

void frmFind::mnuTopicSearch_Click() { host::WinHelp(HelpFilePath(), host::HelpFinder); }

void frmFind::mnuAbout_Click() { (new frmAbout)->ShowModal(); }
