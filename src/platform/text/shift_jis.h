#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

/// Code page 932 (the Shift_JIS of Windows), through iconv's CP932.
namespace text
{

/// Text of the bytes; each undecodable byte becomes U+30FB.
QString Decode(QByteArrayView bytes);

/// Bytes of a page (`home.html`, `sscDefi.dat`): what code page 932 lacks becomes a decimal
/// character reference (`&#233;`), an unpaired surrogate `&#65533;`; best fits are taken.
QByteArray EncodePage(QStringView text);

/// Bytes of a fixed record or of a text setting: what code page 932 lacks, or has only as a best
/// fit, becomes `&#xHEX;` (upper-case digits), and an `&` that would read as such a reference
/// becomes `&#x26;`, so that DecodeRecord gives back exactly what was written.
QByteArray EncodeRecord(QStringView text);

/// Reverses EncodeRecord; undecodable bytes become U+30FB each.
QString DecodeRecord(QByteArrayView bytes);

/// EncodeRecord cut to at most `size` bytes on the boundary of a character and of a reference, and
/// padded with blanks to exactly `size` bytes.
QByteArray FixedField(QStringView text, qsizetype size);

/// Whether EncodeRecord of the text is longer than `size` bytes, so that FixedField cuts it.
bool FieldCuts(QStringView text, qsizetype size);

/// Bytes of source text and plain text files: best fits are taken, what is lacking becomes `?`.
QByteArray EncodePlain(QStringView text);

/// The code of a character in code page 932, 0 to 255 for one byte, else lead * 256 + trail;
/// -1 where it has none (best fits count as having one).
int CodeOf(char16_t character);

} // namespace text
