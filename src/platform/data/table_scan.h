#pragma once

#include "platform/data/page_scan.h"
#include "platform/data/row_filter.h"

namespace data
{

/// Goes through the table's rows that pass a filter, in the order of AutoID, and resumes behind its last
/// row when the read transaction was released: in the pages as long as they can be walked, by a statement
/// otherwise.
class TableScan
{
public:
    TableScan(Session &session, RowTests tests, RowReader &reader);

    /// Goes to the next row; false behind the last.
    bool Next();
    void Restart();

    /// The key of the row.
    qint64 AutoID() const { return m_isInPages ? m_pages.AutoID() : m_autoID; }
    const std::string &Word() const { return m_isInPages ? m_pages.Word() : m_word; }

private:
    bool NextOfStatement();
    void OpenStatement();

    Session &m_session;
    RowFilter m_filter;
    PageScan m_pages;
    bool m_isInPages = true;
    bool m_isAtEnd = false;

    Prepared m_rows;
    bool m_open = false; ///< m_rows stands on the row
    std::string m_word;
    qint64 m_autoID = kBeforeAllIDs;
    quint64 m_generation = 0;
};

} // namespace data
