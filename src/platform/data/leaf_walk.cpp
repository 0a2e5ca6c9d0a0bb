#include "platform/data/leaf_walk.h"

#include "platform/data/index_walk.h"

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
constexpr std::size_t kEncodingAt = 56;
constexpr unsigned char kRollbackJournal = 1;
constexpr quint32 kUtf8 = 1;

/// Of a page of a table.
constexpr unsigned char kInnerPage = 5;
constexpr unsigned char kLeafPage = 13;
constexpr std::size_t kCellCountAt = 3;
constexpr std::size_t kLastChildAt = 8;
constexpr int kInnerHeader = 12;
constexpr int kLeafHeader = 8;
constexpr int kCellPointerSize = 2;
constexpr int kChildSize = 4;
constexpr int kLongestNumber = 9;
/// A row with more bytes runs on in other pages.
constexpr quint64 kMostInPage = kPageSize - 35;

/// A tree of more levels would hold more rows than there are numbers.
constexpr std::size_t kMostLevels = 16;

/// The number of variable length at `at`; there are bytes enough for the longest.
quint64 NumberAt(const unsigned char *at)
{
    quint64 number = 0;
    for (int i = 0; i < kLongestNumber - 1; ++i) {
        number = number << 7 | (at[i] & 0x7FU);
        if ((at[i] & 0x80U) == 0)
            return number;
    }
    return number << 8 | at[kLongestNumber - 1];
}

} // namespace

bool LeafWalk::Seek(qint64 behind)
{
    m_depth = 0;
    m_isAtEnd = false;
    m_session.BeginRead();
    return !m_session.IsWriting() && ReadRoot() && Descend(m_root, kBehindAllIDs, behind);
}

bool LeafWalk::Next()
{
    const qint64 last = m_lastID;
    while (m_depth > 0) {
        Level &level = m_levels[m_depth - 1];
        if (level.child == level.cells) {
            --m_depth;
            continue;
        }
        ++level.child;
        quint32 number = 0;
        qint64 bound = 0;
        // The numbers must rise, or the pages might lead round in circles.
        return ChildOf(level, number, bound) && Descend(number, bound, last) && m_lastID > last;
    }
    m_isAtEnd = true;
    return false;
}

std::string_view LeafWalk::Bytes() const
{
    if (!HoldsWholeRows())
        return {};
    return {reinterpret_cast<const char *>(m_bytes.data()), kPageSize};
}

bool LeafWalk::ReadRoot()
{
    if (!m_rootQuery)
        m_rootQuery = m_session.Prepare("SELECT rootpage FROM sqlite_schema WHERE name = 'Dictionary'");
    // The query comes first: it takes the lock under which the file may be read.
    m_root = m_rootQuery.Step() ? static_cast<quint32>(m_rootQuery.Number(0)) : 0;
    m_rootQuery.Reset();
    m_file = nullptr;
    sqlite3_int64 size = 0;
    std::array<unsigned char, kHeaderSize> header{};
    if (sqlite3_file_control(m_session.Database(), "main", SQLITE_FCNTL_FILE_POINTER, &m_file) != SQLITE_OK ||
        m_file->pMethods == nullptr || m_file->pMethods->xFileSize(m_file, &size) != SQLITE_OK ||
        m_file->pMethods->xRead(m_file, header.data(), static_cast<int>(header.size()), 0) != SQLITE_OK)
        return false;
    m_pages = static_cast<quint32>(size / kPageSize);
    return qFromBigEndian<quint16>(&header[kPageSizeAt]) == kPageSize &&
           header[kWriteVersionAt] == kRollbackJournal && header[kReadVersionAt] == kRollbackJournal &&
           header[kReservedAt] == 0 && qFromBigEndian<quint32>(&header[kEncodingAt]) == kUtf8;
}

bool LeafWalk::ReadPage(quint32 number, Page &page) const
{
    // The first page begins with the file's header and is none of the table's.
    if (number < 2 || number > m_pages)
        return false;
    const sqlite3_int64 offset = sqlite3_int64(number - 1) * kPageSize;
    return m_file->pMethods->xRead(m_file, page.data(), kPageSize, offset) == SQLITE_OK;
}

/// Goes down from a page to the leaf behind the number.
bool LeafWalk::Descend(quint32 number, qint64 bound, qint64 behind)
{
    while (ReadPage(number, m_bytes)) {
        if (m_bytes.front() == kLeafPage) {
            m_lastID = bound;
            return true;
        }
        if (m_bytes.front() != kInnerPage || m_depth == kMostLevels)
            return false;
        if (m_levels.size() == m_depth)
            m_levels.emplace_back();
        Level &level = m_levels[m_depth++];
        level.page = m_bytes;
        level.cells = qFromBigEndian<quint16>(&level.page[kCellCountAt]);
        level.bound = bound;
        level.child = FirstChildBehind(level, behind);
        if (!ChildOf(level, number, bound))
            return false;
    }
    return false;
}

/// Where a cell lies in its page; false where it lies outside.
bool LeafWalk::CellAt(const Page &page, int header, int cell, int &offset)
{
    const int pointer = header + cell * kCellPointerSize;
    if (pointer + kCellPointerSize > kPageSize)
        return false;
    offset = qFromBigEndian<quint16>(&page[static_cast<std::size_t>(pointer)]);
    return offset < kPageSize;
}

bool LeafWalk::InnerCell(const Page &page, int cell, quint32 &child, qint64 &key)
{
    int offset = 0;
    if (!CellAt(page, kInnerHeader, cell, offset))
        return false;
    const unsigned char *at = page.data() + offset;
    child = qFromBigEndian<quint32>(at);
    key = static_cast<qint64>(NumberAt(at + kChildSize));
    static_assert(kPadding >= kChildSize + kLongestNumber);
    return true;
}

int LeafWalk::FirstChildBehind(const Level &level, qint64 behind)
{
    int first = 0;
    int end = level.cells;
    while (first < end) {
        const int middle = first + (end - first) / 2;
        quint32 child = 0;
        qint64 key = 0;
        if (InnerCell(level.page, middle, child, key) && key > behind)
            end = middle;
        else
            first = middle + 1;
    }
    return first;
}

bool LeafWalk::ChildOf(const Level &level, quint32 &number, qint64 &bound)
{
    if (level.child == level.cells) {
        number = qFromBigEndian<quint32>(&level.page[kLastChildAt]);
        bound = level.bound;
        return true;
    }
    return InnerCell(level.page, level.child, number, bound) && bound <= level.bound;
}

bool LeafWalk::HoldsWholeRows() const
{
    const int cells = qFromBigEndian<quint16>(&m_bytes[kCellCountAt]);
    for (int cell = 0; cell < cells; ++cell) {
        int offset = 0;
        if (!CellAt(m_bytes, kLeafHeader, cell, offset) || NumberAt(m_bytes.data() + offset) > kMostInPage)
            return false;
    }
    return true;
}

} // namespace data
