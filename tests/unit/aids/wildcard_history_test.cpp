#include "aids/pure/wildcard_history.h"

#include <gtest/gtest.h>

TEST(WildcardHistory, IsFiveTrimmedLines)
{
    const WildcardFields fields{QStringLiteral(" 50% "), QStringLiteral("語"), QStringLiteral("z_"),
                                QStringLiteral("3"), QString()};
    EXPECT_EQ(EncodeWildcardHistory(fields), QByteArray("50%\r\n\x8c\xea\r\nz_\r\n3\r\n\r\n"));
    EXPECT_EQ(EncodeWildcardHistory({}), QByteArray("\r\n\r\n\r\n\r\n\r\n"));
}

TEST(WildcardHistory, KeepsWhatTheCodePageLacksAndItsLines)
{
    const WildcardFields fields{QStringLiteral("café"), QStringLiteral("&#xE9;"), QStringLiteral("a\r\nb"),
                                QString(), QString()};
    EXPECT_EQ(EncodeWildcardHistory(fields), QByteArray("caf&#xE9;\r\n&#x26;#xE9;\r\na b\r\n\r\n\r\n"));
}

TEST(WildcardHistory, FillsOnlyTheFieldsOfAShorterFile)
{
    const QStringList lines{QStringLiteral(" a　"), QStringLiteral("b"),   QStringLiteral("c"),
                            QStringLiteral("4"),    QStringLiteral(" 5 "), QStringLiteral("more")};
    WildcardFields expected;
    EXPECT_EQ(DecodeWildcardHistory({}), expected);
    expected.start = QStringLiteral("a");
    EXPECT_EQ(DecodeWildcardHistory(lines.first(1)), expected);
    expected.middle = QStringLiteral("b");
    EXPECT_EQ(DecodeWildcardHistory(lines.first(2)), expected);
    expected.end = QStringLiteral("c");
    EXPECT_EQ(DecodeWildcardHistory(lines.first(3)), expected);
    expected.firstGap = QStringLiteral("4");
    EXPECT_EQ(DecodeWildcardHistory(lines.first(4)), expected);
    expected.secondGap = QStringLiteral("5");
    EXPECT_EQ(DecodeWildcardHistory(lines.first(5)), expected);
    EXPECT_EQ(DecodeWildcardHistory(lines), expected);
}
