#include "platform/data/text_scanner.h"

#include "platform/text/fold.h"

#include <QChar>
#include <QStringView>
#include <algorithm>
#include <bit>
#include <cstring>

namespace data
{

namespace
{

constexpr char32_t kReplacement = 0xFFFD;
/// More bytes of a literal do not make it rarer.
constexpr size_t kLongestPart = 32;
constexpr size_t kMostLeads = 4;
constexpr int kMostMaskedBits = 4;
constexpr int kMostLeadBits = 2;
constexpr size_t kStrangerSize = 3;
constexpr size_t kAnchorCount = 2;
constexpr size_t kBlocksAtOnce = 4;
/// Headwords are mostly too short to fill a wide vector and would be searched byte by byte.
constexpr size_t kLeastForWidest = 64;
/// Kana and Japanese punctuation begin with it.
constexpr unsigned char kJapaneseLead = 0xE3;

/// Bytes that are compared at once, and what comparing them gives. The compiler makes of them what
/// the machine has.
template <size_t Width> struct Vector;
template <> struct Vector<16> {
    typedef unsigned char Block __attribute__((vector_size(16)));
    typedef signed char Hits __attribute__((vector_size(16)));
};
template <> struct Vector<32> {
    typedef unsigned char Block __attribute__((vector_size(32)));
    typedef signed char Hits __attribute__((vector_size(32)));
};

std::string Utf8(char32_t codePoint)
{
    if (QChar::isSurrogate(codePoint))
        return {}; // valid UTF-8 holds none
    return QStringView(QChar::fromUcs4(codePoint)).toUtf8().toStdString();
}

unsigned char ByteAt(std::string_view bytes, size_t at) { return static_cast<unsigned char>(bytes[at]); }

/// Whether no character of several bytes stands in the text; strangers are such.
bool IsAscii(const unsigned char *at, const unsigned char *end)
{
    constexpr quint64 kHighBits = 0x8080808080808080;
    quint64 seen = 0;
    for (; static_cast<size_t>(end - at) >= sizeof seen; at += sizeof seen) {
        quint64 bytes;
        std::memcpy(&bytes, at, sizeof bytes);
        seen |= bytes;
    }
    for (; at != end; ++at)
        seen |= *at;
    return (seen & kHighBits) == 0;
}

/// The number of bits in which two forms of equal length differ.
int DifferingBits(std::string_view left, std::string_view right)
{
    int bits = 0;
    for (size_t i = 0; i < left.size(); ++i)
        bits += std::popcount(static_cast<unsigned>(ByteAt(left, i) ^ ByteAt(right, i)));
    return bits;
}

/// How often a byte occurs in dictionary texts, roughly, from 0 to 255.
int Commonness(unsigned char byte)
{
    constexpr std::string_view kLettersByFrequency = "etaoinshrdlcumwfgypbvkjxqz";
    if (byte >= 0xE0)
        return 250;
    if (byte >= 0x81 && byte <= 0x83)
        return 220;
    if (byte >= 0x80)
        return 60;
    if (byte == ' ')
        return 200;
    const auto letter = static_cast<char>(byte | 0x20);
    if (const size_t rank = kLettersByFrequency.find(letter); rank != std::string_view::npos)
        return 180 - static_cast<int>(rank) * 6;
    return 25;
}

} // namespace

/// Takes a stranger up into the pairs of bytes that are looked for.
bool TextScanner::Part::AddLead(const Stranger &stranger)
{
    // The first two bytes serve all full-width letters at once. Those of the full-width blank or of the
    // wave dash would be met in every Japanese text; the two behind them hardly ever stand together.
    const size_t at = stranger.bytes.size() == kStrangerSize && ByteAt(stranger.bytes, 0) == kJapaneseLead;
    const unsigned char first = ByteAt(stranger.bytes, at);
    const unsigned char second = ByteAt(stranger.bytes, at + 1);
    for (Probe &lead : leads) {
        if (lead.offsets[0] != at || lead.bytes[0].value != first)
            continue;
        const auto mask = static_cast<unsigned char>(lead.bytes[1].mask |
                                                     ((second | lead.bytes[1].mask) ^ lead.bytes[1].value));
        if (std::popcount(mask) > kMostLeadBits)
            continue;
        lead.bytes[1] = {mask, static_cast<unsigned char>(second | mask)};
        return true;
    }
    leads.push_back({{at, at + 1}, {{0, first}, {0, second}}, at + 2});
    return leads.size() <= kMostLeads;
}

/// Appends a character; false, and nothing of use left, where that would be too much to look for.
bool TextScanner::Part::Add(const Part &character)
{
    if (character.bytes.empty() || bytes.size() + character.bytes.size() > kLongestPart)
        return false;
    for (const Stranger &stranger : character.strangers) {
        if (!AddLead(stranger))
            return false;
        strangers.push_back(stranger);
    }
    bytes.insert(bytes.end(), character.bytes.begin(), character.bytes.end());
    isExact = isExact && character.isExact;
    ++characters;
    return true;
}

/// The forms of one code point; without bytes where it is not fit to be looked for.
TextScanner::Part TextScanner::PartOf(char32_t folded)
{
    Part part;
    const std::string own = Utf8(folded);
    std::u32string forms = text::FormsOf(folded);
    // Malformed bytes of any kind read as the replacement character.
    if (folded == kReplacement || own.empty() || forms.empty())
        return part;
    if (const char32_t base = text::HalfWidthBaseOf(folded))
        forms.push_back(base);

    std::vector<unsigned char> masks(own.size(), 0);
    size_t covered = 1;
    for (const char32_t form : std::u32string_view(forms).substr(1)) {
        const std::string bytes = Utf8(form);
        const bool isClose = bytes.size() == own.size() &&
                             DifferingBits(bytes.substr(0, 1), own.substr(0, 1)) <= 1 &&
                             DifferingBits(bytes, own) <= kMostMaskedBits;
        if (isClose) {
            ++covered;
            for (size_t i = 0; i < own.size(); ++i)
                masks[i] = static_cast<unsigned char>(masks[i] | (ByteAt(bytes, i) ^ ByteAt(own, i)));
        } else {
            part.strangers.push_back({bytes.substr(0, kStrangerSize)});
        }
    }
    int maskedBits = 0;
    for (size_t i = 0; i < own.size(); ++i) {
        part.bytes.push_back({masks[i], static_cast<unsigned char>(ByteAt(own, i) | masks[i])});
        maskedBits += std::popcount(masks[i]);
    }
    part.isExact = covered == (size_t(1) << maskedBits);
    part.characters = 1;
    return part;
}

TextScanner::TextScanner(std::u32string_view foldedLiteral)
{
    Part current;
    for (const char32_t codePoint : foldedLiteral) {
        const Part character = PartOf(codePoint);
        if (Part longer = current; longer.Add(character)) {
            current = std::move(longer);
        } else {
            current = {};
            if (Part alone; alone.Add(character))
                current = std::move(alone);
        }
        if (current.bytes.size() > m_part.bytes.size())
            m_part = current;
    }
    // A part alone does not tell that the whole occurs.
    m_part.isExact = m_part.isExact && m_part.characters == foldedLiteral.size();
    ChooseAnchors();
}

void TextScanner::ChooseAnchors()
{
    std::vector<size_t> places(m_part.bytes.size());
    for (size_t i = 0; i < places.size(); ++i)
        places[i] = i;
    std::stable_sort(places.begin(), places.end(), [this](size_t a, size_t b) {
        return Commonness(m_part.bytes[a].value) < Commonness(m_part.bytes[b].value);
    });
    m_anchors.length = places.size();
    for (size_t i = 0; i < kAnchorCount && !places.empty(); ++i) {
        m_anchors.offsets[i] = places[std::min(i, places.size() - 1)];
        m_anchors.bytes[i] = m_part.bytes[m_anchors.offsets[i]];
    }
}

bool TextScanner::IsLiteralAt(const unsigned char *at, const unsigned char *end) const
{
    if (static_cast<size_t>(end - at) < m_part.bytes.size())
        return false;
    return std::all_of(m_part.bytes.begin(), m_part.bytes.end(),
                       [&at](MaskedByte byte) { return (*at++ | byte.mask) == byte.value; });
}

bool TextScanner::IsStrangerAt(const unsigned char *at, const unsigned char *end) const
{
    return std::any_of(m_part.strangers.begin(), m_part.strangers.end(), [at, end](const Stranger &stranger) {
        return static_cast<size_t>(end - at) >= stranger.bytes.size() &&
               std::memcmp(at, stranger.bytes.data(), stranger.bytes.size()) == 0;
    });
}

namespace
{

using Lane = unsigned long long;

template <size_t Width> [[gnu::always_inline]] inline bool IsAnySet(const typename Vector<Width>::Hits &hits)
{
    Lane lanes[Width / sizeof(Lane)];
    std::memcpy(lanes, &hits, Width);
    Lane any = 0;
    for (const Lane lane : lanes)
        any |= lane;
    return any != 0;
}

/// The first place that is set, of which there must be one.
template <size_t Width>
[[gnu::always_inline]] inline size_t FirstSet(const typename Vector<Width>::Hits &hits)
{
    size_t hit = 0;
    while (hits[hit] == 0)
        ++hit;
    return hit;
}

} // namespace

/// The first place from `at` on where both bytes of the probe stand; null for none.
template <size_t Width>
const unsigned char *TextScanner::NextCandidate(const Probe &probe, const unsigned char *at,
                                                const unsigned char *end)
{
    using Block = typename Vector<Width>::Block;
    using Hits = typename Vector<Width>::Hits;
    if (static_cast<size_t>(end - at) < probe.length)
        return nullptr;
    const size_t places = static_cast<size_t>(end - at) - probe.length + 1;
    const auto [firstByte, secondByte] = probe.bytes;
    const unsigned char *const firstAt = at + probe.offsets[0];
    const unsigned char *const secondAt = at + probe.offsets[1];
    const Block firstMask = Block{} + firstByte.mask;
    const Block firstValue = Block{} + firstByte.value;
    const Block secondMask = Block{} + secondByte.mask;
    const Block secondValue = Block{} + secondByte.value;
    const auto addHits = [&](size_t place, size_t size, Hits & hits) __attribute__((always_inline))
    {
        Block first{};
        Block second{};
        std::memcpy(&first, firstAt + place, size);
        std::memcpy(&second, secondAt + place, size);
        hits |= ((first | firstMask) == firstValue) & ((second | secondMask) == secondValue);
    };
    if (places < Width) {
        // A short text is copied into the block, so that nothing is read beyond it.
        Hits hits{};
        addHits(0, places, hits);
        const size_t hit = IsAnySet<Width>(hits) ? FirstSet<Width>(hits) : places;
        return hit < places ? at + hit : nullptr;
    }
    for (size_t place = 0;; place += Width) {
        // Blocks without a hit are passed over some at a time.
        for (; places - place >= kBlocksAtOnce * Width; place += kBlocksAtOnce * Width) {
            Hits hits{};
            for (size_t block = 0; block < kBlocksAtOnce; ++block)
                addHits(place + block * Width, Width, hits);
            if (IsAnySet<Width>(hits))
                break;
        }
        // The last block overlaps the one before it.
        place = std::min(place, places - Width);
        Hits hits{};
        addHits(place, Width, hits);
        if (IsAnySet<Width>(hits))
            return at + place + FirstSet<Width>(hits);
        if (place == places - Width)
            return nullptr;
    }
}

template <size_t Width>
const unsigned char *TextScanner::NextByBlocks(const Probe &probe, const unsigned char *at,
                                               const unsigned char *end) const
{
    const bool isOfLiteral = &probe == &m_anchors;
    for (; (at = NextCandidate<Width>(probe, at, end)); ++at)
        if (isOfLiteral ? IsLiteralAt(at, end) : IsStrangerAt(at, end))
            return at;
    return nullptr;
}

const unsigned char *TextScanner::NextBaseline(const Probe &probe, const unsigned char *at,
                                               const unsigned char *end) const
{
    return NextByBlocks<16>(probe, at, end);
}

#ifdef __x86_64__
[[gnu::target("avx2")]]
#endif
const unsigned char *
TextScanner::NextAvx2(const Probe &probe, const unsigned char *at, const unsigned char *end) const
{
    return NextByBlocks<32>(probe, at, end);
}

/// The first place from `at` on where what the probe belongs to stands: the literal or a stranger; null
/// for none.
const unsigned char *TextScanner::Next(const Probe &probe, const unsigned char *at, const unsigned char *end,
                                       [[maybe_unused]] Vectors vectors) const
{
#ifdef __x86_64__
    static const bool hasAvx2 = __builtin_cpu_supports("avx2") != 0;
    if (hasAvx2 && vectors == Vectors::Widest && static_cast<size_t>(end - at) >= kLeastForWidest)
        return NextAvx2(probe, at, end);
#endif
    return NextBaseline(probe, at, end);
}

TextScanner::Finding TextScanner::Find(std::string_view utf8, Vectors vectors) const
{
    if (!IsUseful())
        return Finding::Possible;
    if (utf8.empty())
        return Finding::Absent;
    const auto *begin = reinterpret_cast<const unsigned char *>(utf8.data());
    const unsigned char *end = begin + utf8.size();
    if (Next(m_anchors, begin, end, vectors) != nullptr)
        return m_part.isExact ? Finding::Certain : Finding::Possible;
    if (utf8.size() < kLeastForWidest && IsAscii(begin, end))
        return Finding::Absent;
    const bool hasStranger = std::ranges::any_of(
        m_part.leads, [&](const Probe &lead) { return Next(lead, begin, end, vectors) != nullptr; });
    return hasStranger ? Finding::Possible : Finding::Absent;
}

bool TextScanner::FindPlaces(std::string_view bytes, std::vector<size_t> &places, size_t most,
                             Vectors vectors) const
{
    places.clear();
    if (!IsUseful())
        return false;
    const auto *begin = reinterpret_cast<const unsigned char *>(bytes.data());
    const unsigned char *end = begin + bytes.size();
    const auto collect = [&](const Probe &probe) {
        for (const unsigned char *at = begin; (at = Next(probe, at, end, vectors)) != nullptr; ++at) {
            if (places.size() == most)
                return false;
            places.push_back(static_cast<size_t>(at - begin));
        }
        return true;
    };
    return collect(m_anchors) && std::ranges::all_of(m_part.leads, collect);
}

} // namespace data
