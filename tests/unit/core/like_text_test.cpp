#include "search/pure/like_text.h"

#include <gtest/gtest.h>

TEST(EscapeForLike, MakesWildcardsLiteralAndDoublesQuotes)
{
    struct Case {
        const char16_t *typed, *escaped;
    };
    constexpr Case cases[] = {
        {u"", u""},          {u"abc", u"abc"},     {u"50%", u"50[%]"},    {u"a_b", u"a[_]b"},
        {u"it's", u"it''s"}, {u"[a-z]", u"[a-z]"}, {u"%_'", u"[%][_]''"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(EscapeForLike(QString::fromUtf16(c.typed)), QString::fromUtf16(c.escaped));
}

TEST(LimitedIncrementalStatement, SpellsItselfForWordsAndPhrases)
{
    EXPECT_EQ(LimitedIncrementalStatement(1, QStringLiteral("it's"), 50),
              QStringLiteral("SELECT TOP 50 * FROM Dictionary WHERE WordPhrase = 1 AND Word like 'it''s%' "
                             "ORDER BY Word, AutoID ASC"));
    EXPECT_EQ(LimitedIncrementalStatement(2, QStringLiteral("a b "), 7),
              QStringLiteral("SELECT TOP 7 * FROM Dictionary WHERE WordPhrase = 2 AND Word like 'a b %' "
                             "ORDER BY Word, AutoID ASC"));
}
