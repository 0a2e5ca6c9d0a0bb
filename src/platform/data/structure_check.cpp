#include "platform/data/structure_check.h"

#include "platform/data/schema.h"

#include <QByteArray>
#include <chrono>
#include <memory>
#include <sqlite3.h>
#include <string_view>

namespace
{

struct CloseDatabase {
    void operator()(sqlite3 *database) const { sqlite3_close_v2(database); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};

bool Check(const QByteArray &path)
{
    sqlite3 *opened = nullptr;
    const int code =
        sqlite3_open_v2(path.constData(), &opened, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
    const std::unique_ptr<sqlite3, CloseDatabase> database(opened);
    if (code != SQLITE_OK)
        return false;
    data::RegisterCollation(opened);
    sqlite3_stmt *prepared = nullptr;
    if (sqlite3_prepare_v2(opened, "PRAGMA quick_check(1)", -1, &prepared, nullptr) != SQLITE_OK)
        return false;
    const std::unique_ptr<sqlite3_stmt, FinalizeStatement> statement(prepared);
    if (sqlite3_step(prepared) != SQLITE_ROW)
        return false;
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(prepared, 0));
    return text != nullptr && std::string_view(text) == "ok";
}

} // namespace

data::StructureCheck::StructureCheck(const QString &hostPath)
    : m_result(std::async(std::launch::async, Check, hostPath.toUtf8()))
{
}

bool data::StructureCheck::IsDone() const
{
    return m_result.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}
