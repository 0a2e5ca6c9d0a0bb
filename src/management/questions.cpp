#include "management/questions.h"

#include "platform/host/host.h"

void Tell(const QString &text, const QString &title)
{
    dialogs::BeepAndMsgBox(host::BeepExclamation, text, dialogs::Exclamation, title);
}

int AskYesNo(const QString &text, const QString &title)
{
    return dialogs::BeepAndMsgBox(host::BeepQuestion, text, dialogs::Question | dialogs::YesNo, title);
}

int AskYesNoCancel(const QString &text, const QString &title)
{
    return dialogs::BeepAndMsgBox(host::BeepQuestion, text, dialogs::Question | dialogs::YesNoCancel, title);
}
