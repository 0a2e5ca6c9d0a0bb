#include "platform/data/statement_cursor.h"

#include "platform/data/operation.h"

namespace data
{

StatementCursor::StatementCursor(std::shared_ptr<Session> session, const Statement &statement)
    : m_session(std::move(session)), m_row(*m_session), m_plan(PlanFor(statement, *m_session, m_row)),
      m_top(statement.top)
{
    Go();
    m_empty = !m_onRow;
}

void StatementCursor::MoveFirst()
{
    m_plan->Restart();
    m_taken = 0;
    Go();
    m_empty = !m_onRow;
}

void StatementCursor::MoveNext()
{
    RequireRow();
    Go();
}

qint64 StatementCursor::CurrentID()
{
    RequireRow();
    return m_hit.autoID;
}

QVariant StatementCursor::Value(Column column)
{
    RequireRow();
    if (column == AutoID)
        return CheckedTo<qint32>(m_hit.autoID);
    if (m_hit.hasKey && column == Word)
        return FromUtf8(m_hit.word);
    if (m_hit.hasKey && column == WordPhrase)
        return m_hit.hasWordPhrase ? QVariant(m_hit.wordPhrase) : QVariant();
    if (!m_row.Load(m_hit.autoID))
        throw RuntimeError(RuntimeError::NoCurrentRow);
    return m_row.Value(column);
}

void StatementCursor::Go()
{
    m_onRow = (m_top < 0 || m_taken < m_top) && m_plan->Next(m_hit);
    if (m_onRow)
        ++m_taken;
}

void StatementCursor::RequireRow() const
{
    if (!m_onRow)
        throw RuntimeError(RuntimeError::NoCurrentRow);
}

} // namespace data
