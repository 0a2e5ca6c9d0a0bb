#include "platform/data/bulk_writer.h"

#include "platform/data/dictionary_file.h"
#include "platform/data/operation.h"
#include "platform/data/schema.h"

#include <sqlite3.h>

namespace data
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kLongestGroup{250};

} // namespace

BulkWriter::BulkWriter(std::shared_ptr<Session> session) : m_session(std::move(session)), m_writer(*m_session)
{
    if (!m_session->IsWritable())
        RaiseCode(SQLITE_READONLY);
    m_session->ReleaseRead();
    // Many commits follow one another: the journal is emptied each time rather than made anew.
    m_session->Run("PRAGMA journal_mode = TRUNCATE");
    m_session->SetGroupCommit([this] { Flush(); });
}

BulkWriter::~BulkWriter()
{
    if (!m_session->IsOpen())
        return;
    try {
        m_session->SetGroupCommit(nullptr);
        Flush();
        m_session->Run("PRAGMA journal_mode = DELETE");
    } catch (const RuntimeError &) {
        // SQLite has rolled the group back or does so at the next opening; the file is whole.
        m_inGroup = false;
    }
}

qint64 BulkWriter::Add(const PendingRow &row)
{
    m_session->RaiseGroupFailure();
    if (!m_inGroup)
        BeginGroup();
    qint64 autoID = 0;
    try {
        autoID = m_writer.Insert(row);
    } catch (...) {
        Flush();
        throw;
    }
    if (Clock::now() >= m_groupEnd)
        Flush();
    return autoID;
}

void BulkWriter::Flush()
{
    m_session->RaiseGroupFailure();
    if (!m_inGroup)
        return;
    m_inGroup = false;
    // A full disk may have rolled the transaction back by itself.
    if (sqlite3_get_autocommit(m_session->Database()) == 0)
        m_session->Commit();
    else
        m_session->Rollback();
}

void BulkWriter::Finish()
{
    m_session->SetGroupCommit(nullptr);
    Flush();
    m_session->Run("PRAGMA journal_mode = DELETE");
    if (std::exchange(m_withoutIndex, false))
        BuildIndex(*m_session);
}

void BulkWriter::BeginGroup()
{
    m_session->BeginWrite();
    m_inGroup = true;
    m_groupEnd = Clock::now() + kLongestGroup;
    if (std::exchange(m_checkedTable, true))
        return;
    if (m_session->NumberOf("SELECT EXISTS(SELECT 1 FROM Dictionary)") == 0) {
        DropIndex(*m_session);
        m_withoutIndex = true;
    }
}

} // namespace data
