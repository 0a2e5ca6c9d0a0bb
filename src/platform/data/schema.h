#pragma once

#include "platform/data/session.h"
#include "platform/data/statement.h"

#include <QString>
#include <array>
#include <memory>
#include <string_view>

struct sqlite3;

/// What a dictionary file holds: table, index, marks in the header.
namespace data
{

/// "WMDB", the mark of a dictionary in the file's header.
inline constexpr qint32 kApplicationId = 0x574D4442;
/// The version of the format below; the header's user version holds it above the fold's.
inline constexpr qint32 kFormatVersion = 1;
inline constexpr qint32 kPageSize = 16384;

inline constexpr char kTableName[] = "Dictionary";
inline constexpr char kIndexName[] = "WordID";

/// Longest texts of the columns in UTF-16 units.
inline constexpr qsizetype kWordSize = 255;
inline constexpr qsizetype kPronunciationSize = 64;

/// The name of a column as it stands in the file.
QLatin1String ColumnName(Column column);

/// Registers the order of headwords with a connection.
void RegisterCollation(sqlite3 *database);

/// Sets the page size of a file that is still empty, before its first transaction.
void SetPageSize(Session &session);
/// Writes the marks of the header. Within a write transaction.
void WriteMarks(Session &session);
/// Creates the table, with or without its last column AutoID. Within a write transaction.
void CreateTable(Session &session, bool withAutoID);
/// Puts AutoID behind the other columns of a table that lacks it; rows keep their order. Within a
/// write transaction.
void AddAutoID(Session &session);
/// Creates the index under the present fold; does nothing where it stands. Within a write
/// transaction, as long work.
void CreateIndex(Session &session);
/// The same without a look at what stands there and without a word in the header.
void CreateIndexObject(Session &session);
/// Drops the index. Within a write transaction.
void DropIndex(Session &session);

/// What of a dictionary a file holds.
enum class TableState { None, WithoutAutoID, Whole, Foreign };
struct FileContent {
    TableState table = TableState::None;
    /// Whether the index stands, as it should be and under the present fold.
    bool hasIndex = false;
};
/// Looks at the file, within a read or write transaction. Raises -2147467259 unless its header bears
/// the marks of a dictionary of this format.
FileContent Examine(Session &session);

} // namespace data
