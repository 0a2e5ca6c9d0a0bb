#pragma once

#include <QString>
#include <QStringView>

namespace text
{

/// The text without blanks (U+0020, U+3000) at both ends, at its beginning, at its end.
QString Trim(QStringView text);
QString LTrim(QStringView text);
QString RTrim(QStringView text);

/// The 1-based position of the last character that is neither a blank (U+0020), nor a full-width
/// blank (U+3000), nor NUL; 0 if there is none. Every fixed text field is cut here when it is read.
qsizetype LastSignificantPos(QStringView text);

/// A field of a fixed record: cut at LastSignificantPos, then trimmed.
QString FieldText(QStringView field);

/// A whole number with its thousands separated by commas ("#,##0").
QString GroupedNumber(qint64 value);

/// A number as text with its place for the sign: a blank in front unless it is negative.
QString SignedNumber(qint64 value);

} // namespace text
