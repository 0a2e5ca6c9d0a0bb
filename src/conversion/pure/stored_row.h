#pragma once

#include "conversion/pure/source_format.h"

#include <QStringView>

/// How many characters of a text a column of `length` characters takes: one less where the last would
/// be the first half of a surrogate pair.
qsizetype TakenLength(QStringView text, qsizetype length);

/// The columns of a row, as they are stored. No text is null: an empty one is stored as empty.
struct StoredRow {
    QString Word;
    QString Pronunciation;
    quint8 WordPhrase = 0;
    QString Description;
    QString Example;
};

/// The row of an entry: headword and pronunciation trimmed, the headword told word from phrase, then
/// every text cut at the length of its column.
StoredRow RowOf(const SourceEntry &entry);
