#include "platform/data/table_scan.h"

#include <algorithm>

namespace data
{

namespace
{

constexpr int kFilterParameter = 3;
/// Where this many pages in a row are of interest, the next rows are read without a look at their pages:
/// so many times the numbers of that run.
constexpr int kLongestRun = 16;
constexpr qint64 kUnseenRuns = 8;

} // namespace

TableScan::TableScan(Session &session, RowTests tests)
    : m_session(session), m_filter(std::move(tests)),
      m_looksAtPages(std::ranges::any_of(m_filter.Tests(), &RowTest::HasLiteral)), m_leaves(session)
{
}

bool TableScan::Next()
{
    m_session.BeginRead();
    if (m_generation != m_session.Generation()) {
        m_generation = m_session.Generation();
        m_onPage = false;
        // The place is kept by key. The range goes on behind it, whatever stands in its pages by now.
        if (m_open) {
            m_behind = m_last;
            OpenRange();
        }
    }
    do {
        if (m_open && m_rows.Step()) {
            m_last = m_rows.Number(0);
            return true;
        }
        m_open = false;
    } while (NextRange());
    return false;
}

void TableScan::Restart()
{
    m_upTo = m_last = kBeforeAllIDs;
    m_open = m_onPage = false;
}

/// Opens the next range of rows that is worth reading; false where there is none.
bool TableScan::NextRange()
{
    if (m_upTo == kBehindAllIDs)
        return false;
    m_behind = m_upTo;
    m_upTo = kBehindAllIDs;
    if (m_looksAtPages) {
        if (!m_onPage)
            m_onPage = m_leaves.Seek(m_behind);
        if (m_onPage && !GoToPageOfInterest())
            return false;
        if (m_onPage)
            TakePagesOfInterest();
    }
    OpenRange();
    return true;
}

bool TableScan::MayHoldRows() const
{
    const std::string_view bytes = m_leaves.Bytes();
    return bytes.empty() || std::ranges::all_of(m_filter.Tests(), [bytes](const RowTest &test) {
               return test.MayPassWithin(bytes);
           });
}

/// Passes over pages without interest; false when the table ends with them. Where the walk cannot go on
/// it is left, and all rows behind it are of interest.
bool TableScan::GoToPageOfInterest()
{
    while (!MayHoldRows()) {
        m_behind = m_leaves.LastID();
        if (m_leaves.Next())
            continue;
        m_onPage = false;
        return !m_leaves.IsAtEnd();
    }
    return true;
}

/// Ends the range behind the pages of interest that follow each other from here on.
void TableScan::TakePagesOfInterest()
{
    int run = 1;
    qint64 last = m_leaves.LastID();
    while ((m_onPage = m_leaves.Next()) && run < kLongestRun && MayHoldRows()) {
        last = m_leaves.LastID();
        ++run;
    }
    if (!m_onPage && !m_leaves.IsAtEnd())
        return;
    m_upTo = last;
    const qint64 first = std::max(m_behind, qint64(0));
    if (run < kLongestRun || last <= first)
        return;
    const qint64 span = last - first;
    if (span < (kBehindAllIDs - last) / kUnseenRuns) {
        m_upTo = last + span * kUnseenRuns;
        m_onPage = false;
    }
}

void TableScan::OpenRange()
{
    if (!m_rows) {
        m_rows = m_session.Prepare("SELECT AutoID, Word FROM Dictionary NOT INDEXED WHERE AutoID > ?1 "
                                   "AND AutoID <= ?2 AND " +
                                   m_filter.Call(kFilterParameter) + " ORDER BY AutoID");
        m_filter.BindTo(m_rows, kFilterParameter);
    }
    m_rows.Reset();
    m_rows.BindNumber(1, m_behind);
    m_rows.BindNumber(2, m_upTo);
    m_open = true;
}

} // namespace data
