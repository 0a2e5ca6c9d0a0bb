#include "platform/data/pending_row.h"

#include "platform/data/operation.h"
#include "platform/data/row_reader.h"
#include "platform/data/schema.h"

#include <algorithm>
#include <limits>

namespace data
{

namespace
{

[[noreturn]] void RaiseBadValue() { throw RuntimeError(RuntimeError::ProviderError); }

qsizetype SizeOf(Column column)
{
    switch (column) {
    case Word: return kWordSize;
    case Pronunciation: return kPronunciationSize;
    default: return std::numeric_limits<int>::max() / 4;
    }
}

int SmallNumber(const QVariant &value)
{
    bool isNumber = false;
    const qlonglong number = value.toLongLong(&isNumber);
    if (!isNumber || !std::in_range<qint16>(number))
        RaiseBadValue();
    return static_cast<int>(number);
}

} // namespace

void PendingRow::Set(Column column, const QVariant &value)
{
    if (column == AutoID || (column == Word && !value.isValid()))
        RaiseBadValue();
    Value changed;
    changed.isSet = true;
    changed.isNull = !value.isValid();
    if (!changed.isNull && column == WordPhrase) {
        changed.number = SmallNumber(value);
    } else if (!changed.isNull) {
        const QString text = value.toString();
        if (text.size() > SizeOf(column))
            RaiseBadValue();
        changed.text = text.toUtf8();
    }
    m_values.at(static_cast<std::size_t>(column)) = std::move(changed);
}

QVariant PendingRow::ValueOf(Column column) const
{
    const Value &value = At(column);
    if (value.isNull)
        return {};
    return column == WordPhrase
               ? QVariant(value.number)
               : QVariant(FromUtf8({value.text.constData(), static_cast<std::size_t>(value.text.size())}));
}

bool PendingRow::IsEmpty() const { return std::ranges::none_of(m_values, &Value::isSet); }

} // namespace data
