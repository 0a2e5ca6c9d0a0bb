#pragma once

#include "platform/data/index_walk.h"
#include "platform/data/row_reader.h"
#include "platform/data/row_test.h"
#include "platform/data/stored_row.h"
#include "platform/data/tree_walk.h"

#include <string>
#include <vector>

namespace data
{

/// Goes through the rows of the table or of the index that pass some tests, as bytes in their pages: rows
/// without a literal of the tests are passed over, and none costs a step of SQLite. It resumes behind its
/// last row when the read transaction was released.
class PageScan
{
public:
    enum class Result {
        Row,
        End,
        Lost ///< the pages cannot be walked any further: rows may follow behind the last one
    };

    /// The reader is for rows that run on in further pages. Tests and reader must outlive the scan; those
    /// of an index ask for what it holds.
    PageScan(Session &session, TreeWalk::Tree tree, const RowTests &tests, RowReader &reader);

    /// Goes to the next row.
    Result Next();
    void Restart();

    /// The key of the last row: before all others until there is one.
    const std::string &Word() const { return m_word; }
    qint64 AutoID() const { return m_autoID; }
    /// The WordPhrase of the row, until the next call; null and its number.
    bool HasWordPhrase() const { return !m_row.IsNull(Column::WordPhrase); }
    int WordPhrase() const { return static_cast<int>(m_row.Number(Column::WordPhrase)); }

private:
    enum class Answer { Passes, Fails, Senseless };

    bool GoToPlace();
    void EnterStop();
    bool FindPlaces(std::string_view bytes);
    bool HoldsPlace(std::string_view record) const;
    Answer Test(const StoredPage::Cell &cell);
    std::optional<bool> IsBehind(const StoredPage::Cell &cell);

    Session &m_session;
    const RowTests &m_tests;
    RowReader &m_reader;
    bool m_isTable;
    TreeWalk m_walk;
    bool m_stands = false;        ///< m_walk stands at a stop
    std::vector<int> m_cells;     ///< the numbers of those of its cells that are of interest
    std::size_t m_nextCell = 0;   ///< in m_cells
    std::vector<size_t> m_places; ///< where in the page something of interest stands
    StoredRow m_row;
    std::string m_word;
    qint64 m_autoID = kBeforeAllIDs;
    quint64 m_generation = 0;
};

} // namespace data
