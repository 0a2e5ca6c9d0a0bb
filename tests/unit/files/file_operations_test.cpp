#include "unit/files/full_disk.h"
#include "unit/files/temp_home.h"

#include <sys/stat.h>

namespace
{

using namespace Qt::StringLiterals;

const QString kLacked = u"C:\\dic\\a.mdb"_s;
const QString kDevice = u"Z:\\dev\\full"_s;

class FileOperations : public TempHome
{
};

/// Whether the system has a second file system that tests may write to.
bool HasSharedMemoryFolder() { return QFileInfo(u"/dev/shm"_s).isWritable(); }

TEST_F(FileOperations, ExistsMeansAFileAndNeverRaises)
{
    Put(u"a.mdb"_s, "x");
    QDir().mkpath(Host(u"folder"_s));
    EXPECT_TRUE(files::Exists(Drive(u"a.mdb"_s)));
    for (const QString &path : {Drive(u"b.mdb"_s), Drive(u"folder"_s), Drive(u"none/a.mdb"_s), kLacked,
                                QString(), u"Z:\\"_s, u"a.mdb"_s, Drive(u"a.mdb"_s) + QChar(QChar::Null)})
        EXPECT_FALSE(files::Exists(path)) << path.toStdString();
}

TEST_F(FileOperations, KnowsOneFileByItsNames)
{
    Put(u"a.dat"_s, "x");
    Put(u"b.dat"_s, "x");
    ASSERT_TRUE(QFile::link(Host(u"a.dat"_s), Host(u"link.dat"_s)));
    EXPECT_TRUE(files::IsSameFile(Drive(u"a.dat"_s), Drive(u"a.dat"_s)));
    EXPECT_TRUE(files::IsSameFile(Drive(u"link.dat"_s), Drive(u"a.dat"_s)));
    EXPECT_FALSE(files::IsSameFile(Drive(u"a.dat"_s), Drive(u"b.dat"_s)));
    for (const QString &path : {Drive(u"none"_s), kLacked, QString()})
        EXPECT_FALSE(files::IsSameFile(path, path)) << path.toStdString();
}

TEST_F(FileOperations, TellsLengthAndTime)
{
    Put(u"a.dat"_s, "12345");
    EXPECT_EQ(files::Length(Drive(u"a.dat"_s)), 5);
    EXPECT_LT(qAbs(files::Modified(Drive(u"a.dat"_s)).secsTo(QDateTime::currentDateTime())), 60);
}

struct Failure {
    QString name;
    qint32 number;
};

TEST_F(FileOperations, RaiseTheNumberOfWhatIsMissing)
{
    QDir().mkpath(Host(u"folder"_s));
    Put(u"file"_s, "x");
    const Failure failures[] = {{Drive(u"none.dat"_s), RuntimeError::FileNotFound},
                                {Drive(u"none/a.dat"_s), RuntimeError::PathNotFound},
                                {kLacked, RuntimeError::PathNotFound},
                                {u"a.dat"_s, RuntimeError::PathNotFound}};
    for (const Failure &failure : failures) {
        SCOPED_TRACE(failure.name.toStdString());
        EXPECT_EQ(Raised([&] { files::Length(failure.name); }), failure.number);
        EXPECT_EQ(Raised([&] { files::Modified(failure.name); }), failure.number);
        EXPECT_EQ(Raised([&] { files::Delete(failure.name); }), failure.number);
        EXPECT_EQ(Raised([&] { files::ReadAll(failure.name); }), failure.number);
        EXPECT_EQ(Raised([&] { files::Copy(failure.name, Drive(u"to"_s)); }), failure.number);
        EXPECT_EQ(Raised([&] { files::Rename(failure.name, Drive(u"to"_s)); }), failure.number);
        EXPECT_EQ(Raised([&] { files::ReplaceByFile(Drive(u"to"_s), failure.name); }), failure.number);
        EXPECT_EQ(Raised([&] { files::DeleteIfThere(failure.name); }), 0);
    }
    for (const QString &target : {Drive(u"none/a.dat"_s), kLacked}) {
        EXPECT_EQ(Raised([&] { files::Replace(target, "x"); }), RuntimeError::PathNotFound);
        EXPECT_EQ(Raised([&] { files::Copy(Drive(u"file"_s), target); }), RuntimeError::PathNotFound);
        EXPECT_EQ(Raised([&] { files::Rename(Drive(u"file"_s), target); }), RuntimeError::PathNotFound);
        EXPECT_EQ(Raised([&] { files::ReplaceByFile(target, Drive(u"file"_s)); }),
                  RuntimeError::PathNotFound);
    }
    EXPECT_EQ(Get(u"file"_s), "x");
}

TEST_F(FileOperations, RefuseFoldersAndImpossibleNames)
{
    QDir().mkpath(Host(u"folder"_s));
    Put(u"file"_s, "x");
    const QString folder = Drive(u"folder"_s);
    EXPECT_EQ(Raised([&] { files::ReadAll(folder); }), RuntimeError::BadFileName);
    EXPECT_EQ(Raised([&] { files::Replace(folder, "x"); }), RuntimeError::BadFileName);
    EXPECT_EQ(Raised([&] { files::Delete(folder); }), RuntimeError::FileNotFound);
    EXPECT_EQ(Raised([&] { files::Copy(Drive(u"file"_s), folder); }), RuntimeError::FileExists);
    EXPECT_EQ(Raised([&] { files::ReplaceByFile(folder, Drive(u"file"_s)); }), RuntimeError::BadFileName);
    const QString longName = Drive(QString(300, u'a'));
    EXPECT_EQ(Raised([&] { files::Replace(longName, "x"); }), RuntimeError::BadFileName);
    const QString withNul = Drive(u"a\0b"_s);
    EXPECT_EQ(Raised([&] { files::Replace(withNul, "x"); }), RuntimeError::BadFileName);
    EXPECT_EQ(Raised([&] { files::ReadAll(withNul); }), RuntimeError::BadFileName);
    EXPECT_EQ(Raised([&] { files::Replace(Drive(u"file"_s) + u"\\below"_s, "x"); }),
              RuntimeError::PathNotFound);
    EXPECT_EQ(Names(), (QStringList{u"file"_s, u"folder"_s}));
}

TEST_F(FileOperations, DeleteTakesTheFileAway)
{
    Put(u"a"_s, "x");
    files::Delete(Drive(u"a"_s));
    Put(u"b"_s, "x");
    files::DeleteIfThere(Drive(u"b"_s));
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(FileOperations, CopyGivesTheSameBytesTimeAndPermissions)
{
    const QByteArray content = QByteArray(3 << 20, '\x81') + "end";
    Put(u"a"_s, content);
    QFile(Host(u"a"_s)).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    QFile source(Host(u"a"_s));
    ASSERT_TRUE(source.open(QIODevice::ReadWrite));
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1000000000);
    ASSERT_TRUE(source.setFileTime(time, QFileDevice::FileModificationTime));
    source.close();
    files::Copy(Drive(u"a"_s), Drive(u"b"_s));
    EXPECT_EQ(Get(u"b"_s), content);
    EXPECT_EQ(files::Modified(Drive(u"b"_s)), time);
    EXPECT_EQ(QFile(Host(u"b"_s)).permissions(), QFile(Host(u"a"_s)).permissions());
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(FileOperations, CopyAndRenameRefuseATargetThatExists)
{
    Put(u"a"_s, "new");
    Put(u"b"_s, "old");
    EXPECT_EQ(Raised([&] { files::Copy(Drive(u"a"_s), Drive(u"b"_s)); }), RuntimeError::FileExists);
    EXPECT_EQ(Raised([&] { files::Rename(Drive(u"a"_s), Drive(u"b"_s)); }), RuntimeError::FileExists);
    EXPECT_EQ(Get(u"a"_s), "new");
    EXPECT_EQ(Get(u"b"_s), "old");
    EXPECT_EQ(Names().size(), 2);
}

TEST_F(FileOperations, RenameMovesTheFile)
{
    Put(u"a"_s, "x");
    QDir().mkpath(Host(u"folder"_s));
    files::Rename(Drive(u"a"_s), Drive(u"folder/b"_s));
    EXPECT_EQ(Get(u"folder/b"_s), "x");
    EXPECT_EQ(Names(), QStringList{u"folder"_s});
}

TEST_F(FileOperations, ReplaceWritesANewFileAndAnOldOne)
{
    files::Replace(Drive(u"a"_s), "first");
    EXPECT_EQ(Get(u"a"_s), "first");
    QFile(Host(u"a"_s)).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    const QFile::Permissions permissions = QFile(Host(u"a"_s)).permissions();
    files::Replace(Drive(u"a"_s), "second");
    EXPECT_EQ(Get(u"a"_s), "second");
    EXPECT_EQ(QFile(Host(u"a"_s)).permissions(), permissions);
    files::Replace(Drive(u"a"_s), {});
    EXPECT_EQ(Get(u"a"_s), "");
    EXPECT_EQ(Names(), QStringList{u"a"_s});
}

TEST_F(FileOperations, ReplaceKeepsASymbolicLink)
{
    Put(u"real/a"_s, "old");
    ASSERT_TRUE(QFile::link(Host(u"real/a"_s), Host(u"a"_s)));
    files::Replace(Drive(u"a"_s), "new");
    EXPECT_TRUE(QFileInfo(Host(u"a"_s)).isSymLink());
    EXPECT_EQ(Get(u"real/a"_s), "new");
}

TEST_F(FileOperations, ReplaceByFileTakesTheTargetsPlace)
{
    Put(u"temp"_s, "new");
    Put(u"a"_s, "old");
    files::ReplaceByFile(Drive(u"a"_s), Drive(u"temp"_s));
    EXPECT_EQ(Get(u"a"_s), "new");
    Put(u"temp"_s, "more");
    files::ReplaceByFile(Drive(u"b"_s), Drive(u"temp"_s));
    EXPECT_EQ(Get(u"b"_s), "more");
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(FileOperations, ReplaceByFileKeepsASymbolicLinkAndPermissions)
{
    Put(u"real/a"_s, "old");
    const QFile::Permissions own = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    ASSERT_TRUE(QFile::setPermissions(Host(u"real/a"_s), own));
    ASSERT_TRUE(QFile::link(Host(u"real/a"_s), Host(u"a"_s)));
    Put(u"temp"_s, "new");
    files::ReplaceByFile(Drive(u"a"_s), Drive(u"temp"_s));
    EXPECT_TRUE(QFileInfo(Host(u"a"_s)).isSymLink());
    EXPECT_EQ(Get(u"real/a"_s), "new");
    EXPECT_EQ(QFile::permissions(Host(u"real/a"_s)), own);
    EXPECT_FALSE(files::Exists(Drive(u"temp"_s)));
}

TEST_F(FileOperations, WhatTheLastLookRaisesLeavesTheOldFile)
{
    Put(u"temp"_s, "new");
    Put(u"a"_s, "old");
    int looks = 0;
    const auto replace = [&](qint32 number) {
        return Raised([&] {
            files::ReplaceByFile(Drive(u"a"_s), Drive(u"temp"_s), {}, [&] {
                ++looks;
                EXPECT_EQ(Get(u"a"_s), "old");
                if (number != 0)
                    throw RuntimeError(number);
            });
        });
    };
    EXPECT_EQ(replace(RuntimeError::InvalidCall), RuntimeError::InvalidCall);
    EXPECT_EQ(Get(u"a"_s), "old");
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"temp"_s}));
    EXPECT_EQ(replace(0), 0);
    EXPECT_EQ(Get(u"a"_s), "new");
    EXPECT_EQ(looks, 2);
}

