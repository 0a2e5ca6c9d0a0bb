#include "conversion/pure/stored_row.h"

#include "core/pure/record_rules.h"
#include "platform/text/trim.h"

namespace
{

QString Taken(const QString &text, qsizetype length)
{
    const qsizetype taken = TakenLength(text, length);
    if (taken == 0)
        return QStringLiteral("");
    return taken == text.size() ? text : text.first(taken);
}

} // namespace

qsizetype TakenLength(QStringView text, qsizetype length)
{
    if (text.size() <= length)
        return text.size();
    const bool splitsPair = length > 0 && text[length - 1].isHighSurrogate() && text[length].isLowSurrogate();
    return splitsPair ? length - 1 : length;
}

StoredRow RowOf(const SourceEntry &entry)
{
    const QString word = text::Trim(entry.Word);
    return {Taken(word, kWordLength), Taken(text::Trim(entry.Pronunciation), kPronunciationLength),
            WordPhraseRule(word), Taken(entry.Description, kDescriptionLength),
            Taken(entry.Example, kExampleLength)};
}
