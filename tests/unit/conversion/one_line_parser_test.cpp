#include "parsing.h"

using namespace Qt::StringLiterals;
using namespace parsing;

TEST(OneLineParser, TakesALineApart)
{
    constexpr GoodLine kLines[] = {
        {u"apple /// りんご", u"apple", u"", u"りんご", u""},
        {u"apple /// りんご\\ 林檎\\ アップル", u"apple", u"", u"りんご●林檎●アップル", u""},
        {u"New York /// ニューヨーク", u"New York", u"", u"ニューヨーク", u""},
        {u"a /// b /// c", u"a", u"", u"b /// c", u""},
        {u"apple /// ", u"apple", u"", u"", u""},
        {u" /// b", u"", u"", u"b", u""},
        {u" /// ", u"", u"", u"", u""},
        {u"　a　b　 ///  c ", u"a　b", u"", u" c ", u""},
        {u"a　／／／　b", u"a", u"", u"b", u""},
        {u"a //// b /// c", u"a //// b", u"", u"c", u""},
        {u"a\\ b /// c", u"a\\ b", u"", u"c", u""},
        {u"a /// b\\c", u"a", u"", u"b\\c", u""},
        {u"a /// \\\\  b", u"a", u"", u"\\● b", u""},
        {u"a /// b＼ c", u"a", u"", u"b＼ c", u""},
        {u"a /// b\\　c", u"a", u"", u"b\\　c", u""},
    };
    const auto parser = MakeOneLineParser();
    for (const GoodLine &line : kLines)
        ExpectEntry(parser->Parse(Text(line.line)), line);
}

TEST(OneLineParser, RejectsALineWithoutSeparator)
{
    const auto parser = MakeOneLineParser();
    for (const QString &line : {u"apple///りんご"_s, u""_s, u" "_s, u"a ///"_s, u"/// b"_s, u"a // / b"_s})
        EXPECT_FALSE(parser->Parse(line).has_value()) << line.toStdString();
}