TEST_F(FileOperations, CopyYieldsAndStopsWhenTheYieldRaises)
{
    Put(u"a"_s, QByteArray(3 << 20, 'x'));
    int yields = 0;
    files::Copy(Drive(u"a"_s), Drive(u"b"_s), [&yields] { ++yields; });
    EXPECT_EQ(yields, 3);
    EXPECT_EQ(Raised([&] {
                  files::Copy(Drive(u"a"_s), Drive(u"c"_s),
                              [] { throw RuntimeError(RuntimeError::InvalidCall); });
              }),
              RuntimeError::InvalidCall);
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(FileOperations, MovesFromAnotherFileSystem)
{
    if (!HasSharedMemoryFolder())
        GTEST_SKIP() << "one file system only";
    const QTemporaryDir other(u"/dev/shm/wordmere-test-XXXXXX"_s);
    const auto fill = [&](const QByteArray &content) {
        QFile file(other.filePath(u"temp"_s));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    const QString temp = files::DrivePath(other.filePath(u"temp"_s));
    const QByteArray content(5 << 20, 'w');

    ASSERT_TRUE(fill(content));
    Put(u"a"_s, "old");
    EXPECT_EQ(Raised([&] { files::Rename(temp, Drive(u"a"_s)); }), RuntimeError::FileExists);
    EXPECT_EQ(Get(u"a"_s), "old");
    files::ReplaceByFile(Drive(u"a"_s), temp);
    EXPECT_EQ(Get(u"a"_s), content);
    EXPECT_FALSE(files::Exists(temp));

    // It is looked once more behind the copying, which takes its time.
    ASSERT_TRUE(fill("newer"));
    int looks = 0;
    EXPECT_EQ(Raised([&] {
                  files::ReplaceByFile(Drive(u"a"_s), temp, {}, [&looks] {
                      if (++looks == 2)
                          throw RuntimeError(RuntimeError::InvalidCall);
                  });
              }),
              RuntimeError::InvalidCall);
    EXPECT_EQ(looks, 2);
    EXPECT_EQ(Get(u"a"_s), content);
    EXPECT_EQ(Names(), QStringList{u"a"_s});

    ASSERT_TRUE(fill("small"));
    files::Rename(temp, Drive(u"b"_s));
    EXPECT_EQ(Get(u"b"_s), "small");
    EXPECT_FALSE(files::Exists(temp));
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(FileOperations, KeepTheOldFileWhenTheDiskIsFull)
{
    Put(u"a"_s, "old");
    Put(u"big"_s, QByteArray(100000, 'x'));
    {
        const FullDisk full(4096);
        EXPECT_EQ(Raised([&] { files::Replace(Drive(u"a"_s), QByteArray(100000, 'y')); }),
                  RuntimeError::DiskFull);
        EXPECT_EQ(Raised([&] { files::Copy(Drive(u"big"_s), Drive(u"c"_s)); }), RuntimeError::DiskFull);
    }
    EXPECT_EQ(Get(u"a"_s), "old");
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"big"_s}));
}

