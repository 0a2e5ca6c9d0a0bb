#include "platform/files/line_file.h"
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
