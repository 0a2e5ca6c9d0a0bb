#include "core/pure/app_files.h"
#include "core/pure/settings_formats.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/application_folder.h"

#include <gtest/gtest.h>

namespace
{

qint32 NumberRaisedBy(const QString &line)
{
    try {
        ParseListLine(line);
    } catch (const RuntimeError &failure) {
        return failure.number();
    }
    return 0;
}

} // namespace

TEST(ListLine, IsCutIntoSevenFields)
{
    const ListSettings settings = ParseListLine(QStringLiteral("12345678123459009992"));
    EXPECT_EQ(settings.IncListCount, 123);
    EXPECT_EQ(settings.IncEntriesPerPage, 45);
    EXPECT_EQ(settings.ListPageSize, 678);
    EXPECT_EQ(settings.MaxListCount, 12345);
    EXPECT_EQ(settings.EntriesPerPage, 90);
    EXPECT_EQ(settings.WordBookMax, 999);
    EXPECT_EQ(settings.SearchTarget, 2);
}

TEST(ListLine, OfAnotherLengthIsTheDefault)
{
    for (const QString &line : {QString(), QStringLiteral("1"), QStringLiteral("0501505000500150300"),
                                QStringLiteral("050150500050015030000"), QStringLiteral("abc")})
        EXPECT_EQ(ParseListLine(line), ListSettings{}) << line.toStdString();
    EXPECT_EQ(ParseListLine(DefaultListLine()), ListSettings{});
}

TEST(ListLine, IsWrittenWithZerosInFront)
{
    EXPECT_EQ(ListLine(ListSettings{}), DefaultListLine());
    EXPECT_EQ(ListLine({1, 2, 3, 4, 5, 6, 1}), QStringLiteral("00102003000040500061"));
    EXPECT_EQ(ListLine({300, 30, 300, 30000, 30, 1000, 2}), QStringLiteral("30030300300003010002"));
    EXPECT_EQ(ListLine({0, 0, 0, 0, 0, 0, 0}), QStringLiteral("00000000000000000000"));
    const ListSettings settings{123, 45, 678, 12345, 90, 999, 2};
    EXPECT_EQ(ParseListLine(ListLine(settings)), settings);
}

TEST(ListLine, RaisesForWhatIsNoNumber)
{
    EXPECT_EQ(NumberRaisedBy(QStringLiteral("abc15050005001503000")), RuntimeError::TypeMismatch);
    EXPECT_EQ(NumberRaisedBy(QStringLiteral("0501505000500150300x")), RuntimeError::TypeMismatch);
    EXPECT_EQ(NumberRaisedBy(QStringLiteral("05015050327681503000")), RuntimeError::Overflow);
    EXPECT_EQ(NumberRaisedBy(QStringLiteral("05015050327671503000")), 0);
}

TEST(FontRow, GoesThroughItsRecord)
{
    const FontRow row{QStringLiteral("ＭＳ Ｐ明朝"), -12, 0x00123456, -1, 0, -1, -1};
    const QByteArray record = EncodeFontRow(row);
    ASSERT_EQ(record.size(), 44);
    EXPECT_EQ(record.sliced(30), QByteArray::fromHex("f4ff563412 00 ffff 0000 ffff ffff"));
    EXPECT_EQ(DecodeFontRow(record), row);
}

TEST(FontRow, CutsANameBehindThirtyBytes)
{
    EXPECT_EQ(EncodeFontRow({QString(40, u'a'), 9, 0, 0, 0, 0, 0}).first(31), QByteArray(30, 'a') + '\x09');
    EXPECT_EQ(DecodeFontRow(EncodeFontRow({QString(30, u'b'), 9, 0, 0, 0, 0, 0})).name, QString(30, u'b'));
    // A double-byte character never loses its second half.
    const QByteArray record = EncodeFontRow({u'a' + QString(15, u'あ'), 9, 0, 0, 0, 0, 0});
    EXPECT_EQ(record[29], ' ');
    EXPECT_EQ(DecodeFontRow(record).name, u'a' + QString(14, u'あ'));
}

TEST(FontRow, OfAShortFileIsBlankAndZero) { EXPECT_EQ(DecodeFontRow(QByteArray(44, '\0')), FontRow{}); }

TEST(FontRow, HasTheDefaultsOfItsSlot)
{
    struct Expected {
        qint32 color;
        qint16 bold, italic, underline;
    };
    constexpr Expected expected[] = {{0xFF0000, 0, 0, 0},  {0xFF0000, 0, 0, 0}, {0xFF0000, 0, 0, 0},
                                     {0xFF0000, -1, 0, 0}, {0, 0, 0, 0},        {0, 0, 0, 0},
                                     {0, 0, -1, 0},        {255, -1, 0, 0},     {255, -1, 0, -1}};
    for (int slot = 0; slot < kFontSlots; ++slot) {
        const FontRow row = DefaultFontRow(slot);
        EXPECT_EQ(row.name, QStringLiteral("ＭＳ Ｐゴシック"));
        EXPECT_EQ(row.size, 9);
        EXPECT_EQ(row.color, expected[slot].color) << slot;
        EXPECT_EQ(row.bold, expected[slot].bold) << slot;
        EXPECT_EQ(row.italic, expected[slot].italic) << slot;
        EXPECT_EQ(row.underline, expected[slot].underline) << slot;
        EXPECT_EQ(row.strikeout, 0) << slot;
    }
}

TEST(AgentRecord, GoesThroughItsRecord)
{
    const AgentSettings settings{1, QStringLiteral("Z:\\キャラ"), QStringLiteral("é.acs")};
    const QByteArray record = EncodeAgentSettings(settings);
    ASSERT_EQ(record.size(), 306);
    EXPECT_EQ(record[0], '\x01');
    EXPECT_TRUE(record.sliced(256).startsWith("&#xE9;.acs "));
    EXPECT_EQ(DecodeAgentSettings(record), settings);
    EXPECT_EQ(EncodeAgentSettings(DefaultAgentSettings()),
              QByteArray(1, '\0') + "default" + QByteArray(248 + 50, ' '));
}

TEST(CharacterId, IsTheNameBeforeItsLastPoint)
{
    EXPECT_EQ(CharacterIdFromFile(QStringLiteral("a.b.acs")), QStringLiteral("a.b"));
    EXPECT_EQ(CharacterIdFromFile(QStringLiteral("abc")), QStringLiteral("abc"));
    EXPECT_EQ(CharacterIdFromFile(QString()), QString());
}

TEST(AnsiByteLen, CountsBytesOfARecord)
{
    EXPECT_EQ(AnsiByteLen(QString()), 0);
    EXPECT_EQ(AnsiByteLen(QStringLiteral("abc")), 3);
    EXPECT_EQ(AnsiByteLen(QStringLiteral("あいう")), 6);
    EXPECT_EQ(AnsiByteLen(QStringLiteral("ｱ")), 1);
    EXPECT_EQ(AnsiByteLen(QStringLiteral("é")), 6);
}

TEST(AppFilePath, HasExactlyOneSeparator)
{
    files::SetApplicationFolder(QStringLiteral("/tmp/wordmere"));
    EXPECT_EQ(AppFilePath(QStringLiteral("a.dat")), QStringLiteral("Z:\\tmp\\wordmere\\a.dat"));
    files::SetApplicationFolder(QStringLiteral("/"));
    EXPECT_EQ(AppFilePath(QStringLiteral("a.dat")), QStringLiteral("Z:\\a.dat"));
}
