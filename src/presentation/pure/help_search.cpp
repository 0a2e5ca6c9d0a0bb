#include "presentation/pure/help_search.h"

#include <QRegularExpression>
#include <algorithm>

namespace
{

bool HoldsAll(const text::FoldedText &in, const QStringList &words)
{
    return std::all_of(words.begin(), words.end(), [&in](const QString &word) {
        return in.folded.find(text::Fold(word).folded) != std::u32string::npos;
    });
}

} // namespace

QStringList SearchWords(const QString &text)
{
    static const QRegularExpression blanks(QStringLiteral("[ \\x{3000}]+"));
    return text.split(blanks, Qt::SkipEmptyParts);
}

QList<HelpHit> SearchHelp(const HelpBook &book, const QStringList &words)
{
    if (words.isEmpty())
        return {};
    QList<HelpHit> inTitle, elsewhere;
    for (qsizetype i = 0; i < book.topics.size(); ++i) {
        const HelpTopic &topic = book.topics[i];
        if (!HoldsAll(topic.searchText, words))
            continue;
        const HelpHit hit{i, MatchesOf(words, topic.searchText).size()};
        (HoldsAll(text::Fold(topic.title), words) ? inTitle : elsewhere).append(hit);
    }
    const auto more = [](const HelpHit &left, const HelpHit &right) { return left.count > right.count; };
    std::stable_sort(inTitle.begin(), inTitle.end(), more);
    std::stable_sort(elsewhere.begin(), elsewhere.end(), more);
    return inTitle + elsewhere;
}

QList<text::Match> MatchesOf(const QStringList &words, const text::FoldedText &in)
{
    QList<text::Match> found;
    for (const QString &word : words) {
        const std::u32string needle = text::Fold(word).folded;
        if (needle.empty())
            continue;
        for (std::size_t at = in.folded.find(needle); at != std::u32string::npos;
             at = in.folded.find(needle, at + needle.size())) {
            const qsizetype begin = in.starts[at];
            found.append({begin + 1, in.starts[at + needle.size()] - begin});
        }
    }
    std::sort(found.begin(), found.end(), [](const text::Match &left, const text::Match &right) {
        return left.position != right.position ? left.position < right.position : left.length > right.length;
    });
    QList<text::Match> apart;
    for (const text::Match &match : std::as_const(found))
        if (apart.isEmpty() || match.position >= apart.constLast().position + apart.constLast().length)
            apart.append(match);
    return apart;
}
