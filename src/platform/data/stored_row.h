#pragma once

#include "platform/data/statement.h"
#include "platform/data/stored_page.h"

#include <array>
#include <string_view>

namespace data
{

/// A row of the dictionary, or its entry in the index, as it lies in a page: nothing is copied, and the
/// texts stay as long as the page does. One object reads the one or the other.
class StoredRow
{
public:
    /// Reads a cell of the table; false where it runs on, or is nothing that the engine writes.
    bool ReadRow(const StoredPage::Cell &cell);
    /// The same for a cell of the index, which knows Word, AutoID and WordPhrase alone; the other columns
    /// are null.
    bool ReadEntry(const StoredPage::Cell &cell);

    /// A column of the row, as RowReader gives it.
    std::string_view Text(Column column) const { return ValueOf(column).bytes; }
    bool IsNull(Column column) const { return column != AutoID && ValueOf(column).type == 0; }
    qint64 Number(Column column) const;

private:
    struct Value {
        std::string_view bytes;
        quint64 type = 0; ///< as the record's head gives it; 0 is null
    };

    template <std::size_t Count> bool Read(std::string_view record, const std::array<Column, Count> &columns);
    qint64 IntegerAt(Column column) const;

    const Value &ValueOf(Column column) const { return m_values[static_cast<std::size_t>(column)]; }

    std::array<Value, ColumnCount> m_values;
    qint64 m_autoID = 0;
};

} // namespace data
