#include "parsing.h"

using namespace Qt::StringLiterals;
using namespace parsing;

TEST(CsvParser, TakesALineApart)
{
    constexpr GoodLine kLines[] = {
        {u"\"ice cream\",\"aiskri:m\",\"アイスクリーム\",\"ice cream cone\"", u"ice cream", u"aiskri:m",
         u"アイスクリーム", u"ice cream cone"},
        {u"\"apple\",\"\",\"りんご\",\"\"", u"apple", u"", u"りんご", u""},
        {u"\"a,b\",\"\",\"x\",\"y\"", u"a,b", u"", u"x", u"y"},
        {u"\"a\",\"b\",\"c\",\"d\",\"e\"", u"a", u"b", u"c", u"d\",\"e"},
        {u"\"\",\"\",\"\",\"\"", u"", u"", u"", u""},
        {u" 　\"a\",\"b\",\"c\",\"d\" 　", u"a", u"b", u"c", u"d"},
        {u"\" a \",\" b \",\" c \",\" d \"", u"a", u" b ", u" c ", u" d "},
        {u"\"a\"\"b\",\"c\",\"d\",\"e\"", u"a\"\"b", u"c", u"d", u"e"},
        {u"\"a\"，\"b\"，\"c\"，\"d\"", u"a", u"b", u"c", u"d"},
        {u"\"a\" ,\"b\",\"c\",\"d\",\"e\"", u"a\" ,\"b", u"c", u"d", u"e"},
        {u"\"a\",\",\"b\",\"c\",\"d\"", u"a", u",\"b", u"c", u"d"},
    };
    const auto parser = MakeCsvParser();
    for (const GoodLine &line : kLines)
        ExpectEntry(parser->Parse(Text(line.line)), line);
}

TEST(CsvParser, RejectsALineThatIsNotQuotedThrough)
{
    const auto parser = MakeCsvParser();
    for (const QString &line :
         {u"\"a\",\"b\",\"c\""_s, u"apple,b,c,d"_s, u"\"a\",\"b\",\"c\" x"_s, u"x \"a\",\"b\",\"c\",\"d\""_s,
          u"\"\""_s, u"aa"_s, u"\"a"_s, u"a\""_s, u"\"\"\"\"\"\"\"\""_s, u"\"a\";\"b\";\"c\";\"d\""_s,
          u"“a”,“b”,“c”,“d”"_s, u"＂a＂,＂b＂,＂c＂,＂d＂"_s})
        EXPECT_FALSE(parser->Parse(line).has_value()) << line.toStdString();
}

TEST(CsvParser, FailsOnALineWithoutASecondCharacter)
{
    const auto parser = MakeCsvParser();
    for (const QString &line : {u""_s, u" "_s, u"　 "_s, u"a"_s, u"\""_s, u" \" "_s})
        ExpectFailure(*parser, line, RuntimeError::InvalidCall);
}

TEST(CsvParser, CountsQuoteMarksInAByte)
{
    const auto lineOf = [](int quotes) {
        return u"\"a\",\"b\",\"c\",\"d"_s + QString(quotes - 8, u'"') + u'"';
    };
    const auto parser = MakeCsvParser();
    const auto entry = parser->Parse(lineOf(255));
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->Example, u"d"_s + QString(247, u'"'));
    ExpectFailure(*parser, lineOf(256), RuntimeError::Overflow);
    // A line that is not quoted at both ends is not counted.
    EXPECT_FALSE(parser->Parse(u'x' + lineOf(300)).has_value());
}

TEST(CsvParser, KeepsPositionsOfAnEarlierLine)
{
    // Eight quote marks, but one or two separators only.
    const QString one = u"\"a\",\"bcdefghijk\"\"\"\"\""_s;
    const QString two = u"\"a\",\"b\",\"cdefghijk\"\"\""_s;
    ExpectFailure(*MakeCsvParser(), one, RuntimeError::InvalidCall);
    ExpectFailure(*MakeCsvParser(), two, RuntimeError::InvalidCall);

    const auto parser = MakeCsvParser();
    ASSERT_TRUE(parser->Parse(u"\"a\",\"bb\",\"ccc\",\"d\""_s).has_value()); // separators at 3, 8, 14
    ExpectEntry(parser->Parse(one), {u"one separator", u"a", u"bc", u"ghi", u"\"\"\""});
    ExpectEntry(parser->Parse(two), {u"two separators", u"a", u"b", u"cdef", u"jk\"\""});
    // The positions that the second line found are kept in turn.
    ExpectEntry(parser->Parse(one), {u"again one", u"a", u"b", u"fghi", u"\"\"\""});
}

TEST(CsvParser, FailsOnANegativeLength)
{
    const auto parser = MakeCsvParser();
    ASSERT_TRUE(parser->Parse(u"\"a\",\"bbbbbbbbbb\",\"cccccccccc\",\"d\""_s).has_value()); // at 3, 16, 29
    // Shorter than the third position that is kept.
    ExpectFailure(*parser, u"\"\",\"\"\"\"\"\""_s, RuntimeError::InvalidCall);
    // Kept positions in front of the only separator.
    const auto early = MakeCsvParser();
    ASSERT_TRUE(early->Parse(u"\"a\",\"b\",\"c\",\"d\""_s).has_value()); // at 3, 7, 11
    ExpectFailure(*early, u"\"aaaaaaaaaaaaaaaaaaaaaaaa\",\"b\"\"\"\"\""_s, RuntimeError::InvalidCall);
    // A separator at the very beginning.
    ExpectFailure(*MakeCsvParser(), u"\",\"a\",\"b\",\"c\"\""_s, RuntimeError::InvalidCall);
}

TEST(CsvParser, HoldsPositionsIn16Bits)
{
    const auto lineOf = [](qsizetype third) {
        return u"\"a\",\"b\",\""_s + QString(third - 10, u'c') + u"\",\"d\""_s;
    };
    const auto parser = MakeCsvParser();
    const auto entry = parser->Parse(lineOf(32767));
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->Description, QString(32757, u'c'));
    ExpectFailure(*parser, lineOf(32768), RuntimeError::Overflow);
    ExpectFailure(*parser, u"\"a\",\""_s + QString(40000, u'b') + u"\",\"c\",\"d\""_s,
                  RuntimeError::Overflow);
    // What lies behind the last separator is not limited.
    const auto longLast = parser->Parse(u"\"a\",\"b\",\"c\",\""_s + QString(40000, u'd') + u'"');
    ASSERT_TRUE(longLast.has_value());
    EXPECT_EQ(longLast->Example.size(), 40000);
}
