#include "platform/data/stored_row.h"

namespace data
{

namespace
{

/// What stands in the record of a row and of an entry, in this order. Behind it stands what nobody needs:
/// a null for the number, which a row has outside its record, and the number once more in an entry.
constexpr std::array kRowColumns{Word, Pronunciation, WordPhrase, Description, Example};
constexpr std::array kEntryColumns{Word, AutoID, WordPhrase};

/// Types of values in the head of a record: null, integers of so many bytes, the constants 0 and 1, and
/// texts, in the odd ones. The rest is nothing that the columns hold.
constexpr quint64 kNull = 0;
constexpr quint64 kOne = 9;
constexpr quint64 kFirstText = 13;
constexpr quint8 kNone = 0xFF;
constexpr std::array<quint8, kFirstText> kIntegerSizes{0, 1, 2, 3, 4, 6, 8, kNone, 0, 0, kNone, kNone, kNone};

/// Whether a column may hold a value of that type, and of how many bytes it is then.
inline bool SizeOf(Column column, quint64 type, quint64 &size)
{
    const bool isNumeric = column == WordPhrase || column == AutoID;
    if (type >= kFirstText) {
        size = (type - kFirstText) / 2;
        return type % 2 == 1 && !isNumeric;
    }
    size = kIntegerSizes[type];
    return size != kNone && (isNumeric || type == kNull);
}

qint64 IntegerOf(std::string_view bytes)
{
    // The first byte bears the sign.
    const auto byteOf = [](char byte) { return static_cast<unsigned char>(byte); };
    quint64 number = (byteOf(bytes.front()) & 0x80U) != 0 ? ~quint64(0) : 0;
    for (const char byte : bytes)
        number = number << 8 | byteOf(byte);
    return static_cast<qint64>(number);
}

} // namespace

template <std::size_t Count>
bool StoredRow::Read(std::string_view record, const std::array<Column, Count> &columns)
{
    const auto *const begin = reinterpret_cast<const unsigned char *>(record.data());
    const unsigned char *at = begin;
    if (record.empty())
        return false;
    const quint64 headSize = TakeNumber(at);
    if (headSize > record.size())
        return false;
    const unsigned char *const headEnd = begin + headSize;
    std::string_view rest = record.substr(headSize);
    for (const Column column : columns) {
        quint64 size = 0;
        if (at >= headEnd)
            return false;
        const quint64 type = TakeNumber(at);
        if (!SizeOf(column, type, size) || size > rest.size())
            return false;
        m_values[static_cast<std::size_t>(column)] = {rest.substr(0, size), type};
        rest.remove_prefix(size);
    }
    return at <= headEnd;
}

bool StoredRow::ReadRow(const StoredPage::Cell &cell)
{
    m_autoID = cell.number;
    return !cell.runsOn && Read(cell.record, kRowColumns);
}

bool StoredRow::ReadEntry(const StoredPage::Cell &cell)
{
    if (cell.runsOn || !Read(cell.record, kEntryColumns))
        return false;
    m_autoID = IntegerAt(AutoID);
    return ValueOf(AutoID).type != kNull;
}

qint64 StoredRow::Number(Column column) const { return column == AutoID ? m_autoID : IntegerAt(column); }

qint64 StoredRow::IntegerAt(Column column) const
{
    const Value &value = ValueOf(column);
    if (!value.bytes.empty())
        return IntegerOf(value.bytes);
    return value.type == kOne ? 1 : 0;
}

} // namespace data
