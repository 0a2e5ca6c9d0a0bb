#include "core/shared_state.h"
#include "platform/dialogs/dialogs.h"
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

} // namespace

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
