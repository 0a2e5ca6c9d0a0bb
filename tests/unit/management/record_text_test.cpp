#include "management/pure/record_text.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

const RecordText kShown{u"cat"_s, u"kæt"_s, u"猫\r\n二"_s, u""_s, 1};

struct Dirty {
    const char *what;
    RecordText now;
    std::uint8_t kind;
};

TEST(RecordText, TellsWhatChanged)
{
    const Dirty table[] = {
        {"nothing", kShown, NothingChanged},
        {"blanks around", {u" cat\u3000"_s, u"kæt "_s, u" 猫\r\n二"_s, u" "_s, 1}, NothingChanged},
        {"pronunciation", {u"cat"_s, u""_s, u"猫\r\n二"_s, u""_s, 1}, FieldChanged},
        {"meaning", {u"cat"_s, u"kæt"_s, u"猫\r\n三"_s, u""_s, 1}, FieldChanged},
        {"blanks within", {u"cat"_s, u"kæt"_s, u"猫 \r\n二"_s, u""_s, 1}, FieldChanged},
        {"example", {u"cat"_s, u"kæt"_s, u"猫\r\n二"_s, u"x"_s, 1}, FieldChanged},
        {"kind", {u"cat"_s, u"kæt"_s, u"猫\r\n二"_s, u""_s, 2}, FieldChanged},
        {"word", {u"dog"_s, u"kæt"_s, u"猫\r\n二"_s, u""_s, 1}, WordChanged},
        {"case of the word", {u"Cat"_s, u"kæt"_s, u"猫\r\n二"_s, u""_s, 1}, WordChanged},
        {"the word wins", {u"dog"_s, u"x"_s, u"y"_s, u"z"_s, 2}, WordChanged},
        {"an end of a line is no blank", {u"cat"_s, u"kæt"_s, u"猫\r\n二\r\n"_s, u""_s, 1}, FieldChanged},
    };
    for (const Dirty &row : table)
        EXPECT_EQ(DirtyKindOf(row.now, kShown), row.kind) << row.what;
}

TEST(RecordText, BlanksAreNoInput)
{
    EXPECT_FALSE(HoldsText({}));
    EXPECT_FALSE(HoldsText({u" "_s, u"\u3000"_s, u"  "_s, u""_s, 2}));
    EXPECT_TRUE(HoldsText({u"a"_s, {}, {}, {}}));
    EXPECT_TRUE(HoldsText({{}, u"a"_s, {}, {}}));
    EXPECT_TRUE(HoldsText({{}, {}, u"a"_s, {}}));
    EXPECT_TRUE(HoldsText({{}, {}, {}, u"a"_s}));
}

TEST(RecordText, AHalfWidthBlankWithinMakesAPhrase)
{
    EXPECT_EQ(WordPhraseOfWord(u"cat"_s), 1);
    EXPECT_EQ(WordPhraseOfWord(u" cat "_s), 1);
    EXPECT_EQ(WordPhraseOfWord(u"cat nap"_s), 2);
    EXPECT_EQ(WordPhraseOfWord(u"猫\u3000昼寝"_s), 1);
}

TEST(RecordText, StatementsLookForTheWordAndItsBeginning)
{
    EXPECT_EQ(WordStatement(u"it's"_s), u"SELECT TOP 1 * FROM Dictionary WHERE Word = 'it's'"_s);
    EXPECT_EQ(BeginningStatement(u"ca"_s),
              u"SELECT TOP 1 * FROM Dictionary WHERE Word like 'ca%' ORDER BY Word ASC"_s);
    EXPECT_EQ(BeginningStatement(u"c"_s), u"SELECT TOP 1 * FROM Dictionary WHERE Word like 'c%'"_s);
    EXPECT_EQ(BeginningStatement(u"[%]"_s),
              u"SELECT TOP 1 * FROM Dictionary WHERE Word like '[%]%' ORDER BY Word ASC"_s);
    EXPECT_EQ(BeginningStatement({}),
              u"SELECT TOP 1 * FROM Dictionary WHERE Word like '%' ORDER BY Word ASC"_s);
}

} // namespace
