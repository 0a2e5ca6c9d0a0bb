#include "search/pure/list_statement.h"

#include "core/pure/search_modes.h"

#include <gtest/gtest.h>
#include <string>

namespace
{

ListRequest Request(int mode, int target, int kind)
{
    return {mode, target, kind, 500, QStringLiteral("W"), QStringLiteral("D"), QStringLiteral("E")};
}

std::string StatementOf(int mode, int target, int kind)
{
    return ListStatement(Request(mode, target, kind)).toStdString();
}

} // namespace

TEST(WordPatternFor, OpensThePatternWhereTheModeDoes)
{
    struct Case {
        int mode;
        const char16_t *word, *pattern;
    };
    constexpr Case cases[] = {
        {ModePrefix, u"abc", u"abc%_%"},        {ModeMiddle, u"abc", u"%_%abc%_%"},
        {ModeSuffix, u"abc", u"%_%abc"},        {ModeMeaning, u"abc", u"%abc%"},
        {ModeExample, u"abc", u"%abc%"},        {ModeWildcard, u"abc", u"abc"},
        {ModePrefix, u"50%", u"50[%]%_%"},      {ModeMiddle, u"a_b", u"%_%a[_]b%_%"},
        {ModeSuffix, u"it's", u"%_%it''s"},     {ModeMeaning, u"100%_'", u"%100[%][_]''%"},
        {ModeExample, u"[a", u"%[a%"},          {ModeWildcard, u"50%", u"50%"},
        {ModeWildcard, u"_[a-c]%", u"_[a-c]%"}, {ModeWildcard, u"it's", u"it''s"},
        {ModePrefix, u"[a-c]x", u"[a-c]x%_%"},  {ModePrefix, u"  ", u"  %_%"},
        {ModeWildcard, u"''", u"''''"},         {ModeMiddle, u"%%", u"%_%[%][%]%_%"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(WordPatternFor(c.mode, QString::fromUtf16(c.word)), QString::fromUtf16(c.pattern))
            << c.mode << ' ' << QString::fromUtf16(c.word).toStdString();
}

TEST(ContainsPattern, IsOpenOnBothSidesAndLiteralBetween)
{
    EXPECT_EQ(ContainsPattern(QString()), QStringLiteral("%%"));
    EXPECT_EQ(ContainsPattern(QStringLiteral("a%_'[")), QStringLiteral("%a[%][_]''[%"));
}

TEST(CompositeKindFor, CountsWhatIsNotBlankInTheModesOfHeadwords)
{
    for (const int mode : {ModePrefix, ModeMiddle, ModeSuffix, ModeWildcard}) {
        EXPECT_EQ(CompositeKindFor(mode, QString(), QString()), 0);
        EXPECT_EQ(CompositeKindFor(mode, QStringLiteral("x"), QString()), 1);
        EXPECT_EQ(CompositeKindFor(mode, QString(), QStringLiteral("y")), 2);
        EXPECT_EQ(CompositeKindFor(mode, QStringLiteral("x"), QStringLiteral("y")), 3);
        EXPECT_EQ(CompositeKindFor(mode, QStringLiteral(" 　"), QStringLiteral("　 ")), 0);
        EXPECT_EQ(CompositeKindFor(mode, QStringLiteral(" x "), QStringLiteral(" ")), 1);
    }
    for (const int mode : {ModeIncremental, ModeMeaning, ModeExample})
        EXPECT_EQ(CompositeKindFor(mode, QStringLiteral("x"), QStringLiteral("y")), 0) << mode;
}

TEST(ListStatement, HasTwelveShapesOverHeadwords)
{
    const char *const conditions[3][4] = {
        {"Word Like 'W'", "Word Like 'W' AND Description Like 'D'", "Word Like 'W' AND Example Like 'E'",
         "Word Like 'W' AND Description Like 'D' AND Example Like 'E'"},
        {"WordPhrase = 1 AND Word Like 'W'", "WordPhrase = 1 AND Word Like 'W' AND Description Like 'D'",
         "WordPhrase = 1 AND Word Like 'W' AND Example Like 'E'",
         "WordPhrase = 1 AND Word Like 'W' AND Description Like 'D' AND Example Like 'E'"},
        {"WordPhrase = 2 AND Word Like 'W'", "WordPhrase = 2 AND Word Like 'W' AND Description Like 'D'",
         "WordPhrase = 2 AND Word Like 'W' AND Example Like 'E'",
         "WordPhrase = 2 AND Word Like 'W' AND Description Like 'D' AND Example Like 'E'"},
    };
    for (const int mode : {ModePrefix, ModeMiddle, ModeSuffix, ModeWildcard})
        for (int target = 0; target < 3; ++target)
            for (int kind = 0; kind < 4; ++kind)
                EXPECT_EQ(StatementOf(mode, target, kind),
                          std::string("SELECT TOP 500 * FROM Dictionary WHERE ") + conditions[target][kind] +
                              " ORDER BY Word ASC");
}

TEST(ListStatement, HasSixShapesOverTextsWithoutAnOrder)
{
    const char *const expected[2][3] = {
        {"SELECT TOP 500 * FROM Dictionary WHERE Description Like 'W'",
         "SELECT TOP 500 * FROM Dictionary WHERE WordPhrase = 1 AND Description Like 'W'",
         "SELECT TOP 500 * FROM Dictionary WHERE WordPhrase = 2 AND Description Like 'W'"},
        {"SELECT TOP 500 * FROM Dictionary WHERE Example Like 'W'",
         "SELECT TOP 500 * FROM Dictionary WHERE WordPhrase = 1 AND Example Like 'W'",
         "SELECT TOP 500 * FROM Dictionary WHERE WordPhrase = 2 AND Example Like 'W'"},
    };
    for (int target = 0; target < 3; ++target) {
        EXPECT_EQ(StatementOf(ModeMeaning, target, 0), expected[0][target]);
        EXPECT_EQ(StatementOf(ModeExample, target, 0), expected[1][target]);
    }
}

TEST(ListStatement, TakesTheNumberOfRowsInDecimal)
{
    for (const int maximum : {1, 500, 32767}) {
        ListRequest request = Request(ModePrefix, 0, 0);
        request.maximum = maximum;
        EXPECT_EQ(ListStatement(request).toStdString(),
                  "SELECT TOP " + std::to_string(maximum) +
                      " * FROM Dictionary WHERE Word Like 'W' ORDER BY Word ASC");
    }
}
