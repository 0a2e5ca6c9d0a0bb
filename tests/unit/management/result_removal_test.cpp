#include "management/pure/result_removal.h"

#include "search/pure/result_record.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

QByteArray Store(std::initializer_list<qint32> numbers)
{
    QByteArray content;
    for (const qint32 number : numbers)
        content += EncodeResult(u"語"_s + QString::number(number), number);
    return content;
}

struct Removal {
    const char *what;
    QByteArray before, after;
    qint32 autoID, position;
};

TEST(ResultRemoval, TakesTheHitOutAndKeepsTheOthersByteForByte)
{
    const QByteArray tail = Store({9}).first(300);
    const Removal table[] = {
        {"the first", Store({1, 2, 3}), Store({2, 3}), 1, 0},
        {"one between", Store({1, 2, 3}), Store({1, 3}), 2, 1},
        {"the last", Store({1, 2, 3}), Store({1, 2}), 3, 2},
        {"the only one", Store({7}), {}, 7, 0},
        {"none", Store({1, 2}), Store({1, 2}), 5, -1},
        {"an empty store", {}, {}, 5, -1},
        {"the later of two", Store({4, 1, 4, 2}), Store({1, 2}), 4, 2},
        {"digits within others", Store({1, 11, 111}), Store({1, 111}), 11, 1},
        {"a long tail reads as a record", Store({1}) + tail, tail.leftJustified(520, '\0'), 1, 0},
        {"a short tail is none", Store({1, 2}) + QByteArray(259, 'x'), Store({1}), 2, 1},
    };
    for (const Removal &row : table) {
        const ResultRemoval removal = WithoutResult(row.before, row.autoID);
        EXPECT_EQ(removal.content, row.after) << row.what;
        EXPECT_EQ(removal.position, row.position) << row.what;
    }
}

} // namespace
