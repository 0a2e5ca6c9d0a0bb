#include "platform/text/needle.h"

#include "platform/failure/runtime_error.h"
#include "unit/text/comparison_cases.h"
#include "unit/text/random_text.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

std::string Utf8(QStringView text) { return text.toUtf8().toStdString(); }

void ExpectSame(QStringView haystack, QStringView needle, const text::Needle &compiled, qsizetype from)
{
    const text::Match expected = text::FindMatch(haystack, needle, from);
    const text::Match match = compiled.FindMatch(haystack, from);
    ASSERT_EQ(match.position, expected.position) << Utf8(haystack) << " / " << Utf8(needle) << " / " << from;
    ASSERT_EQ(match.length, expected.length) << Utf8(haystack) << " / " << Utf8(needle) << " / " << from;
}

TEST(Needle, MapsPositionAndLengthToTheOriginal)
{
    for (const comparison::Find &c : comparison::kFinds) {
        const text::Needle needle(c.needle);
        const text::Match match = needle.FindMatch(c.haystack, c.from);
        EXPECT_EQ(match.position, c.position) << Utf8(c.haystack) << " / " << Utf8(c.needle);
        EXPECT_EQ(match.length, c.length) << Utf8(c.haystack) << " / " << Utf8(c.needle);
        EXPECT_EQ(needle.Find(c.haystack, c.from), c.position);
    }
}

TEST(Needle, RefusesAPositionBelowOne)
{
    for (const QStringView text : {QStringView(u"a"), QStringView(u""), QStringView(u"\U0001F600")}) {
        try {
            text::Needle(text).Find(u"abc", 0);
            ADD_FAILURE() << "no failure was raised";
        } catch (const RuntimeError &error) {
            EXPECT_EQ(error.number(), RuntimeError::InvalidCall);
        }
    }
}

TEST(Needle, FindsWhatFindMatchFinds)
{
    std::mt19937 random(7);
    int found = 0;
    for (int i = 0; i < 20000; ++i) {
        const QString text = RandomText(random, 3);
        const text::Needle needle(text);
        for (int j = 0; j < 5; ++j) {
            const QString haystack = RandomText(random, 40);
            const auto from = static_cast<qsizetype>(1 + random() % 5);
            ExpectSame(haystack, text, needle, from);
            found += needle.Find(haystack, from) > 0;
        }
    }
    EXPECT_GT(found, 1000);
}

TEST(Needle, FindsMarkersInTexts)
{
    constexpr QStringView kMarkers[] = {u" {",    u" : ",   u"【発音】", u"、", u" / 【用例", u"】",
                                        u" /// ", u"\",\"", u"\",",      u",",  u".",         u"\\"};
    // Pieces of markers in their forms, and whole markers.
    constexpr QStringView kPieces[] = {u" ",         u"\u3000", u"{",   u"｛", u":",  u"：", u"【",
                                       u"発音",      u"】",     u"、",  u"､",  u"/",  u"／", u"用",
                                       u" / 【用例", u"\"",     u"＂",  u",",  u"，", u".",  u"．",
                                       u"\\",        u"＼",     u"abc", u"ｶ",  u"ﾞ",  u"例"};
    std::mt19937 random(8);
    for (const QStringView marker : kMarkers) {
        const text::Needle needle(marker);
        for (int i = 0; i < 5000; ++i) {
            QString haystack;
            for (auto left = random() % 30; left > 0; --left)
                haystack += kPieces[random() % std::size(kPieces)];
            ExpectSame(haystack, marker, needle, static_cast<qsizetype>(1 + random() % 3));
        }
    }
}

TEST(Needle, FindsAtTheEdgesOfLongTexts)
{
    const text::Needle needle(u"b、");
    for (qsizetype before = 0; before < 70; ++before)
        for (qsizetype behind = 0; behind < 20; ++behind) {
            const QString text = QString(before, u'a') + u"Ｂ､"_s + QString(behind, u'a');
            ASSERT_EQ(needle.Find(text), before + 1);
            ASSERT_EQ(needle.Find(text, before + 1), before + 1);
            ASSERT_EQ(needle.Find(text, before + 2), 0);
        }
}

} // namespace
