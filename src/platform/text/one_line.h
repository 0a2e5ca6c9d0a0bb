#pragma once

#include <QString>

namespace text
{

/// A text that came in lines, from the clipboard for one, as a box of one line takes it: its lines one
/// behind the other with a blank between, empty ones left out.
QString OneLine(const QString &text);

} // namespace text
