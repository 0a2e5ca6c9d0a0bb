#pragma once

#include "platform/data/cursor.h"
#include "platform/data/query_plan.h"
#include "platform/data/row_reader.h"

#include <memory>

namespace data
{

/// The rows of a statement, from front to back; it begins on the first.
class StatementCursor : public Cursor
{
public:
    StatementCursor(std::shared_ptr<Session> session, const Statement &statement);

    bool Eof() override { return !m_onRow; }
    bool Bof() override { return m_empty; }
    void MoveFirst() override;
    void MoveNext() override;
    QVariant Value(Column column) override;
    qint64 CurrentID() override;

private:
    void Go();
    void RequireRow() const;

    std::shared_ptr<Session> m_session;
    RowReader m_row;
    std::unique_ptr<QueryPlan> m_plan;
    int m_top;
    int m_taken = 0;
    Hit m_hit;
    bool m_onRow = false;
    bool m_empty = false;
};

} // namespace data