TEST_F(FileOperations, ReadAllReadsEveryByte)
{
    const QByteArray content("a\0b\r\n\x81\x40", 7);
    Put(u"a"_s, content);
    EXPECT_EQ(files::ReadAll(Drive(u"a"_s)), content);
}

TEST_F(FileOperations, MatchingIgnoresCaseAndFolders)
{
    for (const QString &name : {u"b.ACS"_s, u"A.acs"_s, u"c.txt"_s, u"d.acs\\x.acs"_s})
        Put(name, "x");
    QDir().mkpath(Host(u"folder.acs"_s));
    EXPECT_EQ(files::Matching(Drive(u""_s), u"*.acs"_s), (QStringList{u"A.acs"_s, u"b.ACS"_s}));
    EXPECT_TRUE(files::Matching(Drive(u"none"_s), u"*.acs"_s).isEmpty());
    EXPECT_TRUE(files::Matching(u"C:\\WINDOWS"_s, u"*.acs"_s).isEmpty());
}

TEST_F(FileOperations, FreeBytesAnswersForTheFileSystemOfThePath)
{
    EXPECT_GT(files::FreeBytes(Drive(u"not/there/yet.mdb"_s)), 0);
    EXPECT_GE(files::TotalBytes(Drive(u""_s)), files::FreeBytes(Drive(u""_s)));
    EXPECT_EQ(Raised([] { files::FreeBytes(kLacked); }), RuntimeError::PathNotFound);
    files::SetFreeBytes(1234);
    EXPECT_EQ(files::FreeBytes(Drive(u"a"_s)), 1234);
    files::SetFreeBytes(-1);
    EXPECT_NE(files::FreeBytes(Drive(u"a"_s)), 1234);
}

