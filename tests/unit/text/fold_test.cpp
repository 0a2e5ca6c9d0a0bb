#include "platform/text/fold.h"

#include "platform/failure/runtime_error.h"
#include "unit/text/comparison_cases.h"
#include "unit/text/random_text.h"

#include <QList>
#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <set>

using namespace Qt::StringLiterals;

namespace
{

constexpr char32_t kCodePoints = 0x110000;

std::string Utf8(QStringView text) { return text.toUtf8().toStdString(); }

int Sign(int value) { return (value > 0) - (value < 0); }

TEST(Fold, TakesTheCasesForTheSameOrNot)
{
    for (const comparison::Case &c : comparison::kCases) {
        EXPECT_EQ(text::Same(c.left, c.right), c.same) << c.what;
        EXPECT_EQ(text::Same(c.right, c.left), c.same) << c.what;
        EXPECT_EQ(text::Fold(c.left).folded == text::Fold(c.right).folded, c.same) << c.what;
        EXPECT_EQ(text::CompareUtf8(Utf8(c.left), Utf8(c.right)) == 0, c.same) << c.what;
        EXPECT_EQ(text::Compare(c.left, c.right), -text::Compare(c.right, c.left)) << c.what;
    }
}

TEST(Fold, IsStableAndStaysInItsPlane)
{
    for (char32_t c = 0; c < kCodePoints; ++c) {
        const char32_t folded = text::FoldCodePoint(c);
        ASSERT_EQ(text::FoldCodePoint(folded), folded) << uint(c);
        ASSERT_EQ(folded >> 16, c >> 16) << uint(c);
    }
}

TEST(Fold, GivesEveryFoldedCodePointAWeightOfItsOwn)
{
    std::set<quint32> weights;
    size_t folded = 0;
    for (char32_t c = 0; c < kCodePoints; ++c) {
        if (text::FoldCodePoint(c) != c)
            continue;
        ++folded;
        const quint32 weight = text::WeightOf(c);
        ASSERT_LT(weight, text::kHighestWeight);
        weights.insert(weight);
    }
    EXPECT_EQ(weights.size(), folded);
}

TEST(Fold, OrdersSymbolsDigitsLettersKanaKanjiAndTheRest)
{
    constexpr QStringView kInOrder[] = {
        u"\t", u" ",  u"!",  u"'",  u"-",  u"~",  u"、",     u"①",      u"Ⅰ",          u"0",
        u"9",  u"a",  u"é",  u"ｆ", u"z",  u"α",  u"я",      u"ー",     u"ァ",         u"あ",
        u"ｲ",  u"ヵ", u"か", u"ガ", u"き", u"っ", u"ツ",     u"は",     u"ば",         u"ぱ",
        u"ひ", u"ん", u"亜", u"腕", u"弌", u"熙", u"\u3402", u"\uAC00", u"\U0001F600",
    };
    for (size_t i = 0; i + 1 < std::size(kInOrder); ++i) {
        EXPECT_LT(text::Compare(kInOrder[i], kInOrder[i + 1]), 0)
            << Utf8(kInOrder[i]) << Utf8(kInOrder[i + 1]);
        EXPECT_LT(text::CompareUtf8(Utf8(kInOrder[i]), Utf8(kInOrder[i + 1])), 0);
    }
}

TEST(Fold, PutsAPrefixFirst)
{
    EXPECT_LT(text::Compare(u"ab", u"abc"), 0);
    EXPECT_LT(text::CompareUtf8("ab", "ab\x01"), 0);
    EXPECT_LT(text::CompareUtf8("ab", std::string_view("ab\0", 3)), 0);
    EXPECT_LT(text::CompareUtf8("", "a"), 0);
    EXPECT_EQ(text::CompareUtf8("", ""), 0);
}

TEST(Fold, ComparesByTheWeightsOfTheFold)
{
    std::mt19937 random(1);
    for (int i = 0; i < 50000; ++i) {
        const QString left = RandomText(random);
        const QString right = RandomText(random);
        const std::u32string l = text::Fold(left).folded;
        const std::u32string r = text::Fold(right).folded;
        const auto less = [](char32_t a, char32_t b) { return text::WeightOf(a) < text::WeightOf(b); };
        const bool before = std::lexicographical_compare(l.begin(), l.end(), r.begin(), r.end(), less);
        const bool behind = std::lexicographical_compare(r.begin(), r.end(), l.begin(), l.end(), less);
        const int expected = int(behind) - int(before);
        ASSERT_EQ(Sign(text::Compare(left, right)), expected) << Utf8(left) << " | " << Utf8(right);
        ASSERT_EQ(Sign(text::CompareUtf8(Utf8(left), Utf8(right))), expected)
            << Utf8(left) << " | " << Utf8(right);
    }
}

TEST(Fold, ComparesUtf8ThatDiffersWithinAPairOrACodePoint)
{
    EXPECT_EQ(text::CompareUtf8(Utf8(u"12345678ｶﾞx"), Utf8(u"12345678がX")), 0);
    EXPECT_NE(text::CompareUtf8(Utf8(u"12345678ｶﾞ"), Utf8(u"12345678ｶ")), 0);
    EXPECT_LT(text::CompareUtf8(Utf8(u"12345678ｶ亜"), Utf8(u"12345678ｶﾞ")), 0);
    EXPECT_LT(text::CompareUtf8(Utf8(u"\U0001F600"), Utf8(u"\U0001F601")), 0);
    EXPECT_LT(text::CompareUtf8(Utf8(u"亜\U0001F600"), Utf8(u"亜\U0001F600a")), 0);
}

TEST(Fold, ComparesMalformedUtf8InOneOrder)
{
    std::mt19937 random(2);
    constexpr std::string_view kBytes = "aA\x80\xBF\xC2\xE3\x82\xEF\xBD\xB6\xBE\x9E\xF0\x9F\xFF";
    const auto randomBytes = [&] {
        std::string bytes;
        for (size_t length = random() % 9; length > 0; --length)
            bytes.push_back(kBytes[random() % kBytes.size()]);
        return bytes;
    };
    std::u32string l;
    std::u32string r;
    for (int i = 0; i < 100000; ++i) {
        const std::string left = randomBytes();
        const std::string right = randomBytes();
        text::FoldUtf8(left, l);
        text::FoldUtf8(right, r);
        ASSERT_EQ(text::CompareUtf8(left, right) == 0, l == r);
        ASSERT_EQ(Sign(text::CompareUtf8(left, right)), -Sign(text::CompareUtf8(right, left)));
    }
}

TEST(Fold, FoldsUtf8AsItFoldsText)
{
    std::mt19937 random(3);
    std::u32string folded;
    for (int i = 0; i < 5000; ++i) {
        const QString original = RandomText(random, 20);
        text::FoldUtf8(Utf8(original), folded);
        ASSERT_EQ(folded, text::Fold(original).folded);
    }
}

TEST(Fold, ReadsMalformedBytesAsReplacementsEach)
{
    const auto folded = [](std::string_view bytes) {
        std::u32string out;
        text::FoldUtf8(bytes, out);
        return out;
    };
    EXPECT_EQ(folded("A\x80z"), U"a\uFFFDz");
    EXPECT_EQ(folded("\xE3\x81"), U"\uFFFD\uFFFD");
    EXPECT_EQ(folded("\xE3\x41"), U"\uFFFDa");
    EXPECT_EQ(folded("\xC0\x80"), U"\uFFFD\uFFFD") << "overlong";
    EXPECT_EQ(folded("\xE0\x80\x80"), U"\uFFFD\uFFFD\uFFFD") << "overlong";
    EXPECT_EQ(folded("\xED\xA0\x80"), U"\uFFFD\uFFFD\uFFFD") << "a surrogate";
    EXPECT_EQ(folded("\xF4\x90\x80\x80"), U"\uFFFD\uFFFD\uFFFD\uFFFD") << "beyond the last code point";
    EXPECT_EQ(folded("\xF5"), U"\uFFFD");
    EXPECT_EQ(folded(std::string_view("\0a", 2)), std::u32string(U"\0a", 2));
}

TEST(Fold, KeepsTheWayBackToTheOriginal)
{
    const text::FoldedText folded = text::Fold(u"Aｶﾞ\U0001F600ｶx");
    EXPECT_EQ(folded.folded, U"aガ\U0001F600カx");
    EXPECT_EQ(folded.starts, (std::vector<qsizetype>{0, 1, 3, 5, 6, 7}));
    EXPECT_EQ(text::Fold(u"").starts, std::vector<qsizetype>{0});
    EXPECT_EQ(text::Fold(QStringView(u"\U0001F600").first(1)).folded, std::u32string(1, char32_t(0xD83D)));
}

TEST(Fold, KnowsEveryFormOfAFoldedCodePoint)
{
    std::vector<size_t> forms(kCodePoints, 0);
    for (char32_t c = 0; c < kCodePoints; ++c)
        ++forms[text::FoldCodePoint(c)];
    for (char32_t c = 0; c < kCodePoints; ++c) {
        if (forms[c] == 1)
            continue; // itself alone: nearly all of Unicode
        const std::u32string known = text::FormsOf(c);
        ASSERT_EQ(known.size(), forms[c]) << uint(c);
        for (const char32_t form : known)
            ASSERT_EQ(text::FoldCodePoint(form), c) << uint(form);
    }
    EXPECT_EQ(text::FormsOf(U'漢'), U"漢");
    EXPECT_EQ(text::FormsOf(U'ー'), U"ーｰ");
}

TEST(Fold, KnowsTheHalfWidthBaseOfEveryVoicedPair)
{
    int pairs = 0;
    for (char32_t base = 0xFF00; base < 0xFFF0; ++base) {
        for (const char32_t mark : U"ﾞﾟ゛a") {
            const char32_t voiced = text::VoicedPair(base, mark);
            if (voiced == 0)
                continue;
            ++pairs;
            EXPECT_EQ(text::HalfWidthBaseOf(voiced), base);
            EXPECT_EQ(text::FoldCodePoint(voiced), voiced);
        }
    }
    EXPECT_EQ(pairs, 28);
    EXPECT_EQ(text::HalfWidthBaseOf(U'カ'), 0U);
    EXPECT_EQ(text::HalfWidthBaseOf(U'a'), 0U);
    EXPECT_EQ(text::HalfWidthBaseOf(U'ッ'), 0U);
}

TEST(FindMatch, MapsPositionAndLengthToTheOriginal)
{
    for (const comparison::Find &c : comparison::kFinds) {
        const text::Match match = text::FindMatch(c.haystack, c.needle, c.from);
        EXPECT_EQ(match.position, c.position) << Utf8(c.haystack) << " / " << Utf8(c.needle);
        EXPECT_EQ(match.length, c.length) << Utf8(c.haystack) << " / " << Utf8(c.needle);
        EXPECT_EQ(text::TextFind(c.haystack, c.needle, c.from), c.position);
    }
}

TEST(FindMatch, RefusesAPositionBelowOne)
{
    for (const qsizetype from : {qsizetype(0), qsizetype(-1)}) {
        try {
            text::FindMatch(u"abc", u"a", from);
            ADD_FAILURE() << "no failure was raised";
        } catch (const RuntimeError &error) {
            EXPECT_EQ(error.number(), RuntimeError::InvalidCall);
        }
    }
}

TEST(FindMatch, FindsWhatTheFoldedTextHolds)
{
    std::mt19937 random(4);
    for (int i = 0; i < 20000; ++i) {
        const QString haystack = RandomText(random, 12);
        const QString needle = RandomText(random, 2);
        if (needle.isEmpty())
            continue;
        const text::FoldedText folded = text::Fold(haystack);
        const std::u32string wanted = text::Fold(needle).folded;
        const size_t at = folded.folded.find(wanted);
        const text::Match match = text::FindMatch(haystack, needle);
        if (at == std::u32string::npos) {
            ASSERT_EQ(match.position, 0);
        } else {
            ASSERT_EQ(match.position, folded.starts[at] + 1);
            ASSERT_EQ(match.length, folded.starts[at + wanted.size()] - folded.starts[at]);
        }
    }
}

} // namespace
