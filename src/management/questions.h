#pragma once

#include "platform/dialogs/dialogs.h"

#include <QString>

/// The boxes of the record editor and of the catalogue, each with its beep.

/// A notice.
void Tell(const QString &text, const QString &title);
/// Questions; the answer is dialogs::Yes, No or Cancel.
int AskYesNo(const QString &text, const QString &title);
int AskYesNoCancel(const QString &text, const QString &title);
