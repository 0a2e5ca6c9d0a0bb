#pragma once

#include "platform/data/row_writer.h"
#include "platform/data/session.h"

#include <chrono>
#include <memory>

namespace data
{

/// Stores many rows in groups, each one transaction of at most 250 ms. On a table that is empty at the
/// first row the index is left out until Finish; a process that dies before leaves that to the next
/// opening of the file.
class BulkWriter
{
public:
    /// Raises 70 for a file that cannot be written.
    explicit BulkWriter(std::shared_ptr<Session> session);
    /// Commits the group, silently.
    ~BulkWriter();
    BulkWriter(const BulkWriter &) = delete;
    BulkWriter &operator=(const BulkWriter &) = delete;

    /// Stores a row and gives its AutoID. What fails leaves the rows before it committed. Raises also what
    /// became of a commit that somebody else asked for, as Flush and Finish do.
    qint64 Add(const PendingRow &row);
    /// Commits what is held back.
    void Flush();
    /// Flush, then the index where it was left out.
    void Finish();

private:
    void BeginGroup();

    std::shared_ptr<Session> m_session;
    RowWriter m_writer;
    bool m_inGroup = false;
    bool m_checkedTable = false;
    bool m_withoutIndex = false;
    std::chrono::steady_clock::time_point m_groupEnd;
};

} // namespace data
