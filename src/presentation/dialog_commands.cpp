#include "core/shared_state.h"
#include "management/frmDBCompress.h"
#include "management/frmDicList.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "presentation/frmFind.h"
#include "presentation/pure/dialog_checks.h"

#include <QAction>
#include <QMenu>

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

void frmFind::mnuDicAdd_Click() { (new frmDicList)->ShowModal(); }

void frmFind::mnuCompress_Click()
{
    if (!IsDictionaryMissing(DictionaryDialog::Compaction))
        (new frmDBCompress)->ShowModal();
}

void frmFind::mnuAddSearchCondition_Click()
{
    ClearForModeChange();
    Refused(CompositeNotice(Shared.SearchMode));
}

void frmFind::OfferCompositeBuilder()
{
    // Where the builder itself would open there is nothing to choose yet.
    const bool answers = CompositeNotice(Shared.SearchMode).has_value();
    Menu(QStringLiteral("mnuAddSearchCondition"))->setEnabled(answers);
    PictureOf(16)->setEnabled(answers);
}

void frmFind::Picture10_MouseDown()
{
    const controls::Picture *picture = PictureOf(10);
    m_popup->popup(picture->mapToGlobal(picture->rect().bottomLeft()));
}

void frmFind::Picture28_MouseDown()
{
    // No character is ever loaded, whatever the settings say.
    constexpr bool isSpeechAvailable = false;
    Refused(SpeechNotice(isSpeechAvailable));
}
