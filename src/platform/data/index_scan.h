#pragma once

#include "platform/data/index_walk.h"
#include "platform/data/page_scan.h"
#include "platform/data/row_filter.h"

#include <string>

namespace data
{

/// Goes through the rows that pass a filter in the order of the index, as far as that holds them: in the
/// index's pages as long as they can be walked, by statements otherwise and where only a range of it
/// comes into question.
class IndexScan
{
public:
    struct Entry {
        std::string word; ///< UTF-8
        qint64 autoID = kBeforeAllIDs;
        bool hasWordPhrase = false;
        int wordPhrase = 0;
    };

    IndexScan(Session &session, RowTests tests, int range, RowReader &reader);

    /// Goes to the next row; false behind the last.
    bool Next();
    void Restart();

    /// The row, once there was one.
    const Entry &Current() const { return m_entry; }

private:
    bool NextOfWalk();

    RowFilter m_filter;
    bool m_isWhole; ///< not a range
    PageScan m_pages;
    IndexWalk m_walk;
    bool m_isInPages;
    bool m_isInWalk = false; ///< m_walk stands on the row
    bool m_isAtEnd = false;
    Entry m_entry;
};

} // namespace data
