#include "search/pure/composite_text.h"

#include "platform/text/fold.h"

namespace
{

/// Capitals one for one, so that positions stay what they were.
QString InCapitals(QString text)
{
    for (QChar &character : text)
        character = character.toUpper();
    return text;
}

QString Without(QString text, const QString &capital, const QString &small)
{
    return text.remove(capital).remove(small);
}

} // namespace

CompositeText TakeApart(const QString &typed)
{
    const QString meaningMarker = QStringLiteral("/T:"), exampleMarker = QStringLiteral("/E:");
    const auto withoutMeaningMarker = [&](const QString &part) {
        return Without(part, meaningMarker, QStringLiteral("/t:"));
    };
    const auto withoutExampleMarker = [&](const QString &part) {
        return Without(part, exampleMarker, QStringLiteral("/e:"));
    };
    const QString capitals = InCapitals(typed);
    const qsizetype example = text::TextFind(capitals, exampleMarker);
    const qsizetype meaning = text::TextFind(capitals, meaningMarker);
    CompositeText parts;
    if (example > 0 && meaning > example) {
        parts.wrongOrder = true;
    } else if (meaning > 0) {
        parts.word = typed.first(meaning - 1);
        const QString tail = capitals.sliced(meaning - 1);
        if (text::TextFind(tail, exampleMarker) == 0) {
            parts.meaning = withoutMeaningMarker(tail);
        } else {
            parts.meaning = withoutMeaningMarker(typed.sliced(meaning - 1, example - meaning));
            parts.example = withoutExampleMarker(typed.sliced(example - 1));
        }
    } else if (example > 0) {
        parts.word = typed.first(example - 1);
        parts.example = withoutExampleMarker(typed.sliced(example - 1));
    } else {
        parts.word = typed;
    }
    return parts;
}