/// What every change of a read-only file or folder raises; nothing may have changed afterwards.
void ExpectUnwritable(const QString &existing, const QString &free, const QString &source)
{
    constexpr qint32 kDenied = RuntimeError::PermissionDenied;
    EXPECT_EQ(Raised([&] { files::RequireWritable(existing); }), kDenied);
    EXPECT_FALSE(files::IsWritable(existing));
    EXPECT_EQ(Raised([&] { files::Replace(existing, "new"); }), kDenied);
    EXPECT_EQ(Raised([&] { files::Delete(existing); }), kDenied);
    EXPECT_EQ(Raised([&] { files::DeleteIfThere(existing); }), kDenied);
    EXPECT_EQ(Raised([&] { files::Rename(existing, free); }), kDenied);
    EXPECT_EQ(Raised([&] { files::ReplaceByFile(existing, source); }), kDenied);
    EXPECT_EQ(files::ReadAll(existing), "old");
    EXPECT_FALSE(files::Exists(free));
    EXPECT_TRUE(files::Exists(source));
}

TEST_F(FileOperations, HonourTheMarkOfAFile)
{
    Put(u"a"_s, "old");
    Put(u"ab"_s, "x");
    Put(u"source"_s, "new");
    files::MarkReadOnly(Host(u"a"_s));
    ExpectUnwritable(Drive(u"a"_s), Drive(u"free"_s), Drive(u"source"_s));
    EXPECT_TRUE(files::IsWritable(Drive(u"ab"_s))) << "a mark is no prefix of names";
    files::ClearReadOnlyMarks();
    EXPECT_TRUE(files::IsWritable(Drive(u"a"_s)));
}

