#include "search/pure/result_record.h"

#include <gtest/gtest.h>

namespace
{

ResultKey ThereAndBack(const QString &word, qint32 autoID)
{
    return DecodeResult(EncodeResult(word, autoID));
}

} // namespace

TEST(ResultRecord, IsAWordOf512BytesAndANumberOf8Digits)
{
    struct Case {
        const char16_t *word;
        QByteArray bytes;
    };
    const Case cases[] = {
        {u"abc", "abc"}, {u" 　abc　 ", "abc"},    {u"犬", "\x8c\xa2"}, {u"ｶﾞ", "\xb6\xde"},
        {u"", ""},       {u"naïve", "na&#xEF;ve"}, {u"表", "\x95\x5c"}, {u"R&#x26;", "R&#x26;#x26;"},
    };
    for (const Case &c : cases) {
        const QByteArray record = EncodeResult(QString::fromUtf16(c.word), 42);
        EXPECT_EQ(record.size(), kResultRecordLength);
        EXPECT_EQ(record, c.bytes.leftJustified(512, ' ') + "00000042");
    }
}

TEST(ResultRecord, PadsTheNumberWithZeros)
{
    struct Case {
        qint32 autoID;
        const char *digits;
    };
    constexpr Case cases[] = {
        {0, "00000000"}, {7, "00000007"}, {12345678, "12345678"}, {99999999, "99999999"}};
    for (const Case &c : cases) {
        const QByteArray record = EncodeResult(QStringLiteral("a"), c.autoID);
        EXPECT_EQ(record.last(8), c.digits);
        EXPECT_EQ(DecodeResult(record).autoID, c.autoID);
    }
}

TEST(ResultRecord, GivesBackEveryWordThatHasRoom)
{
    const QString words[] = {
        QStringLiteral("a"),       QStringLiteral("it's 100%"),  QStringLiteral("café"),
        QStringLiteral("😀 smile"), QStringLiteral("a — b ～ c"), QStringLiteral("&#xE9;"),
        QString(255, u'a'),        QString(255, u'犬'),
    };
    for (const QString &word : words)
        EXPECT_EQ(ThereAndBack(word, 5), (ResultKey{word, 5, word.size() == 255 && word[0] == u'犬'}))
            << word.toStdString();
}

TEST(ResultRecord, CutsALongWordOnAReferenceAndTellsThatItMay)
{
    const QString word(255, u'é'); // six bytes each: 85 of them have room
    EXPECT_EQ(ThereAndBack(word, 9), (ResultKey{word.first(85), 9, true}));
    const QString emoji = QStringLiteral("😀").repeated(127); // nine bytes each: 56 have room
    EXPECT_EQ(ThereAndBack(emoji, 9), (ResultKey{QStringLiteral("😀").repeated(56), 9, true}));
}

TEST(ResultRecord, ReadsWhatLiesBehindTheEndOfTheFileAsNothing)
{
    EXPECT_EQ(DecodeResult(QByteArray(kResultRecordLength, '\0')), (ResultKey{QString(), 0, false}));
    EXPECT_EQ(DecodeResult(QByteArray("ab").leftJustified(kResultRecordLength, '\0')),
              (ResultKey{QStringLiteral("ab"), 0, false}));
}

TEST(ResultRecord, TakesANumberThatIsNoneAsZero)
{
    for (const char *digits : {"        ", "abcdefgh", "12 45678"})
        EXPECT_EQ(DecodeResult(QByteArray("w").leftJustified(512, ' ') + digits).autoID, 0) << digits;
}
