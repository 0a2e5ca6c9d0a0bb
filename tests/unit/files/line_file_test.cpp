#include "platform/files/line_file.h"
#include "platform/text/shift_jis.h"
#include "unit/files/full_disk.h"
#include "unit/files/temp_home.h"

namespace
{

using namespace Qt::StringLiterals;
using files::Encoding;
using files::LineReader;
using files::LineWriter;

class LineFiles : public TempHome
{
protected:
    QList<QByteArray> RawLines(const QByteArray &content)
    {
        Put(u"a.txt"_s, content);
        LineReader reader(Drive(u"a.txt"_s));
        QList<QByteArray> lines;
        while (!reader.AtEnd())
            lines.append(reader.ReadRawLine());
        return lines;
    }
    QStringList Lines(const QByteArray &content)
    {
        Put(u"a.txt"_s, content);
        LineReader reader(Drive(u"a.txt"_s));
        QStringList lines;
        while (!reader.AtEnd())
            lines.append(reader.ReadLine());
        return lines;
    }
};

TEST_F(LineFiles, WriterEndsEachLine)
{
    LineWriter writer(Drive(u"a.txt"_s), LineWriter::Mode::Output);
    writer.WriteLine("one");
    writer.WriteLine({});
    writer.WriteLine(QByteArray("\x81\x40\0x", 4));
    writer.Close();
    EXPECT_EQ(Get(u"a.txt"_s), QByteArray("one\r\n\r\n\x81\x40\0x\r\n", 13));
}

TEST_F(LineFiles, WriterEndsLinesInTheEncoding)
{
    const struct {
        Encoding encoding;
        QByteArray content;
    } table[] = {{Encoding::ShiftJis, "x\r\n"},
                 {Encoding::Utf8, "x\r\n"},
                 {Encoding::Utf16LittleEndian, QByteArray("x\r\0\n\0", 5)},
                 {Encoding::Utf16BigEndian, QByteArray("x\0\r\0\n", 5)}};
    for (const auto &row : table) {
        LineWriter writer(Drive(u"a.txt"_s), LineWriter::Mode::Output, row.encoding);
        writer.WriteLine("x");
        writer.Close();
        EXPECT_EQ(Get(u"a.txt"_s), row.content);
    }
}

TEST_F(LineFiles, WriterEmptiesOrAppends)
{
    Put(u"a.txt"_s, "old\r\n");
    LineWriter append(Drive(u"a.txt"_s), LineWriter::Mode::Append);
    append.WriteLine("new");
    append.Close();
    EXPECT_EQ(Get(u"a.txt"_s), "old\r\nnew\r\n");
    LineWriter output(Drive(u"a.txt"_s), LineWriter::Mode::Output);
    output.Close();
    EXPECT_EQ(Get(u"a.txt"_s), "");
    LineWriter created(Drive(u"b.txt"_s), LineWriter::Mode::Append);
    created.WriteLine("x");
    created.Close();
    EXPECT_EQ(Get(u"b.txt"_s), "x\r\n");
}

TEST_F(LineFiles, WriterWritesWhatWasNotClosed)
{
    {
        LineWriter writer(Drive(u"a.txt"_s), LineWriter::Mode::Output);
        writer.WriteLine("one");
    }
    EXPECT_EQ(Get(u"a.txt"_s), "one\r\n");
}

TEST_F(LineFiles, WriterNamesWhatIsWrong)
{
    QDir().mkpath(Host(u"folder"_s));
    Put(u"a.txt"_s, "old");
    const auto open = [](const QString &path) {
        return Raised([&] { const LineWriter writer(path, LineWriter::Mode::Output); });
    };
    EXPECT_EQ(open(Drive(u"folder"_s)), RuntimeError::BadFileName);
    EXPECT_EQ(open(Drive(u"none/a.txt"_s)), RuntimeError::PathNotFound);
    EXPECT_EQ(open(u"C:\\a.txt"_s), RuntimeError::PathNotFound);
    files::MarkReadOnly(Host(u"a.txt"_s));
    EXPECT_EQ(open(Drive(u"a.txt"_s)), RuntimeError::PermissionDenied);
    EXPECT_EQ(Get(u"a.txt"_s), "old");
}

TEST_F(LineFiles, WriterNoticesAFullDiskWhenClosed)
{
    if (!QFileInfo(u"/dev/full"_s).isWritable())
        GTEST_SKIP() << "no full device";
    LineWriter writer(u"Z:\\dev\\full"_s, LineWriter::Mode::Output);
    writer.WriteLine("short");
    EXPECT_EQ(Raised([&] { writer.Close(); }), RuntimeError::DiskFull);
}

TEST_F(LineFiles, WriterNoticesAFullDiskWhileWriting)
{
    const FullDisk full(100);
    LineWriter writer(Drive(u"a.txt"_s), LineWriter::Mode::Output);
    EXPECT_EQ(Raised([&] {
                  for (int i = 0; i < 100000; ++i)
                      writer.WriteLine("a line of some length");
              }),
              RuntimeError::DiskFull);
}

TEST_F(LineFiles, WriterFailsWhereATestAsksForIt)
{
    LineWriter writer(Drive(u"a.txt"_s), LineWriter::Mode::Output);
    faults::FailNext(u"write"_s, RuntimeError::DiskFull);
    EXPECT_EQ(Raised([&] { writer.WriteLine("x"); }), RuntimeError::DiskFull);
    writer.WriteLine("y");
    writer.Close();
    EXPECT_EQ(Get(u"a.txt"_s), "y\r\n");
}

TEST_F(LineFiles, ReaderKnowsTheThreeLineEnds)
{
    struct {
        QByteArray content;
        QList<QByteArray> lines;
    } const table[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\n", {"a"}},
        {"a\nb\rc\r\nd", {"a", "b", "c", "d"}},
        {"\n\r\r\n\n", {"", "", "", ""}},
        {"a\r", {"a"}},
        {QByteArray("a\0b\nc", 5), {QByteArray("a\0b", 3), "c"}},
        {"\x83\x5C\n\x81\r\n", {"\x83\x5C", "\x81"}},
        {"\xEF\xBB\xBF", {}},
        {"\xEF\xBB\xBF\n", {""}},
        {"\xEF\xBB", {"\xEF\xBB"}},
    };
    for (const auto &row : table)
        EXPECT_EQ(RawLines(row.content), row.lines) << row.content.toHex().toStdString();
}

TEST_F(LineFiles, ReaderFindsLineEndsAcrossItsBuffer)
{
    for (const qsizetype length : {65534, 65535, 65536, 65537, 131071, 131072, 400000}) {
        const QByteArray line(length, 'x');
        for (const QByteArray &end : {QByteArray("\r\n"), QByteArray("\r"), QByteArray("\n")})
            EXPECT_EQ(RawLines(line + end + "next" + end), (QList<QByteArray>{line, "next"})) << length;
    }
}

TEST_F(LineFiles, ReaderTakesAVeryLongLine)
{
    // Many buffers long; read again from its beginning at each of them it would take minutes.
    constexpr qsizetype length = qsizetype{64} << 20;
    const QByteArray line(length, 'x');
    Put(u"a.txt"_s, line + "\r\n\x8C\xA9\n");
    LineReader reader(Drive(u"a.txt"_s));
    EXPECT_EQ(reader.ReadLine().size(), length);
    EXPECT_EQ(reader.ReadLine(), u"見"_s);
    EXPECT_TRUE(reader.AtEnd());
}

TEST_F(LineFiles, ReaderHonoursByteOrderMarks)
{
    const QStringList expected{u"見出し é"_s, u"次\u0A0D\u0D0A"_s};
    const QString text = expected.join(u"\r\n"_s);
    QByteArray little;
    QByteArray big;
    for (const QChar c : text) {
        little.append(static_cast<char>(c.unicode() & 0xFF)).append(static_cast<char>(c.unicode() >> 8));
        big.append(static_cast<char>(c.unicode() >> 8)).append(static_cast<char>(c.unicode() & 0xFF));
    }
    struct {
        QByteArray content;
        Encoding encoding;
    } const table[] = {{"\xEF\xBB\xBF" + text.toUtf8(), Encoding::Utf8},
                       {"\xFF\xFE" + little, Encoding::Utf16LittleEndian},
                       {"\xFE\xFF" + big, Encoding::Utf16BigEndian}};
    for (const auto &row : table) {
        EXPECT_EQ(Lines(row.content), expected);
        EXPECT_EQ(LineReader(Drive(u"a.txt"_s)).FileEncoding(), row.encoding);
    }
}

TEST_F(LineFiles, ReaderKeepsALaterMarkAndSurvivesHalfACodeUnit)
{
    EXPECT_EQ(Lines("\xEF\xBB\xBF"
                    "a\n\xEF\xBB\xBF"
                    "b"),
              (QStringList{u"a"_s, u"\uFEFFb"_s}));
    EXPECT_EQ(Lines(QByteArray("\xFF\xFE"
                               "a\0\r\0\n\0b",
                               9))
                  .size(),
              2);
    EXPECT_EQ(RawLines(QByteArray("\xFF\xFE"
                                  "a\0\r\0\n",
                                  7))
                  .size(),
              2);
}

TEST_F(LineFiles, ReaderKeepsTheBytesOfTheLineReadLast)
{
    const QByteArray wide(70'000, 'y');
    Put(u"a.txt"_s, "\xFD one\r\n" + wide + "\r\nlast");
    LineReader reader(Drive(u"a.txt"_s));
    EXPECT_EQ(reader.ReadLine(), u"\u30FB one"_s);
    EXPECT_EQ(reader.RawLine(), "\xFD one");
    reader.SkipLine();
    EXPECT_EQ(reader.RawLine(), wide);
    EXPECT_FALSE(reader.AtEnd());
    reader.SkipLine();
    EXPECT_EQ(reader.RawLine(), "last");
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_EQ(Raised([&] { reader.SkipLine(); }), RuntimeError::InputPastEnd);
}

TEST_F(LineFiles, RawLinesAreTrimmedAsTheirText)
{
    const struct {
        QByteArray bytes;
        QByteArray trimmed;
    } table[] = {
        {"", ""},
        {"a", "a"},
        {"  a b ", "a b"},
        {"   ", ""},
        {"\x81\x40 \x81\x40", ""},
        {" \x81\x40\xFD\x81\x40 ", "\xFD"},
        {"\x83\x81\x40", "\x83\x81\x40"},             // the last byte is a commercial at
        {"\x83\x81\x81\x40", "\x83\x81"},             // and here a blank's
        {" \x81", "\x81"},                            // a lead byte alone
        {QByteArray(" \0 ", 3), QByteArray("\0", 1)}, // NUL is no blank
    };
    for (const auto &row : table)
        EXPECT_EQ(files::TrimmedRaw(row.bytes, text::Decode(row.bytes), Encoding::ShiftJis), row.trimmed)
            << row.bytes.toHex().toStdString();
    const QByteArray utf8 = u"\u3000 é\u3000 "_s.toUtf8();
    EXPECT_EQ(files::TrimmedRaw(utf8, QString::fromUtf8(utf8), Encoding::Utf8), u"é"_s.toUtf8());
    const QString wide = u"\u3000 é "_s;
    const QByteArray utf16(reinterpret_cast<const char *>(wide.utf16()), 2 * wide.size());
    EXPECT_EQ(files::TrimmedRaw(utf16, wide, Encoding::Utf16LittleEndian), utf16.sliced(4, 2));
    EXPECT_EQ(files::TrimmedRaw(utf16 + 'x', wide, Encoding::Utf16LittleEndian), utf16.sliced(4) + 'x');
}

TEST_F(LineFiles, ReaderDecodesShiftJis)
{
    EXPECT_EQ(Lines("\x8C\xA9\x8F\x6F\x82\xB5\r\n\xB1"), (QStringList{u"見出し"_s, u"ｱ"_s}));
    EXPECT_EQ(LineReader(Drive(u"a.txt"_s)).FileEncoding(), Encoding::ShiftJis);
}

TEST_F(LineFiles, ReaderNamesWhatIsWrong)
{
    QDir().mkpath(Host(u"folder"_s));
    const auto open = [](const QString &path) { return Raised([&] { LineReader reader(path); }); };
    EXPECT_EQ(open(Drive(u"none.txt"_s)), RuntimeError::FileNotFound);
    EXPECT_EQ(open(Drive(u"none/a.txt"_s)), RuntimeError::PathNotFound);
    EXPECT_EQ(open(Drive(u"folder"_s)), RuntimeError::BadFileName);
    Put(u"a.txt"_s, "x");
    LineReader reader(Drive(u"a.txt"_s));
    faults::FailNext(u"read"_s, RuntimeError::DeviceIoError);
    EXPECT_EQ(Raised([&] { reader.ReadLine(); }), RuntimeError::DeviceIoError);
    EXPECT_EQ(reader.ReadLine(), u"x"_s);
    EXPECT_EQ(Raised([&] { reader.ReadLine(); }), RuntimeError::InputPastEnd);
}

TEST_F(LineFiles, SettingsLinesGiveReferencesBack)
{
    Put(u"a.txt"_s, "caf&#xE9;\r\n\x8E\xAB\x8F\x91\r\nR&#x26;D\r\n");
    EXPECT_EQ(files::ReadSettingsLines(Drive(u"a.txt"_s)), (QStringList{u"café"_s, u"辞書"_s, u"R&D"_s}));
    Put(u"a.txt"_s, "");
    EXPECT_TRUE(files::ReadSettingsLines(Drive(u"a.txt"_s)).isEmpty());
    EXPECT_EQ(Raised([&] { files::ReadSettingsLines(Drive(u"none.txt"_s)); }), RuntimeError::FileNotFound);
}

} // namespace
