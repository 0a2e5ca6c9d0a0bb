#include "presentation/pure/help_index.h"

#include "platform/text/trim.h"

#include <algorithm>

namespace
{

bool BeginsWith(const QString &text, const std::u32string &foldedBegin)
{
    return text::Fold(text).folded.starts_with(foldedBegin);
}

template <typename Condition>
qsizetype FirstRow(const QList<HelpIndexEntry> &index, const Condition &condition)
{
    const auto row = std::find_if(index.begin(), index.end(), condition);
    return row == index.end() ? -1 : row - index.begin();
}

/// Words that share a row's word tell by the title which topic is meant.
void LabelRows(const HelpBook &book, QList<HelpIndexEntry> &index)
{
    for (qsizetype i = 0; i < index.size(); ++i) {
        const QString &word = index[i].word;
        const bool isShared =
            (i > 0 && index[i - 1].word == word) || (i + 1 < index.size() && index[i + 1].word == word);
        index[i].label =
            isShared ? word + QStringLiteral("（") + book.topics[index[i].topic].title + u'）' : word;
    }
}

} // namespace

QList<HelpIndexEntry> HelpIndex(const HelpBook &book)
{
    QList<HelpIndexEntry> index;
    for (qsizetype i = 0; i < book.topics.size(); ++i)
        for (const HelpKeyword &keyword : book.topics[i].keywords)
            index.append({keyword.word, keyword.reading, {}, i});
    std::stable_sort(index.begin(), index.end(), [](const HelpIndexEntry &left, const HelpIndexEntry &right) {
        const int byReading = text::Compare(left.reading, right.reading);
        return byReading != 0 ? byReading < 0 : text::Compare(left.word, right.word) < 0;
    });
    LabelRows(book, index);
    return index;
}

qsizetype IndexRowFor(const QList<HelpIndexEntry> &index, const QString &typed)
{
    const QString wanted = text::Trim(typed);
    if (wanted.isEmpty() || index.isEmpty())
        return -1;
    const std::u32string folded = text::Fold(wanted).folded;
    qsizetype row = FirstRow(index, [&](const HelpIndexEntry &entry) {
        return BeginsWith(entry.word, folded) || BeginsWith(entry.reading, folded);
    });
    if (row < 0)
        row = FirstRow(index, [&](const HelpIndexEntry &entry) {
            return text::TextFind(entry.word, wanted) > 0 || text::TextFind(entry.reading, wanted) > 0;
        });
    if (row < 0)
        row = FirstRow(index,
                       [&](const HelpIndexEntry &entry) { return text::Compare(entry.reading, wanted) > 0; });
    return row < 0 ? index.size() - 1 : row;
}
