#include "platform/files/application_folder.h"
#include "unit/files/temp_home.h"

#include <QDateTime>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Qt::StringLiterals;

class ApplicationFolderTest : public TempHome
{
protected:
    ApplicationFolderTest()
    {
        Put(u"share/appfolder/Help.HLP"_s, "help 1");
        Put(u"share/appfolder/favorite.dat"_s, "favourites");
        Put(u"share/appfolder/msagent/Chars/Owl.acs"_s, "owl 1");
        Put(u"share/sample/sample.mdb"_s, "rows");
        Put(u"share/sample/name.txt"_s, u"英和サンプル\n"_s.toUtf8());
        for (const QString &name : {u"Help.HLP"_s, u"favorite.dat"_s, u"msagent/Chars/Owl.acs"_s})
            SetTime(u"share/appfolder/"_s + name, 1000);
    }

    void Fill(bool withSample = true)
    {
        files::FillApplicationFolder(Host(u"home/app"_s), {Host(u"share"_s), withSample});
    }
    void SetTime(const QString &name, qint64 seconds)
    {
        QFile file(Host(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(
            file.setFileTime(QDateTime::fromSecsSinceEpoch(seconds), QFileDevice::FileModificationTime));
    }
    void Install(const QString &name, const QByteArray &content, qint64 seconds)
    {
        Put(u"share/appfolder/"_s + name, content);
        SetTime(u"share/appfolder/"_s + name, seconds);
    }
    QByteArray App(const QString &name) const { return Get(u"home/app/"_s + name); }
};

TEST_F(ApplicationFolderTest, IsADrivePathWithoutABackslashAtItsEnd)
{
    files::SetApplicationFolder(Host(u"home/app/"_s));
    EXPECT_EQ(files::ApplicationFolder(), Drive(u"home/app"_s));
    files::SetApplicationFolder(u"/"_s);
    EXPECT_EQ(files::ApplicationFolder(), u"Z:"_s);
    EXPECT_EQ(Raised([] { files::SetApplicationFolder(u"/home/a\\b"_s); }), RuntimeError::BadFileName);
}

TEST_F(ApplicationFolderTest, IsThePortableProgramsOwn)
{
    qputenv("XDG_DATA_HOME", Host(u"data"_s).toUtf8());
    EXPECT_EQ(files::ChooseApplicationFolder(Host(u"bin"_s)), Host(u"data/Wordmere"_s));
    Put(u"bin/portable"_s, "");
    EXPECT_EQ(files::ChooseApplicationFolder(Host(u"bin"_s)), Host(u"bin"_s));
    qunsetenv("XDG_DATA_HOME");
}

TEST_F(ApplicationFolderTest, TheFirstFillBringsEverything)
{
    Fill();
    EXPECT_EQ(App(u"Help.HLP"_s), "help 1");
    EXPECT_EQ(App(u"favorite.dat"_s), "favourites");
    EXPECT_EQ(App(u"msagent/Chars/Owl.acs"_s), "owl 1");
    EXPECT_EQ(App(u"sample.mdb"_s), "rows");
    EXPECT_EQ(Names(u"home"_s), QStringList{u"app"_s});
    const QByteArray catalogue = App(u"lexicons.dat"_s);
    ASSERT_EQ(catalogue.size(), 309);
    EXPECT_EQ(catalogue.first(50),
              QByteArray("\x89\x70\x98\x61\x83\x54\x83\x93\x83\x76\x83\x8B").leftJustified(50, ' '));
    EXPECT_EQ(catalogue.sliced(50, 255).trimmed(), Drive(u"home/app/sample.mdb"_s).toUtf8());
    EXPECT_EQ(catalogue.last(4), QByteArray("\xFF\xFF\x00\x00", 4));
}

TEST_F(ApplicationFolderTest, AnEmptyFolderCountsAsNew)
{
    QDir().mkpath(Host(u"home/app"_s));
    Fill();
    EXPECT_EQ(App(u"Help.HLP"_s), "help 1");
    EXPECT_EQ(App(u"lexicons.dat"_s).size(), 309);
}

TEST_F(ApplicationFolderTest, TheSampleIsLeftOutWhereItIsNotWantedOrNotThere)
{
    Fill(false);
    EXPECT_EQ(App(u"sample.mdb"_s), "(none)");
    EXPECT_EQ(App(u"lexicons.dat"_s), "(none)");
    QDir(Host(u"share/sample"_s)).removeRecursively();
    Fill();
    EXPECT_EQ(App(u"lexicons.dat"_s), "(none)");
}

TEST_F(ApplicationFolderTest, ASampleInstalledLaterComesToAnEmptyCatalogueOnly)
{
    Fill(false);
    Put(u"home/app/lexicons.dat"_s, "");
    Fill();
    EXPECT_EQ(App(u"lexicons.dat"_s).size(), 309);

    QDir(Host(u"home"_s)).removeRecursively();
    Fill(false);
    Put(u"home/app/lexicons.dat"_s, QByteArray(309, ' '));
    Fill();
    EXPECT_EQ(App(u"lexicons.dat"_s), QByteArray(309, ' '));
    EXPECT_EQ(App(u"sample.mdb"_s), "(none)");
}

TEST_F(ApplicationFolderTest, LaterStartsRenewWhatIsTheProgramsOwnAndNewer)
{
    Fill();
    Install(u"Help.HLP"_s, "help 2", 2000);
    Install(u"msagent/Chars/Owl.acs"_s, "owl 2", 2000);
    Install(u"favorite.dat"_s, "other favourites", 2000);
    Fill();
    EXPECT_EQ(App(u"Help.HLP"_s), "help 2");
    EXPECT_EQ(App(u"msagent/Chars/Owl.acs"_s), "owl 2");
    EXPECT_EQ(App(u"favorite.dat"_s), "favourites");
    Install(u"Help.HLP"_s, "help 0", 500);
    Fill();
    EXPECT_EQ(App(u"Help.HLP"_s), "help 2");
}

TEST_F(ApplicationFolderTest, WhatTheUserDeletedStaysDeleted)
{
    Fill();
    for (const QString &name :
         {u"Help.HLP"_s, u"favorite.dat"_s, u"msagent/Chars/Owl.acs"_s, u"sample.mdb"_s, u"lexicons.dat"_s})
        ASSERT_TRUE(QFile::remove(Host(u"home/app/"_s + name)));
    Install(u"Help.HLP"_s, "help 2", 2000);
    Install(u"msagent/Chars/Owl.acs"_s, "owl 2", 2000);
    Fill();
    EXPECT_EQ(Names(u"home/app"_s), (QStringList{u".shipped"_s, u"msagent"_s}));
    EXPECT_TRUE(Names(u"home/app/msagent/Chars"_s).isEmpty());
}

TEST_F(ApplicationFolderTest, AFileNeverShippedBeforeIsBroughtOnce)
{
    Fill();
    Install(u"msagent/Chars/Cat.acs"_s, "cat", 2000);
    Fill();
    EXPECT_EQ(App(u"msagent/Chars/Cat.acs"_s), "cat");
    QFile::remove(Host(u"home/app/msagent/Chars/Cat.acs"_s));
    Fill();
    EXPECT_EQ(App(u"msagent/Chars/Cat.acs"_s), "(none)");
}

TEST_F(ApplicationFolderTest, AUsersFileOfTheSameNameIsKept)
{
    Put(u"home/app/favorite.dat"_s, "mine");
    Fill();
    EXPECT_EQ(App(u"favorite.dat"_s), "mine");
    EXPECT_EQ(App(u"Help.HLP"_s), "help 1");
}

TEST_F(ApplicationFolderTest, AFilledFolderThatCannotBeWrittenIsLeftAlone)
{
    Fill();
    Install(u"Help.HLP"_s, "help 2", 2000);
    files::MarkReadOnly(Host(u"home/app"_s));
    Fill();
    EXPECT_EQ(App(u"Help.HLP"_s), "help 1");
}

TEST_F(ApplicationFolderTest, RaisesWhereNothingCanBeMade)
{
    QDir().mkpath(Host(u"home"_s));
    files::MarkReadOnly(Host(u"home"_s));
    EXPECT_EQ(Raised([&] { Fill(); }), RuntimeError::PermissionDenied);
    files::ClearReadOnlyMarks();
    EXPECT_TRUE(Names(u"home"_s).isEmpty());
    Put(u"home/app"_s, "a file");
    EXPECT_EQ(Raised([&] { Fill(); }), RuntimeError::PathNotFound);
    EXPECT_EQ(Get(u"home/app"_s), "a file");
}

TEST_F(ApplicationFolderTest, ProcessesThatFillAtOnceAgree)
{
    constexpr int kProcesses = 8;
    for (int i = 0; i < kProcesses; ++i) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0)
            ::_exit(Raised([&] { Fill(); }) == 0 ? 0 : 1);
    }
    for (int i = 0; i < kProcesses; ++i) {
        int status = 1;
        ::wait(&status);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(Names(u"home"_s), QStringList{u"app"_s});
    EXPECT_EQ(App(u"Help.HLP"_s), "help 1");
    EXPECT_EQ(App(u"lexicons.dat"_s).size(), 309);
}

TEST_F(ApplicationFolderTest, TheTemporaryFolderIsTheUsersAlone)
{
    qputenv("TMPDIR", Host(u"tmp"_s).toUtf8());
    QDir().mkpath(Host(u"tmp"_s));
    const QString name = u"tmp/wordmere-%1"_s.arg(::getuid());
    EXPECT_EQ(files::TempFolder(), Drive(name) + u'\\');
    struct stat state {
    };
    ASSERT_EQ(::stat(qPrintable(Host(name)), &state), 0);
    EXPECT_EQ(state.st_mode & 0777, 0700U);

    ASSERT_EQ(::chmod(qPrintable(Host(name)), 0777), 0);
    files::TempFolder();
    ASSERT_EQ(::stat(qPrintable(Host(name)), &state), 0);
    EXPECT_EQ(state.st_mode & 0777, 0700U);

    ASSERT_TRUE(QDir().rmdir(Host(name)));
    QDir().mkpath(Host(u"elsewhere"_s));
    ASSERT_TRUE(QFile::link(Host(u"elsewhere"_s), Host(name)));
    EXPECT_EQ(Raised([] { files::TempFolder(); }), RuntimeError::PermissionDenied);
    qunsetenv("TMPDIR");
}

} // namespace
