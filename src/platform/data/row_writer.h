#pragma once

#include "platform/data/pending_row.h"
#include "platform/data/session.h"

namespace data
{

/// Stores, changes and deletes rows, within a write transaction of the session.
class RowWriter
{
public:
    explicit RowWriter(Session &session) : m_session(session) {}

    /// The AutoID of the new row; raises 6 when the numbers are used up.
    qint64 Insert(const PendingRow &row);
    /// Changes the columns that are set; raises 3021 when the row has gone.
    void Change(qint64 autoID, const PendingRow &row);
    /// Raises 3021 when the row has gone.
    void Remove(qint64 autoID);

private:
    Session &m_session;
    Prepared m_insert;
};

} // namespace data
