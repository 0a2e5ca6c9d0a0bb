#pragma once

#include "dictionary_generator.h"

#include <QString>
#include <span>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

/// The engine's floor: the same work on the same files by SQLite's C API alone.
namespace bench
{

/// A new connection, the first row, the place before the word, a walk of 50 rows from there with 15
/// read whole. The number of bytes read, so that nothing is left out.
std::size_t BareIncrementalStep(const QString &path, const std::string &word);

/// A new file with a dictionary's table, whose rows are stored in groups of a quarter second.
class BareLoader
{
public:
    explicit BareLoader(const QString &path);
    ~BareLoader();
    BareLoader(const BareLoader &) = delete;
    BareLoader &operator=(const BareLoader &) = delete;

    void Add(std::span<const GeneratedRow> rows);
    /// Commits the last group and builds the index.
    void Finish();

private:
    sqlite3 *m_database;
    sqlite3_stmt *m_insert;
};

/// All of that for these rows.
void BareLoad(const QString &path, std::span<const GeneratedRow> rows);

/// Walks the whole index with a function that is asked for each headword and passes none.
void BareIndexScan(const QString &path);

/// Writes a column of all rows, or an expression of columns, to a file of its own, a row a line, in the
/// order of the table.
void BareWriteColumn(const QString &path, const char *column, const QString &flatPath);

} // namespace bench
