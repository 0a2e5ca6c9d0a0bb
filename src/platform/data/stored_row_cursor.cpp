#include "platform/data/stored_row_cursor.h"

#include "platform/data/operation.h"

namespace data
{

StoredRowCursor::StoredRowCursor(std::shared_ptr<Session> session)
    : m_session(std::move(session)), m_row(*m_session)
{
}

void StoredRowCursor::MoveFirst() { RaiseNotSupported(); }

void StoredRowCursor::MoveNext() { RaiseNotSupported(); }

QVariant StoredRowCursor::Value(Column column)
{
    if (!m_row.Load(CurrentID()))
        throw RuntimeError(RuntimeError::NoCurrentRow);
    return m_row.Value(column);
}

qint64 StoredRowCursor::CurrentID()
{
    if (m_autoID == 0)
        throw RuntimeError(RuntimeError::NoCurrentRow);
    return m_autoID;
}

void StoredRowCursor::StandOn(const QString & /*word*/, qint64 autoID) { m_autoID = autoID; }

} // namespace data
