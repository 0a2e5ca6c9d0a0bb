#include "platform/text/number_format.h"

#include <QLocale>
#include <cmath>

namespace text
{

namespace
{

constexpr qsizetype kGroupSize = 3;

/// The digits of a number that is not negative, rounded half away from zero: before and behind the
/// point.
struct Digits {
    QString whole, decimals;
};

Digits DigitsOf(double value, qsizetype decimals)
{
    // The shortest text that reads back as the number: what a user would round.
    QString exact = QString::number(value, 'f', QLocale::FloatingPointShortest);
    if (!exact.contains(u'.'))
        exact += u'.';
    const qsizetype point = exact.indexOf(u'.');
    const bool roundsUp = exact.size() > point + 1 + decimals && exact[point + 1 + decimals] >= u'5';
    QString digits = exact.left(point) + exact.mid(point + 1, decimals).leftJustified(decimals, u'0');
    qsizetype at = digits.size() - 1;
    for (; roundsUp && at >= 0 && digits[at] == u'9'; --at)
        digits[at] = u'0';
    if (roundsUp && at >= 0)
        digits[at] = QChar(digits[at].unicode() + 1);
    else if (roundsUp)
        digits.prepend(u'1');
    return {digits.chopped(decimals), digits.last(decimals)};
}

qsizetype AlwaysWritten(QStringView pattern) { return pattern.count(u'0'); }

QString WholePart(QString digits, QStringView pattern)
{
    while (digits.startsWith(u'0'))
        digits.remove(0, 1);
    digits = digits.rightJustified(AlwaysWritten(pattern), u'0');
    if (pattern.contains(u','))
        for (qsizetype at = digits.size() - kGroupSize; at > 0; at -= kGroupSize)
            digits.insert(at, u',');
    return digits;
}

QString DecimalPart(QString digits, QStringView pattern)
{
    const qsizetype least = pattern.lastIndexOf(u'0') + 1;
    while (digits.size() > least && digits.endsWith(u'0'))
        digits.chop(1);
    return digits;
}

} // namespace

QString FormatNumber(double value, QStringView pattern)
{
    const qsizetype point = pattern.indexOf(u'.');
    const QStringView whole = point < 0 ? pattern : pattern.first(point);
    const QStringView decimals = point < 0 ? QStringView() : pattern.sliced(point + 1);
    const Digits digits = DigitsOf(std::abs(value), decimals.size());
    QString text = WholePart(digits.whole, whole);
    if (point >= 0)
        text += u'.' + DecimalPart(digits.decimals, decimals);
    const bool isZero =
        (digits.whole + digits.decimals).count(u'0') == digits.whole.size() + digits.decimals.size();
    return value < 0 && !isZero ? u'-' + text : text;
}

} // namespace text
