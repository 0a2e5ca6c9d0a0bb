#include "platform/data/tree_walk.h"

#include <QtEndian>
#include <sqlite3.h>

namespace data
{

namespace
{

/// Of the file's header.
constexpr std::size_t kHeaderSize = 100;
constexpr std::size_t kPageSizeAt = 16;
constexpr std::size_t kWriteVersionAt = 18;
constexpr std::size_t kReadVersionAt = 19;
constexpr std::size_t kReservedAt = 20;
constexpr std::size_t kChangesAt = 24;
constexpr std::size_t kEncodingAt = 56;
constexpr unsigned char kRollbackJournal = 1;
constexpr quint32 kUtf8 = 1;

/// A tree of more levels would hold more rows than there are numbers.
constexpr std::size_t kMostLevels = 16;

} // namespace

bool TreeWalk::Seek(const IsBehind &isBehind)
{
    m_depth = 0;
    m_isAtEnd = false;
    m_session.BeginRead();
    if (m_session.IsWriting() || !ReadState(m_state))
        return false;
    m_seen.assign(std::size_t(m_state.pages) + 1, false);
    return Descend(m_state.root, isBehind);
}

bool TreeWalk::StillStands()
{
    m_session.BeginRead();
    FileState state;
    return !m_session.IsWriting() && ReadState(state) && state == m_state;
}

bool TreeWalk::Next()
{
    if (m_onLeaf) {
        while (m_depth > 0 && m_levels[m_depth - 1].child == m_levels[m_depth - 1].cells)
            --m_depth;
        m_isAtEnd = m_depth == 0;
        if (m_isAtEnd)
            return false;
        if (!m_isTable) {
            m_onLeaf = false;
            m_firstCell = m_levels[m_depth - 1].child;
            m_endCell = m_firstCell + 1;
            return true;
        }
    }
    Level &level = m_levels[m_depth - 1];
    ++level.child;
    quint32 number = 0;
    return ChildOf(level, number) && Descend(number, nullptr);
}

/// Reads what the walk depends on; false for a file that is laid out in another way.
bool TreeWalk::ReadState(FileState &state)
{
    if (!m_rootQuery) {
        m_rootQuery = m_session.Prepare("SELECT rootpage FROM sqlite_schema WHERE name = ?1");
        m_rootQuery.BindText(1, m_isTable ? kTableName : kIndexName);
    }
    // The query comes first: it takes the lock under which the file may be read.
    state.root = m_rootQuery.Step() ? static_cast<quint32>(m_rootQuery.Number(0)) : 0;
    m_rootQuery.Reset();
    m_file = nullptr;
    sqlite3_int64 size = 0;
    std::array<unsigned char, kHeaderSize> header{};
    if (sqlite3_file_control(m_session.Database(), "main", SQLITE_FCNTL_FILE_POINTER, &m_file) != SQLITE_OK ||
        m_file->pMethods == nullptr || m_file->pMethods->xFileSize(m_file, &size) != SQLITE_OK ||
        m_file->pMethods->xRead(m_file, header.data(), static_cast<int>(header.size()), 0) != SQLITE_OK)
        return false;
    state.pages = static_cast<quint32>(size / kPageSize);
    state.changes = qFromBigEndian<quint32>(&header[kChangesAt]);
    return qFromBigEndian<quint16>(&header[kPageSizeAt]) == kPageSize &&
           header[kWriteVersionAt] == kRollbackJournal && header[kReadVersionAt] == kRollbackJournal &&
           header[kReservedAt] == 0 && qFromBigEndian<quint32>(&header[kEncodingAt]) == kUtf8;
}

bool TreeWalk::ReadPage(quint32 number, StoredPage &page)
{
    // The first page begins with the file's header and is none of a tree's.
    if (number < 2 || number > m_state.pages || m_seen[number])
        return false;
    m_seen[number] = true;
    const sqlite3_int64 offset = sqlite3_int64(number - 1) * kPageSize;
    return m_file->pMethods->xRead(m_file, page.Buffer(), kPageSize, offset) == SQLITE_OK;
}

/// Goes down from a page to the leaf behind the place, or without one to the first.
bool TreeWalk::Descend(quint32 number, const IsBehind &isBehind)
{
    while (ReadPage(number, m_leaf)) {
        if (m_leaf.IsOfTable() != m_isTable)
            return false;
        int first = 0;
        if (isBehind && !FirstBehind(m_leaf, isBehind, first))
            return false;
        if (m_leaf.IsLeaf()) {
            m_onLeaf = true;
            m_firstCell = first;
            m_endCell = m_leaf.CellCount();
            return true;
        }
        if (!m_leaf.IsInner() || m_depth == kMostLevels)
            return false;
        if (m_levels.size() == m_depth)
            m_levels.emplace_back();
        Level &level = m_levels[m_depth++];
        level.page = m_leaf;
        level.cells = m_leaf.CellCount();
        level.child = first;
        if (!ChildOf(level, number))
            return false;
    }
    return false;
}

/// The first cell behind the place, or the number of cells; false where that cannot be told.
bool TreeWalk::FirstBehind(const StoredPage &page, const IsBehind &isBehind, int &first)
{
    int end = page.CellCount();
    first = 0;
    StoredPage::Cell cell;
    while (first < end) {
        const int middle = first + (end - first) / 2;
        const std::optional<bool> behind = page.CellAt(middle, cell) ? isBehind(cell) : std::nullopt;
        if (!behind)
            return false;
        if (*behind)
            end = middle;
        else
            first = middle + 1;
    }
    return true;
}

bool TreeWalk::ChildOf(const Level &level, quint32 &number)
{
    if (level.child == level.cells) {
        number = level.page.LastChild();
        return true;
    }
    StoredPage::Cell cell;
    if (!level.page.CellAt(level.child, cell))
        return false;
    number = cell.child;
    return true;
}

} // namespace data
