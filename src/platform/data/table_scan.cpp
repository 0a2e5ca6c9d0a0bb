#include "platform/data/table_scan.h"

namespace data
{

namespace
{

constexpr int kFilterParameter = 2;

} // namespace

TableScan::TableScan(Session &session, RowTests tests, RowReader &reader)
    : m_session(session), m_filter(std::move(tests)),
      m_pages(session, TreeWalk::Tree::Table, m_filter.Tests(), reader)
{
}

bool TableScan::Next()
{
    if (m_isAtEnd)
        return false;
    if (m_isInPages) {
        const PageScan::Result result = m_pages.Next();
        m_isAtEnd = result == PageScan::Result::End;
        if (result != PageScan::Result::Lost)
            return !m_isAtEnd;
        m_autoID = m_pages.AutoID();
        m_isInPages = false;
    }
    m_isAtEnd = !NextOfStatement();
    return !m_isAtEnd;
}

void TableScan::Restart()
{
    m_pages.Restart();
    m_isInPages = true;
    m_isAtEnd = m_open = false;
}

bool TableScan::NextOfStatement()
{
    m_session.BeginRead();
    if (!m_open || m_generation != m_session.Generation())
        OpenStatement();
    // A step that fails puts the statement back to its beginning.
    m_open = false;
    if (!m_rows.Step())
        return false;
    m_open = true;
    m_autoID = m_rows.Number(0);
    m_word.assign(m_rows.Text(1));
    return true;
}

/// Opens the rows behind the last one.
void TableScan::OpenStatement()
{
    if (!m_rows) {
        m_rows = m_session.Prepare("SELECT AutoID, Word FROM Dictionary NOT INDEXED WHERE AutoID > ?1 AND " +
                                   m_filter.Call(kFilterParameter) + " ORDER BY AutoID");
        m_filter.BindTo(m_rows, kFilterParameter);
    }
    m_rows.Reset();
    m_rows.BindNumber(1, m_autoID);
    m_generation = m_session.Generation();
}

} // namespace data
