#include "platform/text/trim.h"

#include <algorithm>

namespace text
{

namespace
{

constexpr qsizetype kGroupSize = 3;

bool IsBlank(QChar c) { return c == u' ' || c == u'\u3000'; }

QStringView WithoutBlanksBefore(QStringView text)
{
    const auto begin = std::find_if_not(text.begin(), text.end(), IsBlank);
    return text.sliced(begin - text.begin());
}

QStringView WithoutBlanksBehind(QStringView text)
{
    while (!text.isEmpty() && IsBlank(text.back()))
        text.chop(1);
    return text;
}

} // namespace

QString Trim(QStringView text) { return WithoutBlanksBehind(WithoutBlanksBefore(text)).toString(); }

QString LTrim(QStringView text) { return WithoutBlanksBefore(text).toString(); }

QString RTrim(QStringView text) { return WithoutBlanksBehind(text).toString(); }

qsizetype LastSignificantPos(QStringView text)
{
    qsizetype position = text.size();
    while (position > 0 && (IsBlank(text[position - 1]) || text[position - 1].isNull()))
        --position;
    return position;
}

QString FieldText(QStringView field) { return Trim(field.first(LastSignificantPos(field))); }

QString GroupedNumber(qint64 value)
{
    QString digits = QString::number(value);
    const qsizetype firstDigit = value < 0 ? 1 : 0;
    for (qsizetype at = digits.size() - kGroupSize; at > firstDigit; at -= kGroupSize)
        digits.insert(at, u',');
    return digits;
}

QString SignedNumber(qint64 value)
{
    const QString digits = QString::number(value);
    return value < 0 ? digits : u' ' + digits;
}

} // namespace text