TEST_F(FileOperations, HonourTheMarkOfAFolderAndAllBelow)
{
    Put(u"folder/deep/a"_s, "old");
    Put(u"source"_s, "new");
    files::MarkReadOnly(Host(u"folder/"_s));
    ExpectUnwritable(Drive(u"folder/deep/a"_s), Drive(u"free"_s), Drive(u"source"_s));
    const QString free = Drive(u"folder/free"_s);
    EXPECT_FALSE(files::IsWritable(free));
    EXPECT_EQ(Raised([&] { files::Replace(free, "x"); }), RuntimeError::PermissionDenied);
    EXPECT_EQ(Raised([&] { files::Copy(Drive(u"source"_s), free); }), RuntimeError::PermissionDenied);
    EXPECT_EQ(Raised([&] { files::Rename(Drive(u"source"_s), free); }), RuntimeError::PermissionDenied);
    EXPECT_EQ(Names(u"folder"_s), QStringList{u"deep"_s});
}

TEST_F(FileOperations, HonourPermissionBitsForEverybody)
{
    Put(u"a"_s, "old");
    Put(u"source"_s, "new");
    ASSERT_EQ(::chmod(qPrintable(Host(u"a"_s)), 0444), 0);
    ExpectUnwritable(Drive(u"a"_s), Drive(u"free"_s), Drive(u"source"_s));

    Put(u"folder/a"_s, "old");
    ASSERT_EQ(::chmod(qPrintable(Host(u"folder"_s)), 0555), 0);
    EXPECT_TRUE(files::IsWritable(Drive(u"folder/a"_s)));
    EXPECT_FALSE(files::IsWritable(Drive(u"folder/b"_s)));
    EXPECT_EQ(Raised([&] { files::Delete(Drive(u"folder/a"_s)); }), RuntimeError::PermissionDenied);
    EXPECT_EQ(Raised([&] { files::Replace(Drive(u"folder/a"_s), "x"); }), RuntimeError::PermissionDenied);
    EXPECT_EQ(Raised([&] { files::Copy(Drive(u"source"_s), Drive(u"folder/b"_s)); }),
              RuntimeError::PermissionDenied);
    ASSERT_EQ(::chmod(qPrintable(Host(u"folder"_s)), 0755), 0);
}

