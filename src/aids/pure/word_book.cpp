#include "aids/pure/word_book.h"

#include "platform/text/shift_jis.h"
#include "platform/text/trim.h"

#include <numeric>

QByteArray EncodeWordBook(const QStringList &rows)
{
    QByteArray content;
    content.reserve(rows.size() * kWordBookRecordLength);
    for (const QString &row : rows)
        content += text::FixedField(row, kWordBookRecordLength);
    return content;
}

QString DecodeWordBookRecord(const QByteArray &record) { return text::FieldText(text::DecodeRecord(record)); }

QList<qsizetype> SortedOrder(const QStringList &rows)
{
    QStringList keys;
    keys.reserve(rows.size());
    for (const QString &row : rows)
        keys.append(row.toLower());
    QList<qsizetype> order(rows.size());
    std::iota(order.begin(), order.end(), 0);

    // The ranges that are still to be parted: their lower and their upper bounds.
    QList<qsizetype> lows{0}, highs{rows.size() - 1};
    while (!lows.isEmpty()) {
        const qsizetype low = lows.takeLast(), high = highs.takeLast();
        if (low >= high)
            continue;
        const QString pivot = keys[(low + high) / 2];
        qsizetype left = low, right = high;
        while (left <= right) {
            while (keys[left] < pivot)
                ++left;
            while (pivot < keys[right])
                --right;
            if (left < right) {
                keys.swapItemsAt(left, right);
                order.swapItemsAt(left, right);
            }
            // Also where the two have met on one element: both step past it.
            if (left <= right) {
                ++left;
                --right;
            }
        }
        lows << low << left;
        highs << right << high;
    }
    return order;
}
