// A help file and a search text, divided by a zero byte: whatever they are, topics, index and search
// hold together.

#include "presentation/pure/help_index.h"
#include "presentation/pure/help_search.h"
#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto input =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const qsizetype divider = input.indexOf('\0');
    const HelpBook book = ReadHelpBook(divider < 0 ? input : input.first(divider));
    const QString typed = QString::fromUtf8(divider < 0 ? QByteArray() : input.sliced(divider + 1));
    Require(!book.isWhole || !book.topics.isEmpty());
    for (qsizetype i = 0; i < book.topics.size(); ++i) {
        Require(!book.topics[i].id.isEmpty() && !book.topics[i].title.isEmpty());
        Require(book.Find(book.topics[i].id) == i);
        Require(TopicPage(book, i).contains(book.topics[i].html));
    }
    const QList<HelpIndexEntry> index = HelpIndex(book);
    const qsizetype row = IndexRowFor(index, typed);
    Require(row >= -1 && row < index.size());
    const QStringList words = SearchWords(typed);
    for (const HelpHit &hit : SearchHelp(book, words)) {
        Require(hit.topic >= 0 && hit.topic < book.topics.size());
        Require(hit.count > 0);
    }
    return 0;
}
