#pragma once

#include "platform/data/adodb.h"

#include <QString>
#include <QVariant>
#include <cstdint>

/// The edits of records of a dictionary, on its table opened by the index. Each commits before it
/// returns; failures are those of the recordset.

/// What tells a record from every other.
struct RecordKey {
    QString word;
    std::int32_t autoID = 0;

    bool operator==(const RecordKey &) const = default;
};

/// The columns of a record that a user edits. A text is null where it is invalid; `word` never is.
struct RecordValues {
    QVariant word, pronunciation;
    int wordPhrase = 1;
    QVariant description, example;

    bool operator==(const RecordValues &) const = default;
};

/// The key, and the values, of the row that the table stands on. A WordPhrase of null counts as 0.
RecordKey KeyOfRow(ADODB::Recordset &table);
RecordValues ValuesOfRow(ADODB::Recordset &table);

/// Adds a record; its key.
RecordKey AddRow(ADODB::Recordset &table, const RecordValues &values);
/// Changes the row that the table stands on; its key from then on.
RecordKey ChangeRow(ADODB::Recordset &table, const RecordValues &values);
/// Deletes the record of that key; raises 3021 where it has gone.
void DeleteRow(ADODB::Recordset &table, const RecordKey &key);
/// Puts a new record, with a number of its own, in the place of an old one; the new key. The new one
/// is there before the old one goes, so that whatever happens in between loses nothing, and it goes
/// again when the old one cannot be deleted. Raises 3021 where the old one has gone.
RecordKey ReplaceRow(ADODB::Recordset &table, const RecordKey &old, const RecordValues &values);
