#include "platform/text/needle.h"

#include "platform/failure/runtime_error.h"

#include <QChar>
#include <algorithm>

namespace text
{

namespace
{

constexpr char32_t kPlaneSize = 0x10000;
constexpr qsizetype kBlock = 16;

using Units = std::array<char16_t, 4>;

/// Whether one of four units stands in a block. Apart from its caller, for the compiler makes vectors of
/// this loop only where it cannot unroll it into the other one first.
[[gnu::noinline]] bool HoldsAny(const Units &wanted, const char16_t *block)
{
    const auto [first, second, third, fourth] = wanted;
    quint16 found = 0;
    for (qsizetype i = 0; i < kBlock; ++i) {
        const char16_t unit = block[i];
        found = static_cast<quint16>(found | -(quint16(unit == first) | quint16(unit == second) |
                                               quint16(unit == third) | quint16(unit == fourth)));
    }
    return found != 0;
}

/// The first position at or behind `at` whose unit is one of four; the size where there is none.
qsizetype NextOf(const Units &wanted, QStringView text, qsizetype at)
{
    const char16_t *const units = text.utf16();
    const qsizetype size = text.size();
    while (at < size) {
        // The last block may begin before `at`.
        const qsizetype block = std::min(at, size - kBlock);
        if (block >= 0 && !HoldsAny(wanted, units + block)) {
            at = block + kBlock;
            continue;
        }
        for (const qsizetype end = std::min(at + kBlock, size); at < end; ++at)
            if (std::ranges::find(wanted, units[at]) != wanted.end())
                return at;
    }
    return size;
}

/// Whether a folded code point begins at `at`, when reading begins at `first`.
bool IsBoundary(QStringView text, qsizetype at, qsizetype first)
{
    if (at == first)
        return true;
    const char16_t before = text[at - 1].unicode();
    const char16_t unit = text[at].unicode();
    return !(QChar::isHighSurrogate(before) && QChar::isLowSurrogate(unit)) && VoicedPair(before, unit) == 0;
}

} // namespace

/// All units that can stand for a folded code point, or that begin the pair that does; false where
/// there are too many, or some lie beyond the basic plane.
bool Needle::HasForms(char32_t foldedCodePoint, Forms &forms)
{
    std::u32string all = FormsOf(foldedCodePoint);
    if (const char32_t base = HalfWidthBaseOf(foldedCodePoint))
        all.push_back(base);
    if (all.empty() || all.size() > kMostForms || *std::ranges::max_element(all) >= kPlaneSize)
        return false;
    forms.fill(static_cast<char16_t>(all.front()));
    std::ranges::transform(all, forms.begin(), [](char32_t form) { return static_cast<char16_t>(form); });
    return true;
}

Needle::Needle(QStringView text) : m_text(text.toString()), m_folded(Fold(text).folded)
{
    quint32 heaviest = 0;
    for (size_t i = 0; i < m_folded.size(); ++i) {
        Forms forms;
        if (!HasForms(m_folded[i], forms))
            break;
        // Blanks and symbols weigh least and kanji most, much as they are common and rare.
        const quint32 weight = WeightOf(m_folded[i]);
        if (i == 0 || weight > heaviest) {
            heaviest = weight;
            m_anchor = forms;
            m_anchorOffset = static_cast<qsizetype>(i);
        }
        // Behind a character of one or two units an anchor would not tell where the match begins.
        if (HalfWidthBaseOf(m_folded[i]) != 0)
            break;
    }
}

Match Needle::FindMatch(QStringView haystack, qsizetype from) const
{
    if (m_anchorOffset < 0)
        return text::FindMatch(haystack, m_text, from);
    if (from < 1)
        throw RuntimeError(RuntimeError::InvalidCall);
    const qsizetype first = from - 1;
    for (qsizetype at = first + m_anchorOffset; at < haystack.size(); ++at) {
        at = NextOf(m_anchor, haystack, at);
        if (at == haystack.size())
            break;
        const qsizetype start = at - m_anchorOffset;
        if (!IsBoundary(haystack, start, first))
            continue;
        const qsizetype length = MatchedLength(haystack.sliced(start), m_folded);
        if (length >= 0)
            return {start + 1, length};
    }
    return {};
}

} // namespace text
