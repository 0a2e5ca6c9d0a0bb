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
/// More bytes of a literal do not make it rarer, and the tail of a text is copied by this measure.
constexpr size_t kLongestPart = 32;
constexpr size_t kMostLeads = 4;
constexpr int kMostMaskedBits = 4;
constexpr int kMostLeadBits = 2;
constexpr size_t kStrangerSize = 3;
constexpr size_t kAnchorCount = 2;
/// The blank's full-width form begins as the Japanese comma does: it would be met all the time.
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

bool TextScanner::Part::AddLead(const Stranger &stranger)
{
    const unsigned char first = ByteAt(stranger.bytes, 0);
    const unsigned char second = ByteAt(stranger.bytes, 1);
    for (Lead &lead : leads) {
        if (lead.first != first)
            continue;
        const auto mask =
            static_cast<unsigned char>(lead.second.mask | ((second | lead.second.mask) ^ lead.second.value));
        if (std::popcount(mask) > kMostLeadBits)
            continue;
        lead.second = {mask, static_cast<unsigned char>(second | mask)};
        return true;
    }
    leads.push_back({first, {0, second}});
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
        } else if (ByteAt(bytes, 0) == kJapaneseLead) {
            return {};
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

/// The anchors are the two rarest bytes: only where both stand is the rest compared.
void TextScanner::ChooseAnchors()
{
    std::vector<size_t> places(m_part.bytes.size());
    for (size_t i = 0; i < places.size(); ++i)
        places[i] = i;
    std::stable_sort(places.begin(), places.end(), [this](size_t a, size_t b) {
        return Commonness(m_part.bytes[a].value) < Commonness(m_part.bytes[b].value);
    });
    for (size_t i = 0; i < kAnchorCount && !places.empty(); ++i)
        m_anchors[i] = places[std::min(i, places.size() - 1)];
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

template <size_t Width>
TextScanner::Finding TextScanner::FindByBlocks(const unsigned char *at, const unsigned char *end) const
{
    using Byte = unsigned char;
    using Block = typename Vector<Width>::Block;
    using Hits = typename Vector<Width>::Hits;
    constexpr size_t kLaneSize = sizeof(unsigned long long);
    constexpr size_t kLanes = Width / kLaneSize;

    Block anchorMasks[kAnchorCount];
    Block anchorValues[kAnchorCount];
    for (size_t i = 0; i < kAnchorCount; ++i) {
        anchorMasks[i] = Block{} + m_part.bytes[m_anchors[i]].mask;
        anchorValues[i] = Block{} + m_part.bytes[m_anchors[i]].value;
    }
    const size_t leadCount = m_part.leads.size();
    Block leadFirsts[kMostLeads];
    Block leadMasks[kMostLeads];
    Block leadValues[kMostLeads];
    for (size_t i = 0; i < leadCount; ++i) {
        leadFirsts[i] = Block{} + m_part.leads[i].first;
        leadMasks[i] = Block{} + m_part.leads[i].second.mask;
        leadValues[i] = Block{} + m_part.leads[i].second.value;
    }
    const size_t reach = std::max({m_anchors[0], m_anchors[1], size_t(1)});

    // The last bytes are copied before they are read by blocks, which would go beyond the text.
    Byte tail[3 * Width + 2 * kLongestPart];
    bool isTail = false;
    for (;; at += Width) {
        if (!isTail && static_cast<size_t>(end - at) < Width + reach) {
            const auto rest = static_cast<size_t>(end - at);
            std::memset(tail, 0, sizeof tail);
            std::memcpy(tail, at, rest);
            at = tail;
            end = tail + rest;
            isTail = true;
        }
        if (isTail && at >= end)
            return Finding::Absent;

        Block bytes;
        Block other;
        std::memcpy(&bytes, at + m_anchors[0], Width);
        std::memcpy(&other, at + m_anchors[1], Width);
        Hits hits =
            ((bytes | anchorMasks[0]) == anchorValues[0]) & ((other | anchorMasks[1]) == anchorValues[1]);
        if (leadCount > 0) {
            std::memcpy(&bytes, at, Width);
            std::memcpy(&other, at + 1, Width);
            for (size_t i = 0; i < leadCount; ++i)
                hits |= (bytes == leadFirsts[i]) & ((other | leadMasks[i]) == leadValues[i]);
        }

        unsigned long long lanes[kLanes];
        std::memcpy(lanes, &hits, Width);
        for (size_t lane = 0; lane < kLanes; ++lane) {
            if (lanes[lane] == 0)
                continue;
            for (size_t i = lane * kLaneSize; i < (lane + 1) * kLaneSize && at + i < end; ++i) {
                if (hits[i] == 0)
                    continue;
                if (IsLiteralAt(at + i, end))
                    return m_part.isExact ? Finding::Certain : Finding::Possible;
                if (IsStrangerAt(at + i, end))
                    return Finding::Possible;
            }
        }
    }
}

TextScanner::Finding TextScanner::FindBaseline(const unsigned char *begin, const unsigned char *end) const
{
    return FindByBlocks<16>(begin, end);
}

#ifdef __x86_64__
[[gnu::target("avx2")]]
#endif
TextScanner::Finding
TextScanner::FindAvx2(const unsigned char *begin, const unsigned char *end) const
{
    return FindByBlocks<32>(begin, end);
}

TextScanner::Finding TextScanner::Find(std::string_view utf8, [[maybe_unused]] Vectors vectors) const
{
    if (!IsUseful())
        return Finding::Possible;
    if (utf8.empty())
        return Finding::Absent;
    const auto *begin = reinterpret_cast<const unsigned char *>(utf8.data());
    const unsigned char *end = begin + utf8.size();
#ifdef __x86_64__
    static const bool hasAvx2 = __builtin_cpu_supports("avx2") != 0;
    if (hasAvx2 && vectors == Vectors::Widest)
        return FindAvx2(begin, end);
#endif
    return FindBaseline(begin, end);
}

} // namespace data
