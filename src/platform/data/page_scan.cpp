#include "platform/data/page_scan.h"

#include "platform/text/fold.h"

#include <algorithm>

namespace data
{

namespace
{

/// More places in a page than this are not worth the look which rows they lie in.
constexpr std::size_t kMostPlaces = 16;

} // namespace

PageScan::PageScan(Session &session, TreeWalk::Tree tree, const RowTests &tests, RowReader &reader)
    : m_session(session), m_tests(tests), m_reader(reader), m_isTable(tree == TreeWalk::Tree::Table),
      m_walk(session, tree)
{
}

PageScan::Result PageScan::Next()
{
    m_session.BeginRead();
    if (m_generation != m_session.Generation()) {
        // Where the lock cannot be had this raises, and is asked again by the next call.
        m_stands = m_stands && m_walk.StillStands();
        m_generation = m_session.Generation();
    }
    if (!m_stands && !GoToPlace())
        return Result::Lost;
    for (;;) {
        StoredPage::Cell cell;
        while (m_nextCell < m_cells.size()) {
            const bool hasSense = m_walk.Page().CellAt(m_cells[m_nextCell], cell);
            const Answer answer = hasSense ? Test(cell) : Answer::Senseless;
            ++m_nextCell;
            if (answer != Answer::Fails)
                return answer == Answer::Passes ? Result::Row : Result::Lost;
        }
        if (!m_walk.Next())
            return m_walk.IsAtEnd() ? Result::End : Result::Lost;
        EnterStop();
    }
}

void PageScan::Restart()
{
    m_stands = false;
    m_word.clear();
    m_autoID = kBeforeAllIDs;
}

bool PageScan::GoToPlace()
{
    m_stands = m_walk.Seek([this](const StoredPage::Cell &cell) { return IsBehind(cell); });
    if (m_stands)
        EnterStop();
    return m_stands;
}

/// Chooses the cells of a stop that are of interest. Without few places that all lie in some of them,
/// these are all.
void PageScan::EnterStop()
{
    m_cells.clear();
    m_nextCell = 0;
    const StoredPage &page = m_walk.Page();
    const bool isSparse = page.IsLeaf() && FindPlaces(page.Bytes());
    StoredPage::Cell cell;
    for (int number = m_walk.FirstCell(); number < m_walk.EndCell(); ++number)
        if (!isSparse || !page.CellAt(number, cell) || cell.runsOn || HoldsPlace(cell.record))
            m_cells.push_back(number);
}

/// Finds where the literal of a test may stand; false where that is no help. No place is left where
/// another test rules the page out.
bool PageScan::FindPlaces(std::string_view bytes)
{
    bool isSparse = false;
    for (const RowTest &test : m_tests) {
        if (!isSparse)
            isSparse = test.FindPlaces(bytes, m_places, kMostPlaces);
        else if (!test.MayPassWithin(bytes))
            m_places.clear();
        if (isSparse && m_places.empty())
            break;
    }
    return isSparse;
}

bool PageScan::HoldsPlace(std::string_view record) const
{
    const auto begin = static_cast<std::size_t>(record.data() - m_walk.Page().Bytes().data());
    return std::ranges::any_of(m_places, [begin, end = begin + record.size()](std::size_t place) {
        return place >= begin && place < end;
    });
}

PageScan::Answer PageScan::Test(const StoredPage::Cell &cell)
{
    if (m_isTable ? m_row.ReadRow(cell) : m_row.ReadEntry(cell)) {
        if (!PassesAll(m_tests, m_row))
            return Answer::Fails;
        m_word.assign(m_row.Text(Column::Word));
        m_autoID = m_row.Number(Column::AutoID);
        return Answer::Passes;
    }
    if (!m_isTable || !m_reader.Load(cell.number))
        return Answer::Senseless;
    if (!PassesAll(m_tests, m_reader))
        return Answer::Fails;
    m_word.assign(m_reader.Text(Column::Word));
    m_autoID = cell.number;
    return Answer::Passes;
}

/// Whether a row stands behind the last one.
std::optional<bool> PageScan::IsBehind(const StoredPage::Cell &cell)
{
    if (m_isTable)
        return cell.number > m_autoID;
    if (!m_row.ReadEntry(cell))
        return std::nullopt;
    const int order = text::CompareUtf8(m_row.Text(Column::Word), m_word);
    return order != 0 ? order > 0 : m_row.Number(Column::AutoID) > m_autoID;
}

} // namespace data
