#pragma once

#include "presentation/pure/entry_page.h"

/// What a page of hits marks in its entries. Numbers are those of the shared state.
struct EntryMarks {
    int mode = 0;
    int compositeKind = 0;
    QString searchText;
    QString meaningText, exampleText; ///< the further conditions'
};

/// The line of one entry with what was looked for marked. The headword shows the text as it was
/// typed, meanings and examples show the record's own. Raises 5 where a text that must be marked is
/// not in its field.
QString MarkedEntryLine(const EntryFields &record, const EntryMarks &marks);