TEST_F(FileOperations, RequireWritableNamesWhatIsMissing)
{
    EXPECT_TRUE(files::IsWritable(Drive(u"new"_s)));
    EXPECT_EQ(Raised([&] { files::RequireWritable(Drive(u"none/new"_s)); }), RuntimeError::PathNotFound);
    EXPECT_EQ(Raised([&] { files::RequireWritable(kLacked); }), RuntimeError::PathNotFound);
    EXPECT_FALSE(files::IsWritable(kLacked));
}

struct Fault {
    const char *what;
    void (*call)(const QString &existing, const QString &free);
};

TEST_F(FileOperations, FailBeforeTheyTouchAnything)
{
    const Fault table[] = {
        {"delete", [](const QString &a, const QString &) { files::Delete(a); }},
        {"delete", [](const QString &a, const QString &) { files::DeleteIfThere(a); }},
        {"delete", [](const QString &a, const QString &) { files::Replace(a, "new"); }},
        {"rename", [](const QString &a, const QString &) { files::Replace(a, "new"); }},
        {"write", [](const QString &a, const QString &) { files::Replace(a, "new"); }},
        {"rename", [](const QString &, const QString &b) { files::Replace(b, "new"); }},
        {"rename", [](const QString &a, const QString &b) { files::Rename(a, b); }},
        {"delete", [](const QString &a, const QString &) { files::ReplaceByFile(a, a); }},
        {"rename", [](const QString &a, const QString &b) { files::ReplaceByFile(b, a); }},
        {"copy", [](const QString &a, const QString &b) { files::Copy(a, b); }},
        {"read", [](const QString &a, const QString &) { files::ReadAll(a); }},
    };
    Put(u"a"_s, "old");
    for (const Fault &fault : table) {
        SCOPED_TRACE(fault.what);
        faults::FailNext(QString::fromUtf8(fault.what), RuntimeError::DiskFull);
        EXPECT_EQ(Raised([&] { fault.call(Drive(u"a"_s), Drive(u"b"_s)); }), RuntimeError::DiskFull);
        EXPECT_EQ(Get(u"a"_s), "old");
        EXPECT_EQ(Names(), QStringList{u"a"_s});
        faults::Clear();
    }
}

TEST_F(FileOperations, ANewFileAsksForNoDeletion)
{
    faults::FailNext(u"delete"_s, RuntimeError::PermissionDenied);
    files::Replace(Drive(u"a"_s), "x");
    Put(u"temp"_s, "y");
    files::ReplaceByFile(Drive(u"b"_s), Drive(u"temp"_s));
    EXPECT_EQ(Get(u"a"_s), "x");
    EXPECT_EQ(Get(u"b"_s), "y");
}

} // namespace
