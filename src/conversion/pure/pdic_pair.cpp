#include "conversion/pure/source_format.h"
#include "platform/text/trim.h"

SourceEntry ParsePdicPair(const QString &headwordLine, const QString &translationLine, QString &lastWord)
{
    const QString headword = text::Trim(headwordLine);
    if (!headword.isEmpty())
        lastWord = headword;
    SourceEntry entry;
    entry.Word = text::Trim(lastWord);
    entry.Description = text::Trim(translationLine);
    return entry;
}
