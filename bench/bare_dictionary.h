#pragma once

#include "dictionary_generator.h"

#include <QString>
#include <span>
#include <string>

/// The engine's floor: the same work on the same files by SQLite's C API alone.
namespace bench
{

/// A new connection, the first row, the place before the word, a walk of 50 rows from there with 15
/// read whole. The number of bytes read, so that nothing is left out.
std::size_t BareIncrementalStep(const QString &path, const std::string &word);

/// Creates a dictionary's table, stores the rows in groups of a quarter second and builds the index.
void BareLoad(const QString &path, std::span<const GeneratedRow> rows);

/// Walks the whole index with a function that is asked for each headword and passes none.
void BareIndexScan(const QString &path);

/// Writes a column of all rows, or an expression of columns, to a file of its own, a row a line, in the
/// order of the table.
void BareWriteColumn(const QString &path, const char *column, const QString &flatPath);

} // namespace bench
