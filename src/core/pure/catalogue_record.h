#pragma once

#include <QByteArray>
#include <QString>

/// One entry of the dictionary catalogue.
struct Lexicon {
    QString DicName;       ///< trimmed
    QString DicPath;       ///< drive path, trimmed
    qint16 IsSelected = 0; ///< -1 for the dictionary in use
    qint16 IsDeleted = 0;  ///< -1 for a free slot

    bool operator==(const Lexicon &) const = default;
};

inline constexpr int kLexiconRecordLength = 309;
inline constexpr int kDicNameLength = 50;
inline constexpr int kDicPathLength = 255;

/// A record of `lexicons.dat`: 50 bytes name, 255 bytes path (Shift_JIS, padded with blanks), two
/// 16-bit little-endian flags, of which the second is always 0.
QByteArray EncodeLexicon(const Lexicon &lexicon);
/// Reads such a record; IsDeleted is 0 whatever the record holds.
Lexicon DecodeLexicon(const QByteArray &record);
