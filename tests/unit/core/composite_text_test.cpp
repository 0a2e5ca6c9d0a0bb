#include "search/pure/composite_text.h"

#include <gtest/gtest.h>

namespace
{

struct Case {
    const char16_t *typed, *word, *meaning, *example;
};

void ExpectParts(const Case &c)
{
    const CompositeText parts = TakeApart(QString::fromUtf16(c.typed));
    EXPECT_FALSE(parts.wrongOrder) << QString::fromUtf16(c.typed).toStdString();
    EXPECT_EQ(parts.word, QString::fromUtf16(c.word)) << QString::fromUtf16(c.typed).toStdString();
    EXPECT_EQ(parts.meaning, QString::fromUtf16(c.meaning)) << QString::fromUtf16(c.typed).toStdString();
    EXPECT_EQ(parts.example, QString::fromUtf16(c.example)) << QString::fromUtf16(c.typed).toStdString();
}

} // namespace

TEST(TakeApart, LeavesATextWithoutMarkersWhole)
{
    constexpr Case cases[] = {
        {u"", u"", u"", u""},           {u"abc", u"abc", u"", u""}, {u"  a b　", u"  a b　", u"", u""},
        {u"a/b", u"a/b", u"", u""},     {u"T:x", u"T:x", u"", u""}, {u"/T", u"/T", u"", u""},
        {u"a/T x", u"a/T x", u"", u""},
    };
    for (const Case &c : cases)
        ExpectParts(c);
}

TEST(TakeApart, CutsAtTheMarkersAndTrimsNothing)
{
    constexpr Case cases[] = {
        {u"abc/T:x/E:y", u"abc", u"x", u"y"},
        {u"abc/t:xYz/e:Qy", u"abc", u"xYz", u"Qy"},
        {u"run /T: 走る /E: の ", u"run ", u" 走る ", u" の "},
        {u"abc/E:Yz", u"abc", u"", u"Yz"},
        {u"abc/T:/E:", u"abc", u"", u""},
        {u"abc/T:", u"abc", u"", u""},
        {u"/T:x", u"", u"X", u""},
        {u"/E:x", u"", u"", u"x"},
        {u"/T:x/E:y", u"", u"x", u"y"},
    };
    for (const Case &c : cases)
        ExpectParts(c);
}

TEST(TakeApart, GivesAMeaningAloneInCapitals)
{
    constexpr Case cases[] = {
        {u"abc/t:xyz", u"abc", u"XYZ", u""},
        {u"Abc/T:Xyz é я", u"Abc", u"XYZ É Я", u""},
        {u"straße/T:ß", u"straße", u"ß", u""},
        {u"a/T:走る", u"a", u"走る", u""},
    };
    for (const Case &c : cases)
        ExpectParts(c);
}

TEST(TakeApart, RemovesEveryFurtherMarkerOfAPart)
{
    constexpr Case cases[] = {
        {u"a/T:x/t:y", u"a", u"XY", u""},
        {u"a/T:x/t:y/T:z/E:q", u"a", u"xyz", u"q"},
        {u"a/E:x/e:y/E:z", u"a", u"", u"xyz"},
        {u"a/T:x/E:y/e:z", u"a", u"x", u"yz"},
    };
    for (const Case &c : cases)
        ExpectParts(c);
}

TEST(TakeApart, FindsAFullWidthMarkerButRemovesTheNarrowOneAlone)
{
    constexpr Case cases[] = {
        {u"a／Ｔ：x", u"a", u"／Ｔ：X", u""},
        {u"a／ｔ：x／ｅ：y", u"a", u"／ｔ：x", u"／ｅ：y"},
        {u"a/T:x／E:y", u"a", u"x", u"／E:y"},
    };
    for (const Case &c : cases)
        ExpectParts(c);
}

TEST(TakeApart, TellsMarkersInTheWrongOrderAndTakesNothing)
{
    for (const char16_t *typed :
         {u"abc/E:y/T:x", u"abc/e:y/t:x", u"/E:/T:", u"a／Ｅ：y/T:x", u"a/E:y/T:x/E:z"})
        EXPECT_EQ(TakeApart(QString::fromUtf16(typed)), (CompositeText{{}, {}, {}, true}))
            << QString::fromUtf16(typed).toStdString();
}

TEST(TakeApart, TakesAMarkerBehindTheOthersAsText) { ExpectParts({u"a/T:x/E:y/T:z", u"a", u"x", u"y/T:z"}); }
