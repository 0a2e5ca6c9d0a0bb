#include "platform/data/stored_page.h"

#include <QtEndian>

namespace data
{

namespace
{

constexpr std::size_t kCellCountAt = 3;
constexpr std::size_t kLastChildAt = 8;
constexpr int kInnerHeader = 12;
constexpr int kLeafHeader = 8;
constexpr int kCellPointerSize = 2;
constexpr int kChildSize = 4;
constexpr int kLongestNumber = 9;
/// A longer record runs on in other pages.
constexpr quint64 kMostInTablePage = kPageSize - 35;
constexpr quint64 kMostInIndexPage = (kPageSize - 12) * 64 / 255 - 23;

} // namespace

int StoredPage::CellCount() const { return qFromBigEndian<quint16>(&m_bytes[kCellCountAt]); }

quint32 StoredPage::LastChild() const { return qFromBigEndian<quint32>(&m_bytes[kLastChildAt]); }

bool StoredPage::CellAt(int number, Cell &cell) const
{
    static_assert(kPadding >= kChildSize + 2 * kLongestNumber);
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
        at += kChildSize;
    }
    if (kind() == Kind::InnerTable) {
        cell.number = static_cast<qint64>(TakeNumber(at));
        return true;
    }
    const quint64 size = TakeNumber(at);
    if (IsOfTable())
        cell.number = static_cast<qint64>(TakeNumber(at));
    if (size > (IsOfTable() ? kMostInTablePage : kMostInIndexPage)) {
        cell.runsOn = true;
        return true;
    }
    const unsigned char *const end = m_bytes.data() + kPageSize;
    if (at > end || size > static_cast<quint64>(end - at))
        return false;
    cell.record = {reinterpret_cast<const char *>(at), size};
    return true;
}

} // namespace data
