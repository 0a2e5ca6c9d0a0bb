#include "platform/data/structure_check.h"

#include "platform/data/schema.h"

#include <QByteArray>
#include <memory>
#include <sqlite3.h>
#include <string_view>
#include <utility>

namespace
{

struct CloseDatabase {
    void operator()(sqlite3 *database) const { sqlite3_close_v2(database); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};

using Database = std::unique_ptr<sqlite3, CloseDatabase>;
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// The statement on its first row; nullptr where there is none.
Statement FirstRow(sqlite3 *database, const char *sql)
{
    sqlite3_stmt *prepared = nullptr;
    if (sqlite3_prepare_v2(database, sql, -1, &prepared, nullptr) != SQLITE_OK)
        return nullptr;
    Statement statement(prepared);
    return sqlite3_step(prepared) == SQLITE_ROW ? std::move(statement) : nullptr;
}

/// The file opened for reading; nullptr where it cannot be.
Database Open(const QByteArray &path)
{
    sqlite3 *opened = nullptr;
    const int code =
        sqlite3_open_v2(path.constData(), &opened, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
    Database database(opened);
    if (code != SQLITE_OK)
        return nullptr;
    data::RegisterCollation(opened);
    return database;
}

bool IsSound(const QByteArray &path)
{
    const Database database = Open(path);
    const Statement verdict = database ? FirstRow(database.get(), "PRAGMA quick_check(1)") : nullptr;
    if (!verdict)
        return false;
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(verdict.get(), 0));
    return text != nullptr && std::string_view(text) == "ok";
}

std::optional<qint64> RowsOf(const QByteArray &path)
{
    const Database database = Open(path);
    const Statement count =
        database ? FirstRow(database.get(), "SELECT count(*) FROM Dictionary NOT INDEXED") : nullptr;
    return count ? std::optional(sqlite3_column_int64(count.get(), 0)) : std::nullopt;
}

} // namespace

std::future<bool> data::CheckStructure(const QString &hostPath)
{
    return std::async(std::launch::async, IsSound, hostPath.toUtf8());
}

std::future<std::optional<qint64>> data::CountRows(const QString &hostPath)
{
    return std::async(std::launch::async, RowsOf, hostPath.toUtf8());
}
