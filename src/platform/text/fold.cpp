#include "platform/text/fold.h"

#include "platform/failure/runtime_error.h"
#include "platform/text/fold_table.h"

#include <QChar>
#include <algorithm>
#include <array>
#include <cstring>

namespace text
{

namespace
{

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kPlaneSize = 0x10000;
constexpr size_t kAsciiSize = 0x80;
/// Code points without a place of their own in the order stand above all that have one.
constexpr quint32 kFirstUnlistedWeight = 0x10000;

constexpr bool IsHalfWidthKatakana(char32_t codePoint) { return codePoint >= 0xFF66 && codePoint <= 0xFF9D; }

const FoldRun *RunOf(char32_t codePoint)
{
    const std::span<const FoldRun> runs = FoldRuns();
    const auto behind = std::upper_bound(runs.begin(), runs.end(), codePoint,
                                         [](char32_t c, const FoldRun &run) { return c < run.first; });
    if (behind == runs.begin())
        return nullptr;
    const FoldRun &run = *std::prev(behind);
    return codePoint <= run.last && (codePoint - run.first) % run.step == 0 ? &run : nullptr;
}

char32_t Shifted(char32_t codePoint, qint32 delta)
{
    return static_cast<char32_t>(static_cast<qint32>(codePoint) + delta);
}

/// The fold and the weights spread out for the basic plane, where nearly all text lies.
struct Tables {
    std::array<char16_t, kPlaneSize> fold;
    std::array<quint32, kPlaneSize> weight;
    std::array<quint32, kAsciiSize> foldedAsciiWeight;

    Tables()
    {
        for (char32_t c = 0; c < kPlaneSize; ++c) {
            fold[c] = static_cast<char16_t>(c);
            weight[c] = kFirstUnlistedWeight + c;
        }
        for (const FoldRun &run : FoldRuns())
            for (char32_t c = run.first; c <= run.last && c < kPlaneSize; c += run.step)
                fold[c] = static_cast<char16_t>(Shifted(c, run.delta));
        quint32 place = 0;
        for (const char16_t c : FoldedOrder())
            weight[c] = place++;
        for (size_t c = 0; c < kAsciiSize; ++c)
            foldedAsciiWeight[c] = weight[fold[c]];
    }

    char32_t FoldOf(char32_t c) const
    {
        if (c < kPlaneSize)
            return fold[c];
        const FoldRun *run = RunOf(c);
        return run ? Shifted(c, run->delta) : c;
    }
    quint32 WeightOf(char32_t folded) const
    {
        return folded < kPlaneSize ? weight[folded] : kFirstUnlistedWeight + folded;
    }
};

const Tables &SharedTables()
{
    static const Tables tables;
    return tables;
}

class Utf16Reader
{
public:
    explicit Utf16Reader(QStringView text) : m_at(text.utf16()), m_begin(m_at), m_end(m_at + text.size()) {}

    bool AtEnd() const { return m_at == m_end; }
    qsizetype Position() const { return m_at - m_begin; }

    char32_t Next()
    {
        const char16_t unit = *m_at++;
        if (QChar::isHighSurrogate(unit) && m_at != m_end && QChar::isLowSurrogate(*m_at))
            return QChar::surrogateToUcs4(unit, *m_at++);
        return unit;
    }

private:
    const char16_t *m_at;
    const char16_t *m_begin;
    const char16_t *m_end;
};

class Utf8Reader
{
public:
    explicit Utf8Reader(std::string_view text)
        : m_at(reinterpret_cast<const uchar *>(text.data())), m_end(m_at + text.size())
    {
    }

    bool AtEnd() const { return m_at == m_end; }

