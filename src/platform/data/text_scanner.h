#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace data
{

/// Looks for a folded literal in raw UTF-8, a vector of bytes at a time and without decoding. Folding
/// lets a character stand in several byte forms. Those of equal length that differ in single bits
/// ("a" and "A", the two kinds of kana) are looked for at once; the others ("ａ", half-width kana) are
/// watched for as strangers: where one occurs, the text has to be decoded to know.
class TextScanner
{
public:
    enum class Finding { Absent, Possible, Certain };

    /// Prepares for the literal, which is not empty.
    explicit TextScanner(std::u32string_view foldedLiteral);

    /// Whether the literal may occur in the text. Absent and Certain are exact; nothing is read
    /// beyond the view.
    Finding Find(std::string_view utf8) const;

private:
    /// A byte of the literal: it matches where the text's byte, with `mask` set, is `value`.
    struct MaskedByte {
        unsigned char mask;
        unsigned char value;
    };
    /// The first three bytes of a form that does not fit the masked bytes; a shorter form holds zeros
    /// that its length leaves out of the comparison.
    struct Stranger {
        unsigned char bytes[3];
        size_t length;
    };
    /// The forms of one folded code point.
    struct Character {
        std::vector<MaskedByte> bytes;
        std::vector<Stranger> strangers;
        bool isExact; ///< the masked bytes match its forms and nothing else
        bool canScan; ///< its strangers are few and rare enough
    };
    /// A pair of neighbouring bytes that strangers begin with.
    struct StrangerLead {
        unsigned char first;
        MaskedByte second;
    };
    struct Scan;

    static Character FormsOf(char32_t folded);
    bool Add(const Character &character);
    bool AddLead(const Stranger &stranger);
    void ChooseAnchors();
    bool IsLiteralAt(const unsigned char *at) const;
    bool IsStrangerAt(const unsigned char *at, const unsigned char *end) const;

    template <size_t Width> [[gnu::always_inline]] inline Finding FindIn(const Scan &scan) const;
    Finding FindBaseline(const Scan &scan) const;
#ifdef __x86_64__
    Finding FindAvx2(const Scan &scan) const;
#endif

    std::vector<MaskedByte> m_bytes;
    std::vector<Stranger> m_strangers;
    std::vector<StrangerLead> m_leads;
    size_t m_anchors[2] = {0, 0};
    bool m_isExact = false;
};

} // namespace data
