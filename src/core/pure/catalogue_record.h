#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// One entry of the dictionary catalogue.
struct Lexicon {
    QString DicName;       ///< trimmed
    QString DicPath;       ///< drive path, trimmed
    qint16 IsSelected = 0; ///< -1 for the dictionary in use
    qint16 IsDeleted = 0;  ///< -1 for a free slot
    /// The fields of the file, where the texts that were read from them do not give them back: somebody else
    /// has written them, in another encoding perhaps.
    QByteArray nameField{}, pathField{};

    bool operator==(const Lexicon &) const = default;
};

inline constexpr int kLexiconRecordLength = 309;
inline constexpr int kDicNameLength = 50;
inline constexpr int kDicPathLength = 255;

/// The slot of an entry, not deleted, that bears the name: just so, else in another case, width or kana type;
/// -1 where there is none. Blanks around a name do not count, and the last slot is spare.
qsizetype SlotNamed(const QList<Lexicon> &lexicons, const QString &name);

/// A record of `lexicons.dat`: 50 bytes name, 255 bytes path (Shift_JIS, padded with blanks), two
/// 16-bit little-endian flags, of which the second is always 0.
QByteArray EncodeLexicon(const Lexicon &lexicon);
/// Reads such a record; IsDeleted is 0 whatever the record holds.
Lexicon DecodeLexicon(const QByteArray &record);
