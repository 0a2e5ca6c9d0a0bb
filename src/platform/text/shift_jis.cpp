#include "platform/text/shift_jis.h"

#include "platform/failure/runtime_error.h"

#include <QChar>
#include <algorithm>
#include <array>
#include <iconv.h>
#include <string>
#include <string_view>

namespace text
{

namespace
{

constexpr char16_t kUndecodable = 0x30FB;
constexpr char32_t kReplacement = 0xFFFD;
constexpr char kSubstitute = '?';
constexpr qint32 kInternalError = 51;
constexpr int kNoCode = -1;
constexpr int kAsciiSize = 0x80;
constexpr int kByteValues = 0x100;
constexpr int kCodes = 0x10000;
/// Stands in the decoding table for codes without a character; U+FFFF is none either.
constexpr char16_t kNoCharacter = 0xFFFF;

bool IsLead(int byte) { return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC); }
bool IsTrail(int byte) { return byte >= 0x40 && byte <= 0xFC && byte != 0x7F; }
bool IsAscii(int byte) { return byte < kAsciiSize; }

struct BestFit {
    char16_t character;
    quint16 code;
};
/// Characters that other converters of this code page use for what it has under another one.
constexpr BestFit kBestFits[] = {
    {0x301C, 0x8160}, {0x2212, 0x817C}, {0x2016, 0x8161}, {0x2014, 0x815C},
    {0x00A2, 0x8191}, {0x00A3, 0x8192}, {0x00AC, 0x81CA}, {0x00A5, 0x005C},
};

/// One direction of the system's converter.
class Converter
{
public:
    Converter(const char *to, const char *from) : m_descriptor(iconv_open(to, from))
    {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): that is how the call reports its failure
        if (m_descriptor == iconv_t(-1))
            throw RuntimeError(kInternalError, RuntimeError::defaultSource(),
                               QStringLiteral("システムに文字コード CP932 の変換機能がありません。"));
    }
    ~Converter() { iconv_close(m_descriptor); }
    Converter(const Converter &) = delete;
    Converter &operator=(const Converter &) = delete;

    /// Converts the whole input to at most `room` bytes; the number written, or -1.
    qsizetype Convert(const void *input, size_t size, void *output, size_t room)
    {
        auto *in = static_cast<char *>(const_cast<void *>(input));
        auto *out = static_cast<char *>(output);
        const size_t result = iconv(m_descriptor, &in, &size, &out, &room);
        if (result == size_t(-1)) {
            iconv(m_descriptor, nullptr, nullptr, nullptr, nullptr);
            return -1;
        }
        return out - static_cast<char *>(output);
    }

private:
    iconv_t m_descriptor;
};

/// The code page spread out once, both ways: a table look-up a character is many times faster than
/// a call of the converter, and needs no state that threads would have to share.
struct Tables {
    std::array<char16_t, kCodes> character; ///< by code; kNoCharacter for none
    std::array<int, kCodes> exactCode;      ///< by character, best fits left out; kNoCode for none
    std::array<int, kCodes> code;           ///< the same with the best fits

    Tables()
    {
        character.fill(kNoCharacter);
        exactCode.fill(kNoCode);
        Converter toText(Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "UTF-16LE" : "UTF-16BE", "CP932");
        Converter toBytes("CP932", Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "UTF-16LE" : "UTF-16BE");
        for (int value = 0; value < kByteValues; ++value) {
            if (!IsLead(value)) {
                Add(value, toText, toBytes);
                continue;
            }
            for (int trail = 0; trail < kByteValues; ++trail)
                if (IsTrail(trail))
                    Add(value * kByteValues + trail, toText, toBytes);
        }
        code = exactCode;
        for (const BestFit &fit : kBestFits)
            code[fit.character] = fit.code;
    }

private:
    void Add(int value, Converter &toText, Converter &toBytes)
    {
        const uchar bytes[2] = {static_cast<uchar>(value / kByteValues),
                                static_cast<uchar>(value % kByteValues)};
        const bool isDouble = value >= kByteValues;
        char16_t decoded[2];
        if (toText.Convert(isDouble ? bytes : bytes + 1, isDouble ? 2 : 1, decoded, sizeof decoded) !=
            sizeof(char16_t))
            return;
        character[static_cast<size_t>(value)] = decoded[0];
        // Some characters stand twice in the code page: the converter knows the usual code.
        uchar back[2];
        const qsizetype length = toBytes.Convert(decoded, sizeof(char16_t), back, sizeof back);
        if (length > 0)
            exactCode[decoded[0]] = length == 1 ? back[0] : back[0] * kByteValues + back[1];
    }
};

