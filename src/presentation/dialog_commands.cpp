#include "core/shared_state.h"
#include "platform/dialogs/dialogs.h"
#include "presentation/frmColorSelect.h"
#include "presentation/frmFind.h"
#include "presentation/pure/dialog_checks.h"

#include <QAction>

namespace
{

/// Shows what comes in the place of a dialog, if anything does.
void Tell(const std::optional<Notice> &notice)
{
    if (notice)
        dialogs::MsgBox(notice->text, dialogs::Exclamation, notice->title);
}

} // namespace

void frmFind::mnuColorSel_Click() { (new frmColorSelect)->ShowModal(); }

void frmFind::mnuAddSearchCondition_Click()
{
    ClearForModeChange();
    Tell(CompositeNotice(Shared.SearchMode));
}

void frmFind::OfferCompositeBuilder()
{
    // Where the builder itself would open there is nothing to choose yet.
    const bool answers = CompositeNotice(Shared.SearchMode).has_value();
    Menu(QStringLiteral("mnuAddSearchCondition"))->setEnabled(answers);
    PictureOf(16)->setEnabled(answers);
}

void frmFind::Picture28_MouseDown()
{
    // No character is ever loaded, whatever the settings say.
    constexpr bool isSpeechAvailable = false;
    Tell(SpeechNotice(isSpeechAvailable));
}
