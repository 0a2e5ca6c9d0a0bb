#include "aids/pure/word_book.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace
{

QStringList InOrder(const QStringList &rows)
{
    QStringList sorted;
    for (const qsizetype row : SortedOrder(rows))
        sorted.append(rows[row]);
    return sorted;
}

bool KeyLess(const QString &left, const QString &right) { return left.toLower() < right.toLower(); }

} // namespace

TEST(WordBook, IsRecordsOf255Bytes)
{
    EXPECT_EQ(EncodeWordBook({}), QByteArray());
    const QByteArray content = EncodeWordBook({QStringLiteral("run"), QStringLiteral("語"), QString()});
    ASSERT_EQ(content.size(), 3 * 255);
    EXPECT_EQ(content.first(255), QByteArray("run").leftJustified(255, ' '));
    EXPECT_EQ(content.sliced(255, 255), QByteArray("\x8c\xea").leftJustified(255, ' '));
    EXPECT_EQ(content.last(255), QByteArray(255, ' '));
}

TEST(WordBook, CutsALongWordOnACharacter)
{
    // 127 characters of two bytes fill 254 bytes; half a character is not written.
    const QByteArray content = EncodeWordBook({QString(200, u'語')});
    ASSERT_EQ(content.size(), 255);
    EXPECT_EQ(content.back(), ' ');
    EXPECT_EQ(DecodeWordBookRecord(content), QString(127, u'語'));
    EXPECT_EQ(DecodeWordBookRecord(EncodeWordBook({QString(300, u'a')})), QString(255, u'a'));
    EXPECT_EQ(DecodeWordBookRecord(EncodeWordBook({QString(255, u'a') + QStringLiteral("b")})),
              QString(255, u'a'));
}

TEST(WordBook, ReadsAFieldUpToItsLastCharacter)
{
    struct Case {
        QByteArray record;
        const char16_t *word;
    };
    const Case cases[] = {
        {QByteArray("run").leftJustified(255, ' '), u"run"},
        {QByteArray("run").leftJustified(255, '\0'), u"run"},
        {QByteArray("  run out \x81\x40").leftJustified(255, ' '), u"run out"},
        {QByteArray(255, ' '), u""},
        {QByteArray(255, '\0'), u""},
        {QByteArray("caf&#xE9;").leftJustified(255, ' '), u"café"},
        {QByteArray("a\x8c").leftJustified(255, '\0'), u"a・"},
        {QByteArray(255, '\xFF'), nullptr},
    };
    for (const Case &c : cases)
        if (c.word)
            EXPECT_EQ(DecodeWordBookRecord(c.record), QString::fromUtf16(c.word));
        else
            EXPECT_EQ(DecodeWordBookRecord(c.record), QString(255, u'・'));
}

TEST(WordBook, GivesBackWhatWasWritten)
{
    const QStringList rows{QStringLiteral("naïve"), QStringLiteral("&#x26;"), QStringLiteral("😀 smile"),
                           QStringLiteral("〜ー−"), QStringLiteral("a\\b")};
    const QByteArray content = EncodeWordBook(rows);
    for (qsizetype i = 0; i < rows.size(); ++i)
        EXPECT_EQ(DecodeWordBookRecord(content.sliced(i * 255, 255)), rows[i]);
}

TEST(SortedOrder, SortsByLowerCaseAndCharacterCodes)
{
    EXPECT_EQ(SortedOrder({}), QList<qsizetype>());
    EXPECT_EQ(SortedOrder({QStringLiteral("a")}), QList<qsizetype>{0});
    const QStringList rows{QStringLiteral("banana"),
                           QStringLiteral("Apple"),
                           QStringLiteral("cherry"),
                           QStringLiteral("apple pie"),
                           QStringLiteral("りんご"),
                           QStringLiteral("Ｚ"),
                           QStringLiteral("zoo"),
                           QStringLiteral("語"),
                           QStringLiteral("1st"),
                           QStringLiteral("-ing"),
                           QString()};
    const QStringList sorted{QString(),
                             QStringLiteral("-ing"),
                             QStringLiteral("1st"),
                             QStringLiteral("Apple"),
                             QStringLiteral("apple pie"),
                             QStringLiteral("banana"),
                             QStringLiteral("cherry"),
                             QStringLiteral("zoo"),
                             QStringLiteral("りんご"),
                             QStringLiteral("語"),
                             QStringLiteral("Ｚ")};
    EXPECT_EQ(InOrder(rows), sorted);
    EXPECT_EQ(InOrder(sorted), sorted);
    EXPECT_EQ(InOrder(QStringList(sorted.crbegin(), sorted.crend())), sorted);
}

TEST(SortedOrder, IsAnOrderOfEveryList)
{
    std::mt19937 random(20010401);
    for (int round = 0; round < 400; ++round) {
        QStringList rows;
        const int count = static_cast<int>(random() % 60);
        // Few different texts, so that many are equal.
        for (int i = 0; i < count; ++i)
            rows.append(QString(1 + static_cast<int>(random() % 2), QChar(u"aAbBzZ語"[random() % 7])));
        QList<qsizetype> order = SortedOrder(rows);
        const QStringList sorted = InOrder(rows);
        ASSERT_TRUE(std::is_sorted(sorted.cbegin(), sorted.cend(), KeyLess)) << round;
        std::sort(order.begin(), order.end());
        for (qsizetype i = 0; i < order.size(); ++i)
            ASSERT_EQ(order[i], i) << round;
    }
}

TEST(SortedOrder, StandsAThousandRowsOfEveryShape)
{
    QStringList same, rising, falling;
    for (int i = 0; i < 1000; ++i) {
        same.append(QStringLiteral("Same"));
        rising.append(QStringLiteral("w%1").arg(i, 4, 10, QLatin1Char('0')));
    }
    falling = QStringList(rising.crbegin(), rising.crend());
    EXPECT_EQ(InOrder(same), same);
    EXPECT_EQ(InOrder(rising), rising);
    EXPECT_EQ(InOrder(falling), rising);
}
