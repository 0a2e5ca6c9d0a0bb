#include "platform/data/schema.h"

#include "platform/data/operation.h"
#include "platform/text/fold.h"

#include <QtEndian>
#include <sqlite3.h>
#include <string>

namespace data
{

namespace
{

constexpr std::string_view kColumns = "Word TEXT NOT NULL COLLATE WORDMERE, Pronunciation TEXT, "
                                      "WordPhrase INTEGER, Description TEXT, Example TEXT";
constexpr std::string_view kAutoIDColumn = ", AutoID INTEGER PRIMARY KEY AUTOINCREMENT";
constexpr std::string_view kIndexSql = "CREATE UNIQUE INDEX WordID ON Dictionary(Word, AutoID, WordPhrase)";

std::string TableSql(std::string_view name, bool withAutoID)
{
    std::string sql = "CREATE TABLE ";
    sql.append(name).append("(").append(kColumns);
    if (withAutoID)
        sql.append(kAutoIDColumn);
    return sql.append(")");
}

int CompareWords(void * /*unused*/, int leftSize, const void *left, int rightSize, const void *right)
{
    return text::CompareUtf8({static_cast<const char *>(left), static_cast<std::size_t>(leftSize)},
                             {static_cast<const char *>(right), static_cast<std::size_t>(rightSize)});
}

qint32 UserVersion() { return kFormatVersion << 16 | text::kFoldVersion; }

/// The marks of a file's header, read past SQLite: a statement for each costs as much as a seek.
struct Header {
    qint32 userVersion = 0;
    qint32 applicationId = 0;
};

Header ReadHeader(Session &session)
{
    constexpr sqlite3_int64 userVersionAt = 60;
    constexpr int applicationIdBehind = 8;
    std::array<uchar, 12> bytes{};
    sqlite3_file *file = nullptr;
    sqlite3_int64 size = 0;
    if (sqlite3_file_control(session.Database(), "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK ||
        file->pMethods == nullptr || file->pMethods->xFileSize(file, &size) != SQLITE_OK)
        RaiseCode(SQLITE_CANTOPEN);
    // SQLite reads a last page that was cut off as if the rest of it were zero.
    if (size == 0 || size % kPageSize != 0)
        RaiseCode(SQLITE_NOTADB);
    const int code = file->pMethods->xRead(file, bytes.data(), static_cast<int>(bytes.size()), userVersionAt);
    if (code != SQLITE_OK)
        RaiseCode(code);
    return {qFromBigEndian<qint32>(bytes.data()), qFromBigEndian<qint32>(bytes.data() + applicationIdBehind)};
}

TableState StateOfTable(std::string_view sql)
{
    if (sql == TableSql(kTableName, true))
        return TableState::Whole;
    return sql == TableSql(kTableName, false) ? TableState::WithoutAutoID : TableState::Foreign;
}

} // namespace

QLatin1String ColumnName(Column column)
{
    static constexpr std::array names{"Word",        "Pronunciation", "WordPhrase",
                                      "Description", "Example",       "AutoID"};
    static_assert(names.size() == ColumnCount);
    return QLatin1String(names.at(static_cast<std::size_t>(column)));
}

void RegisterCollation(sqlite3 *database)
{
    const int code =
        sqlite3_create_collation_v2(database, "WORDMERE", SQLITE_UTF8, nullptr, CompareWords, nullptr);
    if (code != SQLITE_OK)
        RaiseCode(code);
}

void SetPageSize(Session &session) { session.Run("PRAGMA page_size = " + std::to_string(kPageSize)); }

void WriteMarks(Session &session)
{
    session.Run("PRAGMA application_id = " + std::to_string(kApplicationId));
    session.Run("PRAGMA user_version = " + std::to_string(UserVersion()));
}

void CreateTable(Session &session, bool withAutoID) { session.Run(TableSql(kTableName, withAutoID)); }

void AddAutoID(Session &session)
{
    session.Run("ALTER TABLE Dictionary RENAME TO Numberless");
    CreateTable(session, true);
    session.Run(
        "INSERT INTO Dictionary(Word, Pronunciation, WordPhrase, Description, Example) "
        "SELECT Word, Pronunciation, WordPhrase, Description, Example FROM Numberless ORDER BY rowid");
    session.Run("DROP TABLE Numberless");
}

void CreateIndex(Session &session)
{
    if (Examine(session).hasIndex)
        return;
    DropIndex(session);
    CreateIndexObject(session);
    WriteMarks(session);
}

void CreateIndexObject(Session &session) { session.Run(kIndexSql); }

void DropIndex(Session &session) { session.Run("DROP INDEX IF EXISTS WordID"); }

FileContent Examine(Session &session)
{
    FileContent content;
    // The query comes first: it takes the lock under which the header may be read.
    Prepared query = session.Prepare("SELECT type, sql FROM sqlite_schema WHERE name COLLATE NOCASE IN "
                                     "('Dictionary', 'WordID')");
    while (query.Step()) {
        if (query.Text(0) == "index")
            content.hasIndex = query.Text(1) == kIndexSql;
        else
            content.table = query.Text(0) == "table" ? StateOfTable(query.Text(1)) : TableState::Foreign;
    }
    const Header header = ReadHeader(session);
    if (header.applicationId != kApplicationId || header.userVersion >> 16 != kFormatVersion)
        RaiseCode(SQLITE_NOTADB);
    content.hasIndex = content.hasIndex && header.userVersion == UserVersion();
    return content;
}

} // namespace data
