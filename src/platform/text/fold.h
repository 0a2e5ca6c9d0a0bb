#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <string_view>
#include <vector>

/// Text comparison that ignores case, width and kana type. One frozen table serves searches,
/// catalogue names, LIKE patterns and the order of the index, so that they always agree.
namespace text
{

/// The version of the fold and of its weights. An index built under another one is built anew.
inline constexpr int kFoldVersion = 1;

/// A weight above that of every code point.
inline constexpr quint32 kHighestWeight = 0x7FFFFFFF;

/// The folded form of one code point: lower case, half width (full width for kana), katakana.
char32_t FoldCodePoint(char32_t codePoint);

/// The place of a folded code point in the order: blank and symbols, digits, letters, kana, kanji
/// in code page 932 order, then the rest by code point. Different for different code points.
quint32 WeightOf(char32_t foldedCodePoint);

/// The full-width form of a half-width katakana with its (semi-)voiced mark behind it, folded;
/// 0 where the two are no such pair.
char32_t VoicedPair(char32_t base, char32_t mark);

/// The half-width katakana that gives the folded code point together with a mark behind it; 0 for
/// none. It and FormsOf are the only ways to write a folded code point.
char32_t HalfWidthBaseOf(char32_t foldedCodePoint);

/// All code points with this folded form, itself first; empty where it is not a folded form.
std::u32string FormsOf(char32_t foldedCodePoint);

/// A text folded, with the way back: starts[i] is the position in the original, in UTF-16 units
/// from 0, of the folded code point i; a last element holds the original's length.
struct FoldedText {
    std::u32string folded;
    std::vector<qsizetype> starts;
};
FoldedText Fold(QStringView text);

/// The folded code points of UTF-8 text. Malformed bytes become U+FFFD each.
void FoldUtf8(std::string_view utf8, std::u32string &out);

/// Order of two texts by their folded weights: negative, 0 or positive.
int Compare(QStringView left, QStringView right);
/// The same for UTF-8; agrees with Compare, and never reads beyond the views.
int CompareUtf8(std::string_view left, std::string_view right);

/// Whether two texts are the same to text comparison.
bool Same(QStringView left, QStringView right);

/// How many UTF-16 units at the beginning of a text fold to `folded`; -1 where it begins otherwise.
qsizetype MatchedLength(QStringView text, std::u32string_view folded);

/// Where a text was found: position from 1 in UTF-16 units, 0 when it was not, and the length of
/// what matched in the text searched (it differs from the needle's for half-width voiced pairs).
struct Match {
    qsizetype position = 0;
    qsizetype length = 0;
};

/// The first match of `needle` in `haystack` from the position `from` (1 or more; 5 is raised
/// below 1). An empty needle matches at `from` with length 0, unless that lies behind the end.
Match FindMatch(QStringView haystack, QStringView needle, qsizetype from = 1);

/// The position of FindMatch. For many searches of one text see platform/text/needle.h.
qsizetype TextFind(QStringView haystack, QStringView needle, qsizetype from = 1);

} // namespace text