const Tables &SharedTables()
{
    static const Tables tables;
    return tables;
}

template <typename Bytes> void AppendCode(Bytes &out, int code)
{
    if (code >= kByteValues)
        out.push_back(static_cast<char>(code / kByteValues));
    out.push_back(static_cast<char>(code % kByteValues));
}

/// The code point at `at`, which moves behind it; an unpaired surrogate is one.
char32_t NextCodePoint(QStringView text, qsizetype &at)
{
    const char16_t unit = text[at++].unicode();
    if (QChar::isHighSurrogate(unit) && at < text.size() && text[at].isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text[at++].unicode());
    return unit;
}

int CodeIn(const std::array<int, kCodes> &codes, char32_t codePoint)
{
    return codePoint < kCodes ? codes[codePoint] : kNoCode;
}

/// Encodes by the table, what it lacks by `appendLacking(out, codePoint)`.
template <typename AppendLacking>
QByteArray Encode(QStringView text, const std::array<int, kCodes> &codes, AppendLacking appendLacking)
{
    QByteArray out;
    out.reserve(text.size() * 2);
    for (qsizetype at = 0; at < text.size();) {
        const char32_t codePoint = NextCodePoint(text, at);
        const int code = CodeIn(codes, codePoint);
        if (code != kNoCode)
            AppendCode(out, code);
        else
            appendLacking(out, codePoint);
    }
    return out;
}

constexpr char16_t kReferenceStart[] = u"&#x";
constexpr qsizetype kReferenceStartLength = 3;
constexpr qsizetype kMostDigits = 6;

/// A character reference of a record at the start of a text.
struct Reference {
    qsizetype length = 0; ///< 0: there is none
    char32_t codePoint = 0;
};

/// Reads exactly the references that AppendReference writes: upper-case digits, no leading zero.
Reference ReferenceAt(QStringView text)
{
    if (!text.startsWith(QStringView(kReferenceStart, kReferenceStartLength)))
        return {};
    char32_t codePoint = 0;
    qsizetype at = kReferenceStartLength;
    for (; at < text.size() && at <= kReferenceStartLength + kMostDigits; ++at) {
        const char16_t digit = text[at].unicode();
        if (digit == u';')
            break;
        const bool isDecimal = digit >= u'0' && digit <= u'9';
        if ((!isDecimal && (digit < u'A' || digit > u'F')) || (digit == u'0' && at == kReferenceStartLength))
            return {};
        codePoint = codePoint * 16 + (isDecimal ? digit - u'0' : digit - u'A' + 10U);
    }
    const qsizetype digits = at - kReferenceStartLength;
    if (at == text.size() || text[at] != u';' || digits == 0 || digits > kMostDigits ||
        codePoint > QChar::LastValidCodePoint)
        return {};
    return {at + 1, codePoint};
}

std::string ReferenceTo(char32_t codePoint)
{
    return "&#x" + QByteArray::number(static_cast<uint>(codePoint), 16).toUpper().toStdString() + ';';
}

