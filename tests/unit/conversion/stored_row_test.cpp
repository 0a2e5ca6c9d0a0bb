#include "conversion/pure/stored_row.h"

#include "core/pure/record_rules.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(StoredRow, CutsEveryTextAtItsColumn)
{
    const StoredRow row =
        RowOf({QString(256, u'a'), QString(65, u'b'), QString(1025, u'c'), QString(1025, u'd')});
    EXPECT_EQ(row.Word, QString(255, u'a'));
    EXPECT_EQ(row.Pronunciation, QString(64, u'b'));
    EXPECT_EQ(row.Description, QString(1024, u'c'));
    EXPECT_EQ(row.Example, QString(1024, u'd'));
    const StoredRow whole =
        RowOf({QString(255, u'a'), QString(64, u'b'), QString(1024, u'c'), QString(1024, u'd')});
    EXPECT_EQ(whole.Word + whole.Pronunciation + whole.Description + whole.Example,
              row.Word + row.Pronunciation + row.Description + row.Example);
}

TEST(StoredRow, TrimsHeadwordAndPronunciationAlone)
{
    const StoredRow row = RowOf({u" 　a b　 "_s, u" 　c　 "_s, u" d "_s, u"　e　"_s});
    EXPECT_EQ(row.Word, u"a b"_s);
    EXPECT_EQ(row.Pronunciation, u"c"_s);
    EXPECT_EQ(row.Description, u" d "_s);
    EXPECT_EQ(row.Example, u"　e　"_s);
}

TEST(StoredRow, HoldsNoNull)
{
    const StoredRow row = RowOf({});
    for (const QString &text : {row.Word, row.Pronunciation, row.Description, row.Example}) {
        EXPECT_TRUE(text.isEmpty());
        EXPECT_FALSE(text.isNull());
    }
}

TEST(StoredRow, TellsTheWholeHeadwordFromAPhrase)
{
    EXPECT_EQ(RowOf({QString(300, u'a'), {}, {}, {}}).WordPhrase, kWord);
    // The blank counts, though the column does not take it.
    EXPECT_EQ(RowOf({QString(300, u'a') + u" b"_s, {}, {}, {}}).WordPhrase, kPhrase);
    EXPECT_EQ(RowOf({u" a "_s, {}, {}, {}}).WordPhrase, kWord);
}

TEST(StoredRow, SplitsNoSurrogatePair)
{
    const QString smile = u"\U0001F600"_s;
    EXPECT_EQ(RowOf({QString(254, u'a') + smile, {}, {}, {}}).Word, QString(254, u'a'));
    EXPECT_EQ(RowOf({QString(253, u'a') + smile + u'b', {}, {}, {}}).Word, QString(253, u'a') + smile);
    EXPECT_EQ(TakenLength(smile, 1), 0);
    EXPECT_EQ(TakenLength(smile, 0), 0);
    EXPECT_EQ(TakenLength(smile.first(1) + u"ab"_s, 1), 1);
}
