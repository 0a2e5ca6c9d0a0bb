#pragma once

#include <QStringView>

/// Pairs of texts and whether text comparison takes them for the same. Whatever compares texts is
/// tested with them: the fold, LIKE, the order of the index, catalogue names.
namespace comparison
{

struct Case {
    QStringView left;
    QStringView right;
    bool same;
    const char *what;
};

inline constexpr Case kCases[] = {
    {u"", u"", true, "empty"},
    {u"", u"a", false, "empty against a letter"},
    {u"", u" ", false, "empty against a blank"},
    {u"abc", u"ABC", true, "case"},
    {u"Abc", u"abd", false, "case does not hide another letter"},
    {u"abc", u"abcd", false, "a prefix"},
    {u"ａｂｃ", u"abc", true, "width of letters"},
    {u"ＡＢＣ", u"abc", true, "width and case"},
    {u"１２３", u"123", true, "width of digits"},
    {u"！？＆％＿［］", u"!?&%_[]", true, "width of symbols"},
    {u"\u3000", u" ", true, "full-width blank"},
    {u"ice cream", u"ice\u3000cream", true, "blank within"},
    {u"ice cream", u"icecream", false, "a blank is significant"},
    {u"ice-cream", u"icecream", false, "a hyphen is significant"},
    {u"ice-cream", u"ice cream", false, "a hyphen is no blank"},
    {u"ice-cream", u"ice－cream", true, "full-width hyphen"},
    {u"don't", u"dont", false, "an apostrophe is significant"},
    {u"don't", u"DON＇T", true, "full-width apostrophe"},
    {u"don't", u"don’t", false, "a typographic apostrophe is another character"},
    {u"cafe", u"café", false, "an accent is significant"},
    {u"CAFÉ", u"café", true, "case of an accented letter"},
    {u"naïve", u"NAÏVE", true, "case of a diaeresis"},
    {u"ΑΩ", u"αω", true, "case of Greek"},
    {u"Я", u"я", true, "case of Cyrillic"},
    {u"Ⅳ", u"ⅳ", true, "case of Roman numerals"},
    {u"\u212A", u"k", true, "the Kelvin sign is a capital k"},
    {u"さくら", u"サクラ", true, "kana type"},
    {u"サクラ", u"ｻｸﾗ", true, "width of kana"},
    {u"さくら", u"ｻｸﾗ", true, "kana type and width"},
    {u"ゔ", u"ヴ", true, "kana type of vu"},
    {u"ゝゞ", u"ヽヾ", true, "kana type of the iteration marks"},
    {u"ゎゐゑを", u"ヮヰヱヲ", true, "kana type of rare kana"},
    {u"ｶﾞ", u"ガ", true, "half-width voiced pair"},
    {u"ｶﾞ", u"が", true, "half-width voiced pair and kana type"},
    {u"ﾊﾟﾊﾞﾊ", u"ぱばは", true, "voiced, semi-voiced, bare"},
    {u"ｳﾞｧｲｵﾘﾝ", u"ヴァイオリン", true, "half-width vu"},
    {u"ﾜﾞｦﾞ", u"ヷヺ", true, "half-width va and vo"},
    {u"ｶﾞ", u"カ", false, "voicing is significant in half width"},
    {u"が", u"か", false, "voicing is significant"},
    {u"ぱ", u"ば", false, "semi-voicing is significant"},
    {u"ｱﾞ", u"ア゛", true, "a mark behind a kana without a voiced form stays alone"},
    {u"ｶﾟ", u"カ゜", true, "no semi-voiced ka"},
    {u"カﾞ", u"ガ", false, "a full-width kana makes no pair"},
    {u"っ", u"つ", false, "small kana are significant"},
    {u"ｯ", u"っ", true, "width of a small kana"},
    {u"ヵヶ", u"カケ", false, "small ka and ke are significant"},
    {u"コーヒー", u"ｺｰﾋｰ", true, "width of the long-vowel mark"},
    {u"コーヒー", u"こーひー", true, "kana type beside the long-vowel mark"},
    {u"コーヒ", u"コーヒー", false, "the long-vowel mark is significant"},
    {u"おばーさん", u"おばあさん", false, "the long-vowel mark is no vowel"},
    {u"｡｢｣､･", u"。「」、・", true, "width of Japanese punctuation"},
    {u"～", u"〜", true, "two spellings of the wave dash"},
    {u"漢字", u"漢字", true, "kanji"},
    {u"漢字", u"感字", false, "other kanji"},
    {u"国", u"國", false, "old kanji forms are other characters"},
    {u"\U0001F600", u"\U0001F600", true, "beyond the basic plane"},
    {u"\U0001F600", u"\U0001F601", false, "other code points beyond the basic plane"},
    {u"\U00010400", u"\U00010428", true, "case beyond the basic plane"},
    {u"\U00020BB7", u"吉", false, "a kanji beyond the basic plane"},
    {u"A\u3000ｶﾞ①", u"ａ が①", true, "everything at once"},
};

/// Searches: where the needle is found from a position on, and how much of the text matched.
struct Find {
    QStringView haystack;
    QStringView needle;
    qsizetype from;
    qsizetype position;
    qsizetype length;
};

inline constexpr Find kFinds[] = {
    {u"abcabc", u"B", 1, 2, 1},
    {u"abcabc", u"B", 3, 5, 1},
    {u"abcabc", u"x", 1, 0, 0},
    {u"abc", u"abcd", 1, 0, 0},
    {u"xｶﾞy", u"ガ", 1, 2, 2},
    {u"xｶﾞy", u"y", 1, 4, 1},
    {u"xガy", u"ｶﾞＹ", 1, 2, 2},
    {u"ｶﾞカ", u"カ", 1, 3, 1},
    {u"ｶﾞ", u"゛", 1, 0, 0},
    {u"ﾊﾟﾊﾟx", u"ぱx", 1, 3, 3},
    {u"\U0001F600ab", u"A", 1, 3, 1},
    {u"\U0001F600\U00010400", u"\U00010428", 1, 3, 2},
    {u"a\u3000b", u"A B", 1, 1, 3},
    {u"aab", u"ab", 1, 2, 2},
    {u"aaab", u"aab", 1, 2, 3},
    {u"abc", u"abc", 1, 1, 3},
    {u"abc", u"abc", 2, 0, 0},
    {u"abc", u"", 1, 1, 0},
    {u"abc", u"", 3, 3, 0},
    {u"abc", u"", 4, 0, 0},
    {u"", u"", 1, 0, 0},
    {u"", u"a", 1, 0, 0},
    {u"abc", u"c", 99, 0, 0},
};

} // namespace comparison
