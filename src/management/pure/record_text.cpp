#include "management/pure/record_text.h"

#include "platform/text/trim.h"

namespace
{

bool Differ(const QString &now, const QString &shown) { return text::Trim(now) != text::Trim(shown); }

} // namespace

std::uint8_t DirtyKindOf(const RecordText &now, const RecordText &shown)
{
    if (Differ(now.word, shown.word))
        return WordChanged;
    const bool fieldChanged = Differ(now.pronunciation, shown.pronunciation) ||
                              Differ(now.description, shown.description) ||
                              Differ(now.example, shown.example) || now.wordPhrase != shown.wordPhrase;
    return fieldChanged ? FieldChanged : NothingChanged;
}

bool HoldsText(const RecordText &now)
{
    for (const QString &field : {now.word, now.pronunciation, now.description, now.example})
        if (!text::Trim(field).isEmpty())
            return true;
    return false;
}

int WordPhraseOfWord(const QString &word) { return text::Trim(word).contains(u' ') ? 2 : 1; }

QString WordStatement(const QString &word)
{
    return QStringLiteral("SELECT TOP 1 * FROM Dictionary WHERE Word = '") + word + u'\'';
}

QString BeginningStatement(const QString &escaped)
{
    return QStringLiteral("SELECT TOP 1 * FROM Dictionary WHERE Word like '") + escaped +
           (escaped.size() == 1 ? QStringLiteral("%'") : QStringLiteral("%' ORDER BY Word ASC"));
}
