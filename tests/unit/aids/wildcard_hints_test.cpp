#include "aids/pure/wildcard_hints.h"

#include <gtest/gtest.h>

namespace
{

const QString kFromFirst = QStringLiteral("見出し語の最初の文字から");
const QString kToLast = QStringLiteral("最後の文字までの文字数が");

QString T(const char16_t *text) { return QString::fromUtf16(text); }

HintTexts Texts(const char16_t *start, const char16_t *middle, const char16_t *end)
{
    return {T(start), T(middle), T(end)};
}

} // namespace

TEST(WildcardHints, BeginAtTheWholeHeadword)
{
    EXPECT_EQ(FirstHintAtLoad(), T(u"見出し語の文字数が\r\n"));
    EXPECT_EQ(HintsAtLoad(), (WildcardHints{kFromFirst, kToLast, QString(), kToLast, false}));
}

TEST(WildcardHints, FollowTheStart)
{
    WildcardHints hints = HintsAfterStart(HintsAtLoad(), Texts(u"ab", u"", u""));
    EXPECT_EQ(hints, (WildcardHints{T(u"見出し語中の「ab」と "), kToLast, QString(), kToLast, false}));
    hints = HintsAfterStart(hints, Texts(u"", u"", u""));
    EXPECT_EQ(hints, HintsAtLoad());
}

TEST(WildcardHints, ShowTheSecondGapWithAMiddle)
{
    struct Case {
        const char16_t *end, *secondTail;
    };
    constexpr Case cases[] = {{u"", u"最後の文字までの文字数が"}, {u"z", u"「z」の間の文字数が"}};
    for (const Case &c : cases) {
        const WildcardHints hints = HintsAfterMiddle(HintsAtLoad(), Texts(u"a", u"中", c.end));
        EXPECT_EQ(hints, (WildcardHints{kFromFirst, T(u"「中」の間の文字数が"), T(u"見出し語中の「中」と "),
                                        T(c.secondTail), true}));
    }
}

TEST(WildcardHints, FallBackWhenTheMiddleGoes)
{
    const WildcardHints shown = HintsAfterMiddle(HintsAtLoad(), Texts(u"a", u"x", u"z"));
    WildcardHints toEnd = HintsAfterMiddle(shown, Texts(u"a", u"", u"z"));
    EXPECT_EQ(toEnd.Hint1Tail, T(u"「z」の間の文字数が"));
    EXPECT_EQ(toEnd.Hint1Head, shown.Hint1Head);
    EXPECT_EQ(toEnd.Hint2Tail, shown.Hint2Tail);
    EXPECT_FALSE(toEnd.secondGapShown);
    // Without an end the head names the start, even where that is empty too.
    for (const char16_t *start : {u"", u"a"}) {
        const WildcardHints alone = HintsAfterMiddle(shown, Texts(start, u"", u""));
        EXPECT_EQ(alone, (WildcardHints{T(u"見出し語中の「") + T(start) + T(u"」と "), kToLast,
                                        shown.Hint2Head, kToLast, false}));
    }
}

TEST(WildcardHints, PutTheEndBehindTheLastGap)
{
    const WildcardHints one = HintsAfterEnd(HintsAtLoad(), Texts(u"", u"", u"z"));
    EXPECT_EQ(one.Hint1Tail, T(u"「z」の間の文字数が"));
    EXPECT_EQ(one.Hint2Tail, kToLast);
    EXPECT_EQ(HintsAfterEnd(one, Texts(u"", u"", u"")), HintsAtLoad());
    const WildcardHints shown = HintsAfterMiddle(HintsAtLoad(), Texts(u"", u"x", u""));
    const WildcardHints two = HintsAfterEnd(shown, Texts(u"", u"x", u"z"));
    EXPECT_EQ(two.Hint2Tail, T(u"「z」の間の文字数が"));
    EXPECT_EQ(two.Hint1Tail, shown.Hint1Tail);
    EXPECT_EQ(HintsAfterEnd(two, Texts(u"", u"x", u"")), shown);
}
