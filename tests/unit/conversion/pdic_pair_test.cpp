#include "parsing.h"

using namespace Qt::StringLiterals;

TEST(PdicPair, TakesAPairOfLinesInTurn)
{
    struct Pair {
        QString headwordLine;
        QString translationLine;
        QString word;
        QString description;
    };
    const Pair pairs[] = {
        {u""_s, u"りんご"_s, u""_s, u"りんご"_s},
        {u"apple"_s, u"りんご"_s, u"apple"_s, u"りんご"_s},
        {u""_s, u"林檎"_s, u"apple"_s, u"林檎"_s},
        {u" 　 "_s, u"アップル"_s, u"apple"_s, u"アップル"_s},
        {u"New York"_s, u"ニューヨーク"_s, u"New York"_s, u"ニューヨーク"_s},
        {u"　 a　b 　"_s, u" 　c d　 "_s, u"a　b"_s, u"c d"_s},
        {u""_s, u""_s, u"a　b"_s, u""_s},
        {u"e"_s, u"　"_s, u"e"_s, u""_s},
        {u"■f : g"_s, u"【発音】h、i"_s, u"■f : g"_s, u"【発音】h、i"_s},
        {u"\"j\",\"k\""_s, u"l /// m"_s, u"\"j\",\"k\""_s, u"l /// m"_s},
    };
    QString lastWord;
    for (const Pair &pair : pairs) {
        const SourceEntry entry = ParsePdicPair(pair.headwordLine, pair.translationLine, lastWord);
        EXPECT_EQ(entry.Word, pair.word);
        EXPECT_EQ(entry.Description, pair.description);
        EXPECT_EQ(entry.Pronunciation + entry.Example, u""_s);
        EXPECT_EQ(lastWord, pair.word);
    }
}
