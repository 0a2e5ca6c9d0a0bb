#pragma once

#include <QString>
#include <QStringView>

namespace text
{

/// A number by a pattern of digits: `0` stands for a digit that is always written, `#` for one that
/// is written where the number has it, a comma between digits for commas between the thousands, and a
/// point for the point, which is written whatever stands behind it. The number is rounded, half away
/// from zero, to as many decimals as the pattern has; a zero before the point is not written where
/// the pattern has no `0` for it, so 0 by "###" is the empty text.
QString FormatNumber(double value, QStringView pattern);

} // namespace text