/// Encodes as a record until `add(piece)`, given the bytes of one character, returns false.
template <typename Add> void EncodeRecordPieces(QStringView text, Add add)
{
    const Tables &tables = SharedTables();
    std::string piece; // short enough to need no memory of its own
    for (qsizetype at = 0; at < text.size();) {
        const bool startsReference = text[at] == u'&' && ReferenceAt(text.sliced(at)).length > 0;
        const char32_t codePoint = NextCodePoint(text, at);
        const int code = CodeIn(tables.exactCode, codePoint);
        piece.clear();
        if (code == kNoCode || startsReference)
            piece = ReferenceTo(codePoint);
        else
            AppendCode(piece, code);
        if (!add(piece))
            return;
    }
}

} // namespace

QString Decode(QByteArrayView bytes)
{
    const Tables &tables = SharedTables();
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *const begin = text.data();
    QChar *out = begin;
    const qsizetype size = bytes.size();
    const auto *const in = reinterpret_cast<const uchar *>(bytes.data());
    for (qsizetype at = 0; at < size;) {
        const size_t byte = in[at++];
        if (IsAscii(static_cast<int>(byte))) {
            *out++ = QChar(static_cast<char16_t>(byte));
            continue;
        }
        // Codes that begin with no lead byte have no character in the table.
        const size_t trail = at < size ? in[at] : 0;
        if (const char16_t pair = tables.character[byte * kByteValues + trail]; pair != kNoCharacter) {
            *out++ = pair;
            ++at;
            continue;
        }
        if (!IsLead(static_cast<int>(byte))) {
            const char16_t single = tables.character[byte];
            *out++ = single == kNoCharacter ? kUndecodable : single;
            continue;
        }
        *out++ = kUndecodable;
        // The trail of a code that is not assigned goes with its lead, or what follows would be read
        // out of step; a trail that is ASCII is more likely to be just that.
        if (IsTrail(static_cast<int>(trail)) && !IsAscii(static_cast<int>(trail))) {
            *out++ = kUndecodable;
            ++at;
        }
    }
    text.truncate(out - begin);
    return text;
}

QByteArray EncodePage(QStringView text)
{
    return Encode(text, SharedTables().code, [](QByteArray &out, char32_t codePoint) {
        const char32_t shown = QChar::isSurrogate(codePoint) ? kReplacement : codePoint;
        out.append("&#").append(QByteArray::number(static_cast<uint>(shown))).append(';');
    });
}

QByteArray EncodeRecord(QStringView text)
{
    QByteArray out;
    out.reserve(text.size() * 2);
    EncodeRecordPieces(text, [&out](std::string_view piece) {
        out.append(piece.data(), qsizetype(piece.size()));
        return true;
    });
    return out;
}

QString DecodeRecord(QByteArrayView bytes)
{
    QString raw = Decode(bytes);
    qsizetype at = raw.indexOf(u'&');
    if (at < 0)
        return raw;
    QString text = raw.first(at);
    while (at < raw.size()) {
        const Reference reference = ReferenceAt(QStringView(raw).sliced(at));
        if (reference.length == 0)
            text.append(raw[at++]);
        else if (reference.codePoint < kCodes)
            text.append(QChar(static_cast<char16_t>(reference.codePoint)));
        else
            text.append(QStringView(QChar::fromUcs4(reference.codePoint)));
        at += reference.length;
    }
    return text;
}

QByteArray FixedField(QStringView text, qsizetype size)
{
    QByteArray field;
    field.reserve(size);
    EncodeRecordPieces(text, [&field, size](std::string_view piece) {
        const bool fits = field.size() + qsizetype(piece.size()) <= size;
        if (fits)
            field.append(piece.data(), qsizetype(piece.size()));
        return fits;
    });
    return field.leftJustified(size, ' ');
}

bool FieldCuts(QStringView text, qsizetype size) { return EncodeRecord(text).size() > size; }

QByteArray EncodePlain(QStringView text)
{
    return Encode(text, SharedTables().code, [](QByteArray &out, char32_t) { out.append(kSubstitute); });
}

int CodeOf(char16_t character) { return SharedTables().code[character]; }

} // namespace text
