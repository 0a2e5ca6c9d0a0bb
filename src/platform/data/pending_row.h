#pragma once

#include "platform/data/statement.h"

#include <QByteArray>
#include <QVariant>
#include <array>

namespace data
{

/// The values that a new or changed row gets at the next Update.
class PendingRow
{
public:
    struct Value {
        bool isSet = false;
        bool isNull = true;
        int number = 0;
        QByteArray text; ///< UTF-8
    };

    /// Raises -2147217887 for a value that the column does not take: text beyond its size, no small
    /// whole number for WordPhrase, any value for AutoID, null for Word.
    void Set(Column column, const QVariant &value);

    const Value &At(Column column) const { return m_values.at(static_cast<std::size_t>(column)); }
    /// The value as a field gives it; invalid for one that is null or not set.
    QVariant ValueOf(Column column) const;
    bool IsEmpty() const;

private:
    std::array<Value, ColumnCount> m_values;
};

} // namespace data
