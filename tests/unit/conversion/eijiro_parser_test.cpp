#include "parsing.h"

#include "conversion/pure/stored_row.h"
#include "core/pure/record_rules.h"

using namespace Qt::StringLiterals;
using namespace parsing;

TEST(EijiroParser, TakesALineApart)
{
    constexpr GoodLine kLines[] = {
        {u"■abandon  {動-1} : 〔計画などを〕断念する、中止する", u"abandon", u"",
         u"{動-1} : 〔計画などを〕断念する、中止する", u""},
        {u"■ice cream : アイスクリーム / 【用例】 ice cream cone", u"ice cream", u"", u"アイスクリーム",
         u"ice cream cone"},
        {u"■kick the bucket  {句} : 死ぬ / 【用例】：He kicked the bucket.", u"kick the bucket", u"",
         u"{句} : 死ぬ", u"He kicked the bucket."},
        {u"■apple : 【発音】aepl、【＠】アプル、【変化】《複》apples", u"apple", u"aepl",
         u"【＠】アプル、【変化】《複》apples", u""},
        {u"■apple : 【レベル】1、【発音！】aepl、【＠】アプル、【変化】《複》apples", u"apple",
         u"aepl、【＠】アプル", u"【変化】《複》apples", u""},
        {u"■zebra : 【発音】zi:bra", u"zebra", u"zi:bra", u"", u""},
        {u"■big deal : 【発音】big di:l", u"big deal", u"big di:l", u"", u""},
        {u"■cat : あいうえおかきくけこ【発音】kaet、ネコ", u"cat", u"kaet、ネコ", u"", u""},
        {u"■dog : イヌ / 【用例 dog food", u"dog", u"", u"イヌ", u"ヌ / 【用例 dog food"},
        {u"■tea : 茶 / 【用例】 a cup of tea、お茶 / 【用例】 green tea", u"tea", u"", u"茶",
         u"a cup of tea、お茶 / 【用例】 green tea"},
        {u"■x {y : z", u"x", u"", u"{y : z", u""},
        {u"■ : 空", u"", u"", u"空", u""},
        // The brace wins wherever it stands, also behind a colon.
        {u"■a : b {c", u"a : b", u"", u"{c", u""},
        {u"■ {c", u"", u"", u"{c", u""},
        {u"■a :  b ", u"a", u"", u" b ", u""},
        {u"■a : ", u"a", u"", u"", u""},
        {u"■a  : b : c", u"a", u"", u"b : c", u""},
        {u"■　a　 : b", u"a", u"", u"b", u""},
        // Markers are searched whatever their width and case are.
        {u"■a｛b : c", u"a｛b", u"", u"c", u""},
        {u"■a　｛b", u"a", u"", u"｛b", u""},
        {u"■a　：　b", u"a", u"", u"b", u""},
        {u"■a : 【発音】b､c", u"a", u"b", u"c", u""},
        {u"■a : b　／　【用例】 c", u"a", u"", u"b", u"c"},
        // Every emphatic mark becomes the plain one; the first counts.
        {u"■a : 【発音！】b、c【発音！】d", u"a", u"b", u"c【発音】d", u""},
        {u"■a : 【発音!】b、c", u"a", u"", u"【発音!】b、c", u""},
        // The search for the end of the pronunciation begins at the mark's old position.
        {u"■a : xx【発音】b、c、d", u"a", u"b、c", u"d", u""},
        {u"■a : x【発音】b、c、d", u"a", u"b", u"c、d", u""},
        {u"■a : x【発音】、c", u"a", u"、c", u"", u""},
        {u"■a : 【発音】、c", u"a", u"", u"c", u""},
        {u"■a : 【発音】", u"a", u"", u"", u""},
        {u"■a : 【発音】b、", u"a", u"b", u"", u""},
        // Without the end of a pronunciation the example stays in it.
        {u"■a : 【発音】b / 【用例】 c", u"a", u"b / 【用例】 c", u"", u""},
        {u"■a : 【発音】b、c / 【用例】 d", u"a", u"b", u"c", u"d"},
        {u"■a : 【発音】b / 【用例】 c、d", u"a", u"b / 【用例】 c", u"d", u""},
        {u"■a : b / 【用例】", u"a", u"", u"b", u""},
        {u"■a : b / 【用例】c", u"a", u"", u"b", u""},
        {u"■a : b / 【用例・会話】c d", u"a", u"", u"b", u" d"},
        {u"■a : 【名】b / 【用例 c】 d ", u"a", u"", u"【名】b", u"d "},
        {u"■a : / 【用例】 b", u"a", u"", u"/ 【用例】 b", u""},
        {u"■a :  / 【用例】 b", u"a", u"", u"", u"b"},
        {u"■■ : b", u"■", u"", u"b", u""},
    };
    const auto parser = MakeEijiroParser();
    for (const GoodLine &line : kLines)
        ExpectEntry(parser->Parse(Text(line.line)), line);
}

TEST(EijiroParser, RejectsALineWithoutMarkOrSeparator)
{
    const auto parser = MakeEijiroParser();
    for (const QString &line : {u"■noseparator"_s, u"apple : りんご"_s, u""_s, u"■"_s, u" ■a : b"_s,
                                u"□a : b"_s, u"■a:b"_s, u"■a{b"_s, u"■a :"_s, u"■a：b"_s})
        EXPECT_FALSE(parser->Parse(line).has_value()) << line.toStdString();
}

TEST(EijiroParser, TellsWordsFromPhrases)
{
    const auto parser = MakeEijiroParser();
    const auto kindOf = [&parser](const QString &line) { return RowOf(*parser->Parse(line)).WordPhrase; };
    EXPECT_EQ(kindOf(u"■abandon  {動-1} : 断念する"_s), kWord);
    EXPECT_EQ(kindOf(u"■ice cream : アイスクリーム"_s), kPhrase);
    EXPECT_EQ(kindOf(u"■ice-cream : アイスクリーム"_s), kWord);
    EXPECT_EQ(kindOf(u"■ : 空"_s), kWord);
}

TEST(EijiroParser, KeepsLongLines)
{
    const QString body(40000, u'あ');
    const auto entry = MakeEijiroParser()->Parse(u"■a : "_s + body);
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->Description, body);
}
