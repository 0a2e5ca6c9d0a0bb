#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

inline constexpr int kWordBookRecordLength = 255;

/// The content of `WordBook.dat`: a record a row, in Shift_JIS and padded with blanks. A longer row
/// is cut on the boundary of a character.
QByteArray EncodeWordBook(const QStringList &rows);

/// The headword of a record.
QString DecodeWordBookRecord(const QByteArray &record);

/// The rows' numbers in the order of their texts in lower case, by character codes.
QList<qsizetype> SortedOrder(const QStringList &rows);