    char32_t Next()
    {
        const char32_t lead = *m_at++;
        if (lead < kAsciiSize)
            return lead;
        if (lead >= 0xC2 && lead <= 0xDF)
            return Sequence(lead & 0x1F, 1, kAsciiSize);
        if (lead >= 0xE0 && lead <= 0xEF)
            return Sequence(lead & 0x0F, 2, 0x800);
        if (lead >= 0xF0 && lead <= 0xF4)
            return Sequence(lead & 0x07, 3, kPlaneSize);
        return kReplacement;
    }

private:
    /// The code point of a lead byte's bits and the bytes behind it; those stay unread where they
    /// make no valid sequence.
    char32_t Sequence(char32_t codePoint, ptrdiff_t length, char32_t lowest)
    {
        if (m_end - m_at < length)
            return kReplacement;
        for (ptrdiff_t i = 0; i < length; ++i) {
            if ((m_at[i] & 0xC0) != 0x80)
                return kReplacement;
            codePoint = codePoint << 6 | (m_at[i] & 0x3FU);
        }
        if (codePoint < lowest || codePoint > QChar::LastValidCodePoint || QChar::isSurrogate(codePoint))
            return kReplacement;
        m_at += length;
        return codePoint;
    }

    const uchar *m_at;
    const uchar *m_end;
};

template <typename Reader> char32_t NextFolded(Reader &reader, const Tables &tables)
{
    const char32_t codePoint = reader.Next();
    if (IsHalfWidthKatakana(codePoint) && !reader.AtEnd()) {
        Reader ahead = reader;
        if (const char32_t voiced = VoicedPair(codePoint, ahead.Next())) {
            reader = ahead;
            return voiced;
        }
    }
    return tables.FoldOf(codePoint);
}

template <typename Reader> int CompareFolded(Reader left, Reader right, const Tables &tables)
{
    while (!left.AtEnd() && !right.AtEnd()) {
        const quint32 leftWeight = tables.WeightOf(NextFolded(left, tables));
        const quint32 rightWeight = tables.WeightOf(NextFolded(right, tables));
        if (leftWeight != rightWeight)
            return leftWeight < rightWeight ? -1 : 1;
    }
    return static_cast<int>(right.AtEnd()) - static_cast<int>(left.AtEnd());
}

/// The length of the prefix that both texts have in common, byte for byte.
size_t CommonPrefix(std::string_view left, std::string_view right)
{
    const size_t length = std::min(left.size(), right.size());
    size_t at = 0;
    for (; at + sizeof(quint64) <= length; at += sizeof(quint64)) {
        quint64 leftBytes;
        quint64 rightBytes;
        std::memcpy(&leftBytes, left.data() + at, sizeof leftBytes);
        std::memcpy(&rightBytes, right.data() + at, sizeof rightBytes);
        if (leftBytes != rightBytes)
            break;
    }
    while (at < length && left[at] == right[at])
        ++at;
    return at;
}

bool IsContinuation(char byte) { return (static_cast<uchar>(byte) & 0xC0) == 0x80; }

/// A place at or before `at`, no more than a few bytes off, where the reader of the whole text would
/// begin a folded code point, whatever follows behind `at`.
size_t SafeStart(std::string_view utf8, size_t at)
{
    constexpr size_t kLongestTail = 3;
    size_t start = at;
    while (start > 0 && at - start < kLongestTail && IsContinuation(utf8[start - 1]))
        --start;
    if (start == 0 || static_cast<uchar>(utf8[start - 1]) < 0xC0)
        start = at;
    else
        --start;
    // The code point in front may be a half-width kana whose voicing mark begins here.
    if (start >= 3 && utf8[start - 3] == '\xEF')
        start -= 3;
    return start;
}

} // namespace

char32_t FoldCodePoint(char32_t codePoint) { return SharedTables().FoldOf(codePoint); }

quint32 WeightOf(char32_t foldedCodePoint) { return SharedTables().WeightOf(foldedCodePoint); }

char32_t VoicedPair(char32_t base, char32_t mark)
{
    constexpr char32_t kVoiced = 0xFF9E;
    constexpr char32_t kSemiVoiced = 0xFF9F;
    if ((mark != kVoiced && mark != kSemiVoiced) || !IsHalfWidthKatakana(base))
        return 0;
    const bool hasSemiVoiced = base >= 0xFF8A && base <= 0xFF8E; // ha to ho
    if (mark == kSemiVoiced)
        return hasSemiVoiced ? FoldCodePoint(base) + 2 : 0;
    if (hasSemiVoiced || (base >= 0xFF76 && base <= 0xFF84)) // ka to to
        return FoldCodePoint(base) + 1;
    switch (base) {
    case 0xFF73: return 0x30F4; // vu
    case 0xFF9C: return 0x30F7; // va
    case 0xFF66: return 0x30FA; // vo
    default: return 0;
    }
}

char32_t HalfWidthBaseOf(char32_t foldedCodePoint)
{
    if (foldedCodePoint < 0x30AC || foldedCodePoint > 0x30FA) // ga to vo
        return 0;
    for (char32_t base = 0xFF66; base <= 0xFF9D; ++base)
        if (VoicedPair(base, 0xFF9E) == foldedCodePoint || VoicedPair(base, 0xFF9F) == foldedCodePoint)
            return base;
    return 0;
}

std::u32string FormsOf(char32_t foldedCodePoint)
{
    std::u32string forms;
    if (FoldCodePoint(foldedCodePoint) != foldedCodePoint)
        return forms;
    forms.push_back(foldedCodePoint);
    for (const FoldRun &run : FoldRuns()) {
        const char32_t form = Shifted(foldedCodePoint, -run.delta);
        if (form >= run.first && form <= run.last && (form - run.first) % run.step == 0)
            forms.push_back(form);
    }
    return forms;
}

FoldedText Fold(QStringView text)
{
    const Tables &tables = SharedTables();
    FoldedText result;
    result.folded.reserve(static_cast<size_t>(text.size()));
    result.starts.reserve(static_cast<size_t>(text.size()) + 1);
    Utf16Reader reader(text);
    while (!reader.AtEnd()) {
        result.starts.push_back(reader.Position());
        result.folded.push_back(NextFolded(reader, tables));
    }
    result.starts.push_back(text.size());
    return result;
}

void FoldUtf8(std::string_view utf8, std::u32string &out)
{
    const Tables &tables = SharedTables();
    out.resize(utf8.size());
    char32_t *to = out.data();
    Utf8Reader reader(utf8);
    while (!reader.AtEnd())
        *to++ = NextFolded(reader, tables);
    out.resize(static_cast<size_t>(to - out.data()));
}

int Compare(QStringView left, QStringView right)
{
    return CompareFolded(Utf16Reader(left), Utf16Reader(right), SharedTables());
}

int CompareUtf8(std::string_view left, std::string_view right)
{
    size_t at = CommonPrefix(left, right);
    if (at == left.size() && at == right.size())
        return 0;
    const Tables &tables = SharedTables();
    at = SafeStart(left, at);
    for (const size_t length = std::min(left.size(), right.size()); at < length; ++at) {
        const auto leftByte = static_cast<uchar>(left[at]);
        const auto rightByte = static_cast<uchar>(right[at]);
        if (static_cast<size_t>(leftByte | rightByte) >= kAsciiSize)
            break;
        const quint32 leftWeight = tables.foldedAsciiWeight[leftByte];
        const quint32 rightWeight = tables.foldedAsciiWeight[rightByte];
        if (leftWeight != rightWeight)
            return leftWeight < rightWeight ? -1 : 1;
    }
    return CompareFolded(Utf8Reader(left.substr(at)), Utf8Reader(right.substr(at)), tables);
}

bool Same(QStringView left, QStringView right) { return Compare(left, right) == 0; }

qsizetype MatchedLength(QStringView text, std::u32string_view folded)
{
    const Tables &tables = SharedTables();
    Utf16Reader reader(text);
    for (const char32_t wanted : folded)
        if (reader.AtEnd() || NextFolded(reader, tables) != wanted)
            return -1;
    return reader.Position();
}

Match FindMatch(QStringView haystack, QStringView needle, qsizetype from)
{
    if (from < 1)
        throw RuntimeError(RuntimeError::InvalidCall);
    if (from > haystack.size())
        return {};
    if (needle.isEmpty())
        return {from, 0};
    const Tables &tables = SharedTables();
    const std::u32string wanted = Fold(needle).folded;
    for (Utf16Reader start(haystack.sliced(from - 1)); !start.AtEnd(); NextFolded(start, tables)) {
        const qsizetype length = MatchedLength(haystack.sliced(from - 1 + start.Position()), wanted);
        if (length >= 0)
            return {from + start.Position(), length};
    }
    return {};
}

qsizetype TextFind(QStringView haystack, QStringView needle, qsizetype from)
{
    return FindMatch(haystack, needle, from).position;
}

} // namespace text
