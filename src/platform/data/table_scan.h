#pragma once

#include "platform/data/index_walk.h"
#include "platform/data/leaf_walk.h"
#include "platform/data/row_filter.h"

namespace data
{

/// Goes through the table's rows that pass a filter, in the order of AutoID, and resumes behind its last
/// row when the read transaction was released. Pages that lack a literal of the filter are passed over
/// as bytes.
class TableScan
{
public:
    TableScan(Session &session, RowTests tests);

    /// Goes to the next row; false behind the last.
    bool Next();
    void Restart();

    /// The row; its headword stays until the next call or the release of the read transaction.
    qint64 AutoID() const { return m_last; }
    std::string_view Word() const { return m_rows.Text(1); }

private:
    bool NextRange();
    bool MayHoldRows() const;
    bool GoToPageOfInterest();
    void TakePagesOfInterest();
    void OpenRange();

    Session &m_session;
    RowFilter m_filter;
    bool m_looksAtPages;
    LeafWalk m_leaves;
    Prepared m_rows;
    qint64 m_behind = kBeforeAllIDs; ///< the range being read: the rows behind this number
    qint64 m_upTo = kBeforeAllIDs;   ///< up to this one
    qint64 m_last = kBeforeAllIDs;
    bool m_open = false;   ///< m_rows stands in the range
    bool m_onPage = false; ///< m_leaves stands on the first page behind the range
    quint64 m_generation = 0;
};

} // namespace data
