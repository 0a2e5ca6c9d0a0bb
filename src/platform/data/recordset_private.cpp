#include "platform/data/recordset_private.h"

#include "platform/data/operation.h"
#include "platform/data/schema.h"
#include "platform/data/statement_cursor.h"
#include "platform/data/stored_row_cursor.h"
#include "platform/data/table_cursor.h"

#include <sqlite3.h>

namespace ADODB
{

namespace
{

void RequireTableName(const QString &name)
{
    if (name.compare(QLatin1String(data::kTableName), Qt::CaseInsensitive) != 0)
        throw RuntimeError(RuntimeError::InvalidStatement);
}

} // namespace

const std::shared_ptr<data::Session> &ConnectionPrivate::Session() const
{
    if (!session || !session->IsOpen())
        throw RuntimeError(RuntimeError::ObjectClosed);
    return session;
}

void RecordsetPrivate::OpenTable(const std::shared_ptr<data::Session> &session, const QString &name)
{
    RequireTableName(name);
    auto rows = std::make_unique<data::TableCursor>(session);
    m_table = rows.get();
    m_rows = std::move(rows);
    m_writer = std::make_unique<data::RowWriter>(*session);
    m_session = session;
}

void RecordsetPrivate::OpenBulk(const std::shared_ptr<data::Session> &session, const QString &name)
{
    RequireTableName(name);
    session->BeginRead();
    if (data::Examine(*session).table != data::TableState::Whole)
        data::RaiseCode(SQLITE_NOTADB);
    m_bulk = std::make_unique<data::BulkWriter>(session);
    m_rows = std::make_unique<data::StoredRowCursor>(session);
    m_session = session;
}

void RecordsetPrivate::OpenStatement(const std::shared_ptr<data::Session> &session, const QString &text)
{
    m_rows = std::make_unique<data::StatementCursor>(session, data::ParseStatement(text));
    m_session = session;
}

void RecordsetPrivate::Close()
{
    RequireOpen();
    const auto drop = [this] {
        m_pending.reset();
        m_bulk.reset();
        m_writer.reset();
        m_rows.reset();
        m_session.reset();
        m_table = nullptr;
        index.clear();
    };
    try {
        if (m_bulk)
            m_bulk->Finish();
    } catch (...) {
        drop();
        throw;
    }
    drop();
}

data::Cursor &RecordsetPrivate::Rows()
{
    RequireOpen();
    return *m_rows;
}

data::Cursor &RecordsetPrivate::RowsToMove()
{
    RequireOpen();
    if (m_pending)
        Update();
    return *m_rows;
}

void RecordsetPrivate::SetIndex(const QString &name)
{
    RequireOpen();
    if (m_table == nullptr)
        data::RaiseNotSupported();
    if (name.compare(QLatin1String(data::kIndexName), Qt::CaseInsensitive) != 0)
        throw RuntimeError(RuntimeError::ItemNotFound);
    index = QLatin1String(data::kIndexName);
    m_table->Restart();
}

QVariant RecordsetPrivate::Value(data::Column column)
{
    data::Cursor &rows = Rows();
    if (m_pending && (m_adding || m_pending->At(column).isSet))
        return m_pending->ValueOf(column);
    return rows.Value(column);
}

void RecordsetPrivate::SetValue(data::Column column, const QVariant &value)
{
    data::Cursor &rows = Rows();
    if (m_table == nullptr && !m_bulk)
        data::RaiseNotSupported();
    if (!m_pending) {
        // The row must be there before anything is said of it.
        rows.CurrentID();
        m_pending.emplace();
        m_adding = false;
    }
    m_pending->Set(column, value);
}

void RecordsetPrivate::AddNew()
{
    RowsToMove();
    if (m_table == nullptr && !m_bulk)
        data::RaiseNotSupported();
    m_pending.emplace();
    m_adding = true;
}

void RecordsetPrivate::Update()
{
    data::Cursor &rows = Rows();
    // A deleted row, or one that nothing was changed of, has nothing to be stored.
    if (!m_pending)
        return;
    if (m_bulk) {
        if (!m_adding)
            data::RaiseNotSupported();
        rows.StandOn({}, m_bulk->Add(*m_pending));
    } else {
        const qint64 changed = m_adding ? 0 : rows.CurrentID();
        const QString word = m_pending->At(data::Word).isSet || m_adding
                                 ? m_pending->ValueOf(data::Word).toString()
                                 : rows.Value(data::Word).toString();
        qint64 stored = changed;
        m_session->Write([&] {
            if (m_adding)
                stored = m_writer->Insert(*m_pending);
            else if (!m_pending->IsEmpty())
                m_writer->Change(changed, *m_pending);
        });
        rows.StandOn(word, stored);
    }
    m_pending.reset();
}

void RecordsetPrivate::Delete()
{
    data::Cursor &rows = Rows();
    if (m_table == nullptr)
        data::RaiseNotSupported();
    m_pending.reset();
    const qint64 autoID = rows.CurrentID();
    m_session->Write([&] { m_writer->Remove(autoID); });
    rows.LoseRow();
}

void RecordsetPrivate::Flush()
{
    RequireOpen();
    if (m_bulk)
        m_bulk->Flush();
}

void RecordsetPrivate::RequireOpen() const
{
    if (!IsOpen())
        throw RuntimeError(RuntimeError::ObjectClosed);
}

} // namespace ADODB
