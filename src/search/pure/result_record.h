#pragma once

#include <QByteArray>
#include <QString>

/// The key of a hit as `ListData.dat` keeps it.
struct ResultKey {
    QString word; ///< trimmed
    qint32 autoID = 0;
    /// The record had no room for the whole word: only the number tells the row.
    bool wordMayBeCut = false;

    bool operator==(const ResultKey &) const = default;
};

inline constexpr int kResultRecordLength = 520;

/// A record: 512 bytes of the headword (Shift_JIS, padded with blanks), then the number as 8 decimal
/// digits.
QByteArray EncodeResult(const QString &word, qint32 autoID);
/// Reads such a record; a number that is none counts as 0.
ResultKey DecodeResult(const QByteArray &record);
/// The number alone.
qint32 ResultNumber(const QByteArray &record);
