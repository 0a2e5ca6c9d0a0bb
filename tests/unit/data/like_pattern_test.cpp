#include "platform/data/like_pattern.h"

#include "platform/data/text_scanner.h"
#include "platform/failure/runtime_error.h"
#include "platform/text/fold.h"
#include "unit/text/comparison_cases.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace
{

using data::LikePattern;
using data::TextScanner;

std::string Utf8(QStringView text) { return text.toUtf8().toStdString(); }

bool Like(QStringView text, QStringView pattern) { return LikePattern(pattern).Matches(Utf8(text)); }

/// A literal with what a pattern gives a meaning made literal.
QString Escaped(QStringView literal)
{
    QString escaped;
    for (const QChar c : literal)
        escaped += c == u'%' || c == u'_' || c == u'[' ? u'[' + QString(c) + u']' : QString(c);
    return escaped;
}

struct MatchCase {
    QStringView pattern;
    QStringView text;
    bool matches;
};

constexpr MatchCase kMatches[] = {
    {u"", u"", true},
    {u"", u"a", false},
    {u"%", u"", true},
    {u"%", u"anything", true},
    {u"_", u"", false},
    {u"_", u"a", true},
    {u"_", u"ab", false},
    {u"_", u"\U0001F600", true},
    {u"_", u"ｶﾞ", true},
    {u"__", u"ｶﾞ", false},
    {u"abc", u"ABC", true},
    {u"abc", u"abcd", false},
    {u"abc", u"ab", false},
    {u"abc%", u"abc", true},
    {u"abc%_%", u"abc", false},
    {u"abc%_%", u"abcd", true},
    {u"%_%", u"", false},
    {u"%_%x%_%", u"x", false},
    {u"%_%x%_%", u"axb", true},
    {u"%_%x%_%", u"xx", false},
    {u"%_%x%_%", u"xxx", true},
    {u"%_%ing", u"ing", false},
    {u"%_%ing", u"sing", true},
    {u"%_%ing", u"sings", false},
    {u"%ing", u"inging", true},
    {u"a%z", u"az", true},
    {u"a%z", u"abz", true},
    {u"a%z", u"azb", false},
    {u"a___z", u"abcdz", true},
    {u"a___z", u"abcz", false},
    {u"a%b%c", u"aXbXbXc", true},
    {u"%aab%", u"aaab", true},
    {u"50[%]%_%", u"50% off", true},
    {u"50[%]%_%", u"500 off", false},
    {u"[_]a", u"_a", true},
    {u"[_]a", u"xa", false},
    {u"[[]a", u"[a", true},
    {u"a]", u"a]", true},
    {u"[abc]x", u"Bx", true},
    {u"[abc]x", u"dx", false},
    {u"[a-c]x", u"bx", true},
    {u"[a-c]x", u"Ｂx", true},
    {u"[a-c]x", u"dx", false},
    {u"[!a-c]x", u"dx", true},
    {u"[!a-c]x", u"bx", false},
    {u"[^a-c]x", u"dx", true},
    {u"[^a-c]x", u"Ax", false},
    {u"[!a]", u"", false},
    {u"[a!]", u"!", true},
    {u"[a^]", u"^", true},
    {u"[!!]", u"!", false},
    {u"[a-]", u"-", true},
    {u"[-a]", u"-", true},
    {u"[a-c-e]", u"-", true},
    {u"[a-c-e]", u"d", false},
    {u"[a－c]", u"b", false},
    {u"[a－c]", u"-", true},
    {u"[あ-お]", u"ｳ", true},
    {u"[あ-お]", u"カ", false},
    {u"[ｶﾞ]", u"が", true},
    {u"[ｶﾞｷ]", u"か", false},
    {u"[a%]", u"%", true},
    {u"[a%]", u"b", false},
    {u"[亜-腕]", u"辞", true},
    {u"[亜-腕]", u"a", false},
    {u"％", u"%", true},
    {u"％", u"a", false},
    {u"＿", u"_", true},
    {u"［", u"[", true},
    {u"ｶ%", u"ガ", false},
    {u"%ﾞ", u"ｶﾞ", false},
    {u"%ガ%", u"xｶﾞy", true},
    {u"%か%", u"xｶy", true},
    {u"%辞書%", u"国語辞書です", true},
    {u"%辞書%", u"国語辞典です", false},
    {u"%café%", u"a CAFÉ b", true},
    {u"%cafe%", u"a café b", false},
    {u"%look up%", u"to ｌｏｏｋ　ＵＰ x", true},
    {u"% %", u"a\u3000b", true},
    {u"%k%", u"\u212A", true},
    {u"%i%", u"\u0130", true},
};

TEST(LikePattern, MatchesByWildcardsAndClasses)
{
    for (const MatchCase &c : kMatches)
        EXPECT_EQ(Like(c.text, c.pattern), c.matches) << Utf8(c.pattern) << " / " << Utf8(c.text);
}

TEST(LikePattern, AgreesWithTextComparison)
{
    for (const comparison::Case &c : comparison::kCases) {
        EXPECT_EQ(Like(c.left, Escaped(c.right)), c.same) << c.what;
        EXPECT_EQ(Like(c.right, Escaped(c.left)), c.same) << c.what;
        if (c.same) {
            EXPECT_TRUE(Like(c.left, u"%"_s + Escaped(c.right) + u"%"_s)) << c.what;
            EXPECT_TRUE(Like(u"前"_s + c.left.toString() + u"x"_s, u"%_"_s + Escaped(c.right) + u"_%"_s))
                << c.what;
        }
    }
}

TEST(LikePattern, RaisesForBadClasses)
{
    for (const QStringView pattern :
         {u"[", u"a[b", u"[]", u"[]a]", u"[!]", u"[^]", u"[c-a]", u"[漢-a]", u"[a][", u"%[!a"}) {
        try {
            const LikePattern compiled(pattern);
            ADD_FAILURE() << Utf8(pattern);
        } catch (const RuntimeError &error) {
            EXPECT_EQ(error.number(), RuntimeError::InvalidStatement);
        }
    }
}

TEST(LikePattern, TellsItsPrefixAndItsKind)
{
    struct KindCase {
        QStringView pattern;
        std::u32string prefix;
        bool isLiteral;
        bool isPrefixRange;
    };
    const KindCase kKinds[] = {
        {u"", U"", true, false},
        {u"ABC", U"abc", true, false},
        {u"Abc%", U"abc", false, true},
        {u"ab%%", U"ab", false, true},
        {u"ab%_%", U"ab", false, false},
        {u"ab_", U"ab", false, false},
        {u"%", U"", false, true},
        {u"%ab", U"", false, false},
        {u"50[%]x%", U"50%x", false, true},
        {u"a[bc]", U"a", false, false},
        {u"ｶﾞ%", U"ガ", false, true},
        {u"a%b%", U"a", false, false},
        {u"[[]a", U"[a", true, false},
        {u"か]", U"カ]", true, false},
        {u"[!a]%", U"", false, false},
        {u"\U00010400%", U"\U00010428", false, true},
    };
    for (const KindCase &c : kKinds) {
        const LikePattern pattern(c.pattern);
        EXPECT_EQ(pattern.Prefix(), c.prefix) << Utf8(c.pattern);
        EXPECT_EQ(pattern.IsLiteral(), c.isLiteral) << Utf8(c.pattern);
        EXPECT_EQ(pattern.IsPrefixRange(), c.isPrefixRange) << Utf8(c.pattern);
    }
}

TEST(LikePattern, MovesWithItsPattern)
{
    LikePattern first(u"a%");
    LikePattern second(std::move(first));
    first = LikePattern(u"b%");
    EXPECT_TRUE(second.Matches("abc"));
    EXPECT_TRUE(first.Matches("bcd"));
    EXPECT_FALSE(first.Matches("abc"));
}

TEST(LikePattern, TakesNoTimeOverManyRuns)
{
    const std::string text(20000, 'a');
    EXPECT_FALSE(LikePattern(u"%a%a%a%a%a%a%a%a%a%a%a%a%a%a%a%a%b"_s).Matches(text + "ab" + text));
    EXPECT_TRUE(LikePattern(u"%a%a%a%a%a%a%a%a%a%a%a%a%a%a%a%a%b"_s).Matches(text + "ab"));
}

/// One element of a pattern, for the reference matcher.
struct Element {
    enum class Kind { Literal, AnyOne, AnyRun, Set, NotSet };
    Kind kind;
    std::u32string folded;
};

/// The plainest matcher there is.
bool Matches(const std::vector<Element> &pattern, size_t element, std::u32string_view text)
{
    if (element == pattern.size())
        return text.empty();
    const Element &e = pattern[element];
    switch (e.kind) {
    case Element::Kind::Literal:
        return text.starts_with(e.folded) && Matches(pattern, element + 1, text.substr(e.folded.size()));
    case Element::Kind::AnyRun:
        return Matches(pattern, element + 1, text) ||
               (!text.empty() && Matches(pattern, element, text.substr(1)));
    case Element::Kind::AnyOne: return !text.empty() && Matches(pattern, element + 1, text.substr(1));
    case Element::Kind::Set:
    case Element::Kind::NotSet: break;
    }
    return !text.empty() &&
           (e.folded.find(text.front()) != std::u32string::npos) == (e.kind == Element::Kind::Set) &&
           Matches(pattern, element + 1, text.substr(1));
}

class RandomPatterns
{
public:
    explicit RandomPatterns(uint seed) : m_random(seed) {}

    size_t Below(size_t limit) { return m_random() % limit; }

    QString Text(size_t longest)
    {
        static const std::u32string kAlphabet = U"aaAａbBkKK -　~～〜かカｶがガｶﾞﾞ漢字é";
        QString text;
        for (size_t length = Below(longest + 1); length > 0; --length)
            text.append(QStringView(QChar::fromUcs4(kAlphabet[Below(kAlphabet.size())])));
        return text;
    }

    /// A random pattern and the same in elements.
    std::pair<QString, std::vector<Element>> Pattern()
    {
        QString pattern;
        std::vector<Element> elements;
        for (size_t count = Below(6); count > 0; --count) {
            switch (Below(6)) {
            case 0:
                pattern += u'_';
                elements.push_back({Element::Kind::AnyOne, {}});
                break;
            case 1:
            case 2:
                pattern += u'%';
                elements.push_back({Element::Kind::AnyRun, {}});
                break;
            case 3: {
                const bool isNegated = Below(2) == 0;
                // Without its hyphens, which would make ranges.
                const QString members = u'a' + Text(3).remove(u'-');
                pattern += (isNegated ? u"[!"_s : u"["_s) + members + u']';
                elements.push_back(
                    {isNegated ? Element::Kind::NotSet : Element::Kind::Set, text::Fold(members).folded});
                break;
            }
            default: {
                // Neighbouring literals are one, or a pair could lie across their boundary.
                if (!elements.empty() && elements.back().kind == Element::Kind::Literal)
                    break;
                const QString literal = Text(4);
                pattern += literal;
                elements.push_back({Element::Kind::Literal, text::Fold(literal).folded});
            }
            }
        }
        return {pattern, elements};
    }

private:
    std::mt19937 m_random;
};

TEST(LikePattern, AgreesWithTheReference)
{
    RandomPatterns random(7);
    int matching = 0;
    for (int i = 0; i < 20000; ++i) {
        const auto [pattern, elements] = random.Pattern();
        const LikePattern compiled(pattern);
        for (int k = 0; k < 10; ++k) {
            const QString text = random.Text(8);
            const bool expected = Matches(elements, 0, text::Fold(text).folded);
            matching += expected;
            ASSERT_EQ(compiled.Matches(Utf8(text)), expected) << Utf8(pattern) << " / " << Utf8(text);
        }
    }
    EXPECT_GT(matching, 5000);
}

/// A text in a buffer of exactly its size, so that reading beyond it is noticed.
struct ExactText {
    explicit ExactText(const std::string &text) : bytes(text.begin(), text.end()) { bytes.shrink_to_fit(); }
    std::string_view View() const { return {bytes.data(), bytes.size()}; }
    std::vector<char> bytes;
};

TEST(TextScanner, MissesNoLiteralWhereverItStands)
{
    RandomPatterns random(8);
    for (int i = 0; i < 30000; ++i) {
        const std::u32string literal = text::Fold(random.Text(5)).folded;
        if (literal.empty())
            continue;
        const TextScanner scanner(literal);
        const QString padding = QString(qsizetype(random.Below(70)), u'x');
        const QString text =
            padding + random.Text(12) + padding.first(qsizetype(random.Below(size_t(padding.size()) + 1)));
        const bool isThere = text::Fold(text).folded.find(literal) != std::u32string::npos;
        const ExactText exact(Utf8(text));
        for (const auto vectors : {TextScanner::Vectors::Widest, TextScanner::Vectors::Baseline}) {
            const TextScanner::Finding finding = scanner.Find(exact.View(), vectors);
            ASSERT_FALSE(isThere && finding == TextScanner::Finding::Absent) << Utf8(text);
            ASSERT_FALSE(!isThere && finding == TextScanner::Finding::Certain) << Utf8(text);
        }
    }
}

// Texts side by side as in a page: none that holds the literal is without a place.
TEST(TextScanner, FindsAPlaceInEveryTextThatHoldsTheLiteral)
{
    constexpr size_t most = 4;
    RandomPatterns random(9);
    int sparse = 0;
    for (int i = 0; i < 10000; ++i) {
        const std::u32string literal = text::Fold(random.Text(4)).folded;
        if (literal.empty())
            continue;
        const TextScanner scanner(literal);
        std::string page;
        std::vector<std::pair<size_t, size_t>> holders;
        for (size_t count = 2 + random.Below(8); count > 0; --count) {
            const QString text = random.Text(10);
            const size_t begin = page.size();
            page += Utf8(text);
            if (text::Fold(text).folded.find(literal) != std::u32string::npos)
                holders.emplace_back(begin, page.size());
            page.append(random.Below(40), '\x05');
        }
        const ExactText exact(page);
        for (const auto vectors : {TextScanner::Vectors::Widest, TextScanner::Vectors::Baseline}) {
            std::vector<size_t> all;
            ASSERT_TRUE(scanner.FindPlaces(exact.View(), all, SIZE_MAX, vectors));
            for (const auto &[begin, end] : holders)
                ASSERT_TRUE(std::ranges::any_of(all, [begin = begin, end = end](size_t place) {
                    return place >= begin && place < end;
                })) << page;
            std::vector<size_t> few{99};
            const bool areFew = scanner.FindPlaces(exact.View(), few, most, vectors);
            ASSERT_EQ(areFew, all.size() <= most);
            sparse += areFew;
            if (areFew) {
                ASSERT_EQ(few, all);
            }
        }
    }
    EXPECT_GT(sparse, 1000);
    std::vector<size_t> places{1};
    EXPECT_FALSE(TextScanner(U"").FindPlaces("text", places, most));
    EXPECT_TRUE(places.empty());
}

TEST(TextScanner, RulesOutWhatIsNotThere)
{
    constexpr std::pair<std::u32string_view, QStringView> kAbsent[] = {
        {U"zebra", u"a dictionary（辞書）。「例」 of many words"},
        {U"犬", u"猫は好きですが、イヌは苦手です。"},
        {U"カナ", u"ひらがなとカタカタ"},
        {U"ガ", u"カキクケコかきくけこ"},
        {U"look up", u"a lock, upwards"},
        {U" ", u"、。「」々〇ぁ倀"},
        {U"~", u"、。「」々〇ぁ倜（辞書）－"},
        {U"x", u""},
        {std::u32string_view(U"\0", 1), u"short"},
    };
    for (const auto &[literal, text] : kAbsent)
        EXPECT_EQ(TextScanner(literal).Find(Utf8(text)), TextScanner::Finding::Absent) << Utf8(text);
}

TEST(TextScanner, IsCertainOfFormsThatNeedNoDecoding)
{
    const auto find = [](std::u32string_view literal, QStringView text) {
        return TextScanner(literal).Find(Utf8(text));
    };
    EXPECT_EQ(find(U"word", u"passＷord"), TextScanner::Finding::Possible) << "a full-width letter";
    EXPECT_EQ(find(U"word", u"a passWORD"), TextScanner::Finding::Certain);
    EXPECT_EQ(find(U"辞書", u"国語辞書"), TextScanner::Finding::Certain);
    EXPECT_EQ(find(U"カナ", u"かな"), TextScanner::Finding::Possible);
    EXPECT_EQ(find(U"a b", u"a b"), TextScanner::Finding::Certain);
    EXPECT_EQ(find(U"a b", u"a　b"), TextScanner::Finding::Possible) << "a full-width blank";
    EXPECT_EQ(find(U"ab\uFFFDc", u"ab\uFFFDc"), TextScanner::Finding::Possible)
        << "a part alone proves nothing";
    EXPECT_EQ(find(U"~", u"犬～猫"), TextScanner::Finding::Possible);
    EXPECT_EQ(find(U"~", u"犬〜猫"), TextScanner::Finding::Possible);
    EXPECT_FALSE(TextScanner(U"").IsUseful());
    EXPECT_FALSE(TextScanner(U"\uFFFD").IsUseful());
    EXPECT_EQ(find(U"\uFFFD", u"ab"), TextScanner::Finding::Possible);
}

} // namespace
