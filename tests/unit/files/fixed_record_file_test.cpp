#include "platform/files/fixed_record_file.h"
#include "unit/files/full_disk.h"
#include "unit/files/temp_home.h"

#include <limits>
#include <sys/stat.h>

namespace
{

using namespace Qt::StringLiterals;
using files::FixedRecordFile;

class FixedRecords : public TempHome
{
};

TEST(RecordCount, IsRoundedToTheNearestWhole)
{
    struct {
        qint64 length;
        qsizetype record;
        qint64 count;
    } const table[] = {{0, 309, 0},   {1, 309, 0},   {154, 309, 0},  {155, 309, 1}, {309, 309, 1},
                       {463, 309, 1}, {464, 309, 2}, {22, 44, 1},    {21, 44, 0},   {396, 44, 9},
                       {5, 1, 5},     {306, 306, 1}, {1040, 520, 2}, {1300, 520, 3}};
    for (const auto &row : table)
        EXPECT_EQ(files::RecordCount(row.length, row.record), row.count) << row.length << " / " << row.record;
    const qint64 huge = std::numeric_limits<qint64>::max();
    EXPECT_EQ(files::RecordCount(huge, 1), huge);
    EXPECT_EQ(files::RecordCount(huge, 2), huge / 2 + 1);
}

TEST_F(FixedRecords, CreatesAnEmptyFile)
{
    FixedRecordFile file(Drive(u"a.dat"_s), 4);
    EXPECT_EQ(file.Count(), 0);
    file.Close();
    EXPECT_EQ(Get(u"a.dat"_s), "");
}

TEST_F(FixedRecords, WritesAndReadsInAnyOrder)
{
    FixedRecordFile file(Drive(u"a.dat"_s), 4);
    file.Write(1, "aaaa");
    file.Write(2, "bbbb");
    EXPECT_EQ(file.Read(1), "aaaa");
    file.Write(4, "dddd");
    EXPECT_EQ(file.Read(3), QByteArray(4, '\0'));
    file.Write(1, "AAAA");
    EXPECT_EQ(file.Read(2), "bbbb");
    EXPECT_EQ(file.Read(4), "dddd");
    EXPECT_EQ(file.Read(1), "AAAA");
    EXPECT_EQ(file.Count(), 4);
    file.Close();
    EXPECT_EQ(Get(u"a.dat"_s), QByteArray("AAAAbbbb\0\0\0\0dddd", 16));
}

TEST_F(FixedRecords, ReadsNulBehindTheEnd)
{
    Put(u"a.dat"_s, "aaaabb");
    FixedRecordFile file(Drive(u"a.dat"_s), 4);
    EXPECT_EQ(file.Count(), 2);
    EXPECT_EQ(file.Read(2), QByteArray("bb\0\0", 4));
    EXPECT_EQ(file.Read(3), QByteArray(4, '\0'));
    EXPECT_EQ(file.Read(1000000), QByteArray(4, '\0'));
    EXPECT_EQ(file.Read(1), "aaaa");
    file.Close();
    EXPECT_EQ(Get(u"a.dat"_s), "aaaabb");
}

TEST_F(FixedRecords, RefusesImpossibleCalls)
{
    FixedRecordFile file(Drive(u"a.dat"_s), 4);
    for (const qint64 position :
         {qint64{0}, qint64{-1}, std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()}) {
        EXPECT_EQ(Raised([&] { file.Read(position); }), RuntimeError::InvalidCall);
        EXPECT_EQ(Raised([&] { file.Write(position, "aaaa"); }), RuntimeError::InvalidCall);
    }
    EXPECT_EQ(Raised([&] { file.Write(1, "aaa"); }), RuntimeError::InvalidCall);
    EXPECT_EQ(Raised([&] { file.Write(1, "aaaaa"); }), RuntimeError::InvalidCall);
    EXPECT_EQ(Raised([&] { FixedRecordFile(Drive(u"a.dat"_s), 0); }), RuntimeError::InvalidCall);
    EXPECT_EQ(file.Count(), 0);
}

TEST_F(FixedRecords, OpeningNamesWhatIsWrong)
{
    QDir().mkpath(Host(u"folder"_s));
    EXPECT_EQ(Raised([&] { FixedRecordFile(Drive(u"folder"_s), 4); }), RuntimeError::BadFileName);
    EXPECT_EQ(Raised([&] { FixedRecordFile(Drive(u"none/a.dat"_s), 4); }), RuntimeError::PathNotFound);
    EXPECT_EQ(Raised([&] { FixedRecordFile(u"C:\\a.dat"_s, 4); }), RuntimeError::PathNotFound);
    files::MarkReadOnly(Host(u"folder"_s));
    EXPECT_EQ(Raised([&] { FixedRecordFile(Drive(u"folder/a.dat"_s), 4); }), RuntimeError::PermissionDenied);
    EXPECT_TRUE(Names(u"folder"_s).isEmpty());
}

TEST_F(FixedRecords, AReadOnlyFileIsReadAndNotWritten)
{
    Put(u"a.dat"_s, "aaaabbbb");
    ASSERT_EQ(::chmod(qPrintable(Host(u"a.dat"_s)), 0444), 0);
    FixedRecordFile file(Drive(u"a.dat"_s), 4);
    EXPECT_EQ(file.Read(2), "bbbb");
    EXPECT_EQ(Raised([&] { file.Write(1, "cccc"); }), RuntimeError::PermissionDenied);
    file.Close();
    EXPECT_EQ(Get(u"a.dat"_s), "aaaabbbb");
}

TEST_F(FixedRecords, NoticesAFullDiskAtTheLatestWhenClosed)
{
    const FullDisk full(64);
    FixedRecordFile file(Drive(u"a.dat"_s), 50);
    const qint32 number = Raised([&] {
        for (int position = 1; position < 1000; ++position)
            file.Write(position, QByteArray(50, 'x'));
        file.Close();
    });
    EXPECT_EQ(number, RuntimeError::DiskFull);
}

TEST_F(FixedRecords, FailWhereATestAsksForIt)
{
    Put(u"a.dat"_s, "aaaa");
    FixedRecordFile file(Drive(u"a.dat"_s), 4);
    faults::FailNext(u"write"_s, RuntimeError::DiskFull);
    EXPECT_EQ(Raised([&] { file.Write(1, "bbbb"); }), RuntimeError::DiskFull);
    faults::FailNext(u"read"_s, RuntimeError::DeviceIoError);
    EXPECT_EQ(Raised([&] { file.Read(1); }), RuntimeError::DeviceIoError);
    EXPECT_EQ(file.Read(1), "aaaa");
}

} // namespace
