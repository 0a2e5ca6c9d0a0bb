#pragma once

#include "presentation/pure/help_book.h"

/// A row of the index.
struct HelpIndexEntry {
    QString word, reading;
    /// What the row shows: the word, with the topic's title where several topics have that word.
    QString label;
    qsizetype topic = 0;
};

/// The index of all topics, in the order of the readings.
QList<HelpIndexEntry> HelpIndex(const HelpBook &book);

/// The row for a text that is being typed: the first whose word or reading begins with it, else the
/// first whose word holds it, else the one before which it would stand. Case, width and kana type
/// are ignored, blanks around it too. -1 for an empty text, and without rows.
qsizetype IndexRowFor(const QList<HelpIndexEntry> &index, const QString &typed);
