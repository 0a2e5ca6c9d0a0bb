#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace data
{

/// Looks for a folded literal in raw UTF-8, a vector of bytes at a time and without decoding. Folding
/// lets a character stand in several byte forms. Those that differ from its folded form in a few bits
/// ("a" and "A", the two kinds of kana) are looked for at once; the others ("ａ", half-width kana) are
/// watched for as strangers: where one occurs, the text has to be decoded to know.
class TextScanner
{
public:
    enum class Finding { Absent, Possible, Certain };
    /// The widest vectors that this machine has, or those that every one has.
    enum class Vectors { Widest, Baseline };

    /// Prepares for a literal; the part of it that is easiest to look for stands for the whole.
    explicit TextScanner(std::u32string_view foldedLiteral);

    /// Whether there is a part to look for; if not, Find always answers Possible.
    bool IsUseful() const { return !m_part.bytes.empty(); }

    /// Whether the literal occurs in the text. Absent and Certain are exact. Nothing is read beyond
    /// the view.
    Finding Find(std::string_view utf8, Vectors vectors = Vectors::Widest) const;

    /// Where the literal may stand in bytes that hold texts among others: each text that holds it holds
    /// one of the places, which come in no order. False, and some of them, where there are more than
    /// `most`, and without a part to look for.
    bool FindPlaces(std::string_view bytes, std::vector<size_t> &places, size_t most,
                    Vectors vectors = Vectors::Widest) const;

private:
    /// It matches a byte that, with the bits of `mask` set, is `value`.
    struct MaskedByte {
        unsigned char mask;
        unsigned char value;
    };
    /// The first bytes of a form that the masked bytes do not cover.
    struct Stranger {
        std::string bytes;
    };
    /// Two bytes that stand at fixed offsets where something of `length` bytes may begin.
    struct Probe {
        size_t offsets[2];
        MaskedByte bytes[2];
        size_t length;
    };
    /// What is looked for: consecutive characters of the literal.
    struct Part {
        std::vector<MaskedByte> bytes;
        std::vector<Stranger> strangers;
        std::vector<Probe> leads; ///< the pairs of bytes by which the strangers are looked for
        size_t characters = 0;
        bool isExact = true; ///< the masked bytes match forms of the characters and nothing else

        bool Add(const Part &character);
        bool AddLead(const Stranger &stranger);
    };

    static Part PartOf(char32_t folded);
    void ChooseAnchors();
    bool IsLiteralAt(const unsigned char *at, const unsigned char *end) const;
    bool IsStrangerAt(const unsigned char *at, const unsigned char *end) const;

    template <size_t Width>
    [[gnu::always_inline]] static inline const unsigned char *
    NextCandidate(const Probe &probe, const unsigned char *at, const unsigned char *end);
    template <size_t Width>
    [[gnu::always_inline]] inline const unsigned char *
    NextByBlocks(const Probe &probe, const unsigned char *at, const unsigned char *end) const;
    const unsigned char *NextBaseline(const Probe &probe, const unsigned char *at,
                                      const unsigned char *end) const;
    const unsigned char *NextAvx2(const Probe &probe, const unsigned char *at,
                                  const unsigned char *end) const;
    const unsigned char *Next(const Probe &probe, const unsigned char *at, const unsigned char *end,
                              Vectors vectors) const;

    Part m_part;
    Probe m_anchors{}; ///< the two rarest bytes of the part
};

} // namespace data
