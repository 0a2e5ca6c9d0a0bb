#pragma once

#include "platform/dialogs/dialogs.h"

namespace dialogs
{

/// Shows a real box on the active window and waits for its answer.
Reply PresentBox(const Box &box);

/// The patterns of a filter "text|pattern|text|pattern", as the file box takes them: "text (*.a *.b)".
QStringList NameFilters(const QString &filter);

} // namespace dialogs
