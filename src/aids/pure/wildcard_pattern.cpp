#include "aids/pure/wildcard_pattern.h"

#include "platform/failure/runtime_error.h"
#include "platform/text/one_line.h"
#include "platform/text/trim.h"

namespace
{

const QChar kAnyText = u'%';
const QChar kOneCharacter = u'_';

QString Literal(const QString &typed)
{
    return text::Trim(text::OneLine(typed))
        .replace(kAnyText, QStringLiteral("[%]"))
        .replace(kOneCharacter, QStringLiteral("[_]"));
}

/// The number that a text begins with; 0 for none.
int LeadingNumber(const QString &text)
{
    constexpr int tooMany = 1000;
    int number = 0;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9' || number >= tooMany)
            break;
        number = 10 * number + (digit.unicode() - u'0');
    }
    return number;
}

QString GapPattern(const QString &gap)
{
    const int count = LeadingNumber(gap);
    return count < 1 ? QString(kAnyText) : QString(count, kOneCharacter);
}

/// Removes the character at `offset` within the first `pair`, if there is one.
void RemoveInFirst(QString &pattern, const QString &pair, qsizetype offset)
{
    const qsizetype place = pattern.indexOf(pair);
    if (place >= 0)
        pattern.remove(place + offset, 1);
}

} // namespace

QString WildcardPattern(const WildcardFields &fields)
{
    QString pattern = Literal(fields.start) + GapPattern(fields.firstGap) + Literal(fields.middle) +
                      GapPattern(fields.secondGap) + Literal(fields.end);
    CheckedTo<quint8>(pattern.size());
    // Two gaps with nothing between them are one.
    constexpr int joins = 3;
    for (int i = 0; i < joins; ++i)
        RemoveInFirst(pattern, QStringLiteral("%%"), 1);
    // A count of characters wins over an open gap beside it.
    RemoveInFirst(pattern, QStringLiteral("_%"), 1);
    if (pattern.startsWith(kAnyText))
        pattern.insert(1, kOneCharacter);
    if (pattern.endsWith(kAnyText))
        pattern.insert(pattern.size() - 1, kOneCharacter);
    return pattern == kAnyText ? QString() : pattern;
}
