#pragma once

#include "platform/data/schema.h"

#include <QtGlobal>
#include <array>
#include <string_view>

namespace data
{

/// Where what stands in a page of a tree, in bytes, by SQLite's database file format.
namespace page_layout
{
inline constexpr std::size_t kCellCountAt = 3;
inline constexpr std::size_t kContentAt = 5; ///< where the first of the cells begins
inline constexpr std::size_t kLastChildAt = 8;
inline constexpr int kInnerHeader = 12;
inline constexpr int kLeafHeader = 8;
inline constexpr int kCellPointerSize = 2;
inline constexpr int kPageNumberSize = 4;
/// What a page takes in which a record runs on, behind the number of the next such page.
inline constexpr int kRoomForRest = kPageSize - kPageNumberSize;
} // namespace page_layout

/// One page of a tree by the layout of SQLite's file. It believes nothing of what it holds: what would
/// lie outside the page is refused, and nothing is read beyond it.
class StoredPage
{
public:
    /// What the first byte of a page says.
    enum class Kind : unsigned char { InnerIndex = 2, InnerTable = 5, LeafIndex = 10, LeafTable = 13 };

    struct Cell {
        quint32 child = 0;       ///< of an inner page: the number of the page in front of the cell
        qint64 number = 0;       ///< of a table: the number of the row; of an inner page the greatest below
        std::string_view record; ///< what the cell holds; nothing in an inner page of a table
        bool runsOn = false;     ///< the record goes on in further pages, and is not given
        quint64 size = 0;        ///< of the whole record, in bytes
        quint64 sizeHere = 0;    ///< of what of it stands in the page
        /// All that stands in the page of the cell, behind `child`. Where the record runs on, the number of
        /// the page in which it does is the end of it.
        std::string_view body;
    };

    /// Where a page of kPageSize bytes is to be read to.
    unsigned char *Buffer() { return m_bytes.data(); }

    Kind kind() const { return static_cast<Kind>(m_bytes.front()); }
    bool IsLeaf() const { return kind() == Kind::LeafTable || kind() == Kind::LeafIndex; }
    bool IsInner() const { return kind() == Kind::InnerTable || kind() == Kind::InnerIndex; }
    /// Whether it belongs to a table, not to an index; for a page that is one of the four kinds.
    bool IsOfTable() const { return kind() == Kind::LeafTable || kind() == Kind::InnerTable; }

    int CellCount() const;
    /// The cell of that number, from 0; false where it makes no sense.
    bool CellAt(int number, Cell &cell) const;
    /// Of an inner page: the number of the page behind all cells.
    quint32 LastChild() const;
    /// All bytes of the page.
    std::string_view Bytes() const { return {reinterpret_cast<const char *>(m_bytes.data()), kPageSize}; }

private:
    /// Behind the page's bytes stand zeros enough for a cell that claims to go on there.
    static constexpr std::size_t kPadding = 24;

    std::array<unsigned char, kPageSize + kPadding> m_bytes{};
};

/// Takes one of SQLite's numbers of variable length: `at` is moved behind it. Up to nine bytes are read.
inline quint64 TakeNumber(const unsigned char *&at)
{
    constexpr int longest = 9;
    constexpr unsigned goesOn = 0x80;
    constexpr unsigned bits = 0x7F;
    quint64 number = *at & bits;
    if ((*at++ & goesOn) == 0)
        return number;
    for (int i = 1; i < longest - 1; ++i) {
        const unsigned byte = *at++;
        number = number << 7 | (byte & bits);
        if ((byte & goesOn) == 0)
            return number;
    }
    return number << 8 | *at++;
}

} // namespace data
