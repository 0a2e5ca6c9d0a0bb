#include "platform/data/session.h"

#include "platform/data/operation.h"
#include "platform/data/row_filter.h"
#include "platform/data/schema.h"
#include "platform/files/file_operations.h"

#include <QFile>
#include <algorithm>
#include <chrono>
#include <sqlite3.h>
#include <thread>
#include <vector>

namespace data
{

namespace
{

/// How long a lock of another process is waited for, and how long one sleep is, in milliseconds.
constexpr int kLongestWait = 2000;
constexpr int kLongestSleep = 10;

std::vector<Session *> &OpenSessions()
{
    static std::vector<Session *> sessions;
    return sessions;
}

int OpenFlags(Session::Access access, const QString &drivePath)
{
    switch (access) {
    case Session::Access::Create: return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_URI;
    case Session::Access::ReadOnly: return SQLITE_OPEN_READONLY;
    case Session::Access::Existing: break;
    }
    return files::IsWritable(drivePath) ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
}

/// A dictionary file may come from anywhere: nothing in its schema gets to run anything.
void Distrust(sqlite3 *database)
{
    sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
}

} // namespace

Session::Session(const QString &hostPath, const QString &drivePath, Access access)
    : m_hostPath(hostPath), m_drivePath(drivePath)
{
    if (hostPath.contains(QChar(u'\0')))
        RaiseCode(SQLITE_CANTOPEN);
    const int code = sqlite3_open_v2(hostPath.toUtf8().constData(), &m_database,
                                     OpenFlags(access, drivePath) | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code != SQLITE_OK) {
        sqlite3_close(m_database);
        RaiseCode(code);
    }
    sqlite3_extended_result_codes(m_database, 1);
    sqlite3_busy_handler(m_database, WaitForLock, this);
    Distrust(m_database);
    RegisterCollation(m_database);
    RowFilter::Register(m_database);
    OpenSessions().push_back(this);
}

Session::~Session()
{
    try {
        Close();
    } catch (const RuntimeError &) {
        // The group could not be committed: SQLite has rolled it back, the file is whole.
        Q_ASSERT(m_database == nullptr);
    }
}

void Session::Close()
{
    if (m_database == nullptr)
        return;
    const auto close = [this] {
        std::erase(OpenSessions(), this);
        ResetStatements();
        m_begin = Prepared();
        m_commit = Prepared();
        // Statements that recordsets still hold keep a husk of the connection until they go; closing
        // ends the transaction only where there are none.
        sqlite3 *database = m_database;
        m_database = nullptr;
        m_reading = m_writing = false;
        m_commitGroup = nullptr;
        const bool isHeld = sqlite3_next_stmt(database, nullptr) != nullptr;
        if (isHeld && sqlite3_get_autocommit(database) == 0)
            sqlite3_exec(database, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close_v2(database);
    };
    try {
        if (m_commitGroup)
            m_commitGroup();
    } catch (...) {
        close();
        throw;
    }
    close();
}

bool Session::IsWritable() const
{
    return sqlite3_db_readonly(m_database, "main") == 0 && files::IsWritable(m_drivePath);
}

qint64 Session::NumberOf(std::string_view sql) const
{
    Prepared query = Prepare(sql);
    return query.Step() ? query.Number(0) : 0;
}

void Session::BeginRead()
{
    if (m_reading || m_writing)
        return;
    CommitGroupsOfOthers();
    m_waited = 0;
    if (!m_begin)
        m_begin = Prepare("BEGIN");
    m_begin.Step();
    m_reading = true;
}

void Session::ReleaseRead()
{
    if (!m_reading || m_inLongWork)
        return;
    ResetStatements();
    m_reading = false;
    ++m_generation;
    if (!m_commit)
        m_commit = Prepare("COMMIT");
    m_commit.Step();
}

void Session::BeginWrite()
{
    if (sqlite3_db_readonly(m_database, "main") != 0)
        RaiseCode(SQLITE_READONLY);
    files::RequireWritable(m_drivePath);
    ReleaseAllReads();
    CommitGroupsOfOthers();
    m_waited = 0;
    Run("BEGIN IMMEDIATE");
    m_writing = true;
}

void Session::Commit()
{
    // A commit waits until nobody reads, this process included; a statement left open would go on
    // reading behind it.
    ReleaseAllReads();
    ResetStatements();
    try {
        Run("COMMIT");
    } catch (...) {
        Rollback();
        throw;
    }
    m_writing = false;
    ++m_generation;
}

void Session::Rollback()
{
    ResetStatements();
    // Some failures have rolled back already.
    if (sqlite3_get_autocommit(m_database) == 0)
        sqlite3_exec(m_database, "ROLLBACK", nullptr, nullptr, nullptr);
    m_writing = false;
    ++m_generation;
}

void Session::ReleaseAllReads()
{
    for (Session *session : OpenSessions())
        session->ReleaseRead();
}

int Session::WaitForLock(void *session, int tries)
{
    auto *self = static_cast<Session *>(session);
    if (self->m_waited >= kLongestWait || self->OthersHold())
        return 0;
    const int pause = std::clamp(tries, 1, kLongestSleep);
    std::this_thread::sleep_for(std::chrono::milliseconds(pause));
    self->m_waited += pause;
    return 1;
}

bool Session::OthersHold() const
{
    return std::ranges::any_of(OpenSessions(), [this](const Session *other) {
        return other != this && other->m_hostPath == m_hostPath &&
               (other->m_writing || (other->m_reading && other->m_inLongWork));
    });
}

void Session::CommitGroupsOfOthers()
{
    const std::vector<Session *> sessions = OpenSessions();
    for (Session *session : sessions)
        if (session != this && session->m_commitGroup && session->m_hostPath == m_hostPath)
            session->CommitGroupForOthers();
}

void Session::CommitAllGroups()
{
    const std::vector<Session *> sessions = OpenSessions();
    for (Session *session : sessions)
        if (session->m_commitGroup)
            session->CommitGroupForOthers();
}

void Session::CommitGroupForOthers()
{
    try {
        m_commitGroup();
    } catch (const RuntimeError &failure) {
        m_groupFailure = failure;
    }
}

void Session::RaiseGroupFailure()
{
    if (const std::optional<RuntimeError> failure = std::exchange(m_groupFailure, std::nullopt))
        throw RuntimeError(*failure);
}

void Session::ResetStatements()
{
    for (sqlite3_stmt *statement = sqlite3_next_stmt(m_database, nullptr); statement != nullptr;
         statement = sqlite3_next_stmt(m_database, statement))
        if (sqlite3_stmt_busy(statement) != 0)
            sqlite3_reset(statement);
}

} // namespace data
