#include "platform/data/stored_page.h"

#include <QtEndian>

namespace data
{

using namespace page_layout;

namespace
{

constexpr int kLongestNumber = 9;
/// A longer record runs on in other pages.
constexpr quint64 kMostInTablePage = kPageSize - 35;
constexpr quint64 kMostInIndexPage = (kPageSize - 12) * 64 / 255 - 23;
/// What then stays at least.
constexpr quint64 kLeastInPage = (kPageSize - 12) * 32 / 255 - 23;

/// How many bytes of a record stand in the page of its cell; the rest fills whole pages where it can.
quint64 SizeInPage(quint64 size, bool isOfTable)
{
    const quint64 most = isOfTable ? kMostInTablePage : kMostInIndexPage;
    if (size <= most)
        return size;
    const quint64 filling = kLeastInPage + (size - kLeastInPage) % kRoomForRest;
    return filling <= most ? filling : kLeastInPage;
}

} // namespace

int StoredPage::CellCount() const { return qFromBigEndian<quint16>(&m_bytes[kCellCountAt]); }

quint32 StoredPage::LastChild() const { return qFromBigEndian<quint32>(&m_bytes[kLastChildAt]); }

bool StoredPage::CellAt(int number, Cell &cell) const
{
    static_assert(kPadding >= kPageNumberSize + 2 * kLongestNumber);
    const int pointer = (IsLeaf() ? kLeafHeader : kInnerHeader) + number * kCellPointerSize;
    if (pointer + kCellPointerSize > kPageSize)
        return false;
    const int offset = qFromBigEndian<quint16>(&m_bytes[static_cast<std::size_t>(pointer)]);
    if (offset >= kPageSize)
        return false;
    const unsigned char *at = m_bytes.data() + offset;
    cell.runsOn = false;
    cell.record = {};
    if (IsInner()) {
        cell.child = qFromBigEndian<quint32>(at);
        at += kPageNumberSize;
    }
    if (kind() == Kind::InnerTable) {
        cell.number = static_cast<qint64>(TakeNumber(at));
        return true;
    }
    const unsigned char *const begin = at;
    cell.size = TakeNumber(at);
    if (IsOfTable())
        cell.number = static_cast<qint64>(TakeNumber(at));
    cell.sizeHere = SizeInPage(cell.size, IsOfTable());
    cell.runsOn = cell.sizeHere < cell.size;
    const quint64 sizeInPage = cell.sizeHere + (cell.runsOn ? kPageNumberSize : 0);
    const unsigned char *const end = m_bytes.data() + kPageSize;
    if (at > end || sizeInPage > static_cast<quint64>(end - at))
        return false;
    if (!cell.runsOn)
        cell.record = {reinterpret_cast<const char *>(at), cell.size};
    at += sizeInPage;
    cell.body = {reinterpret_cast<const char *>(begin), static_cast<std::size_t>(at - begin)};
    return true;
}

} // namespace data
