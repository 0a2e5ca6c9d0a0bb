#include "platform/data/file_flush.h"
#include "platform/data/jro.h"
#include "platform/data/session.h"
#include "platform/data/structure_check.h"
#include "unit/data/dictionary_fixture.h"

#include <QFile>
#include <QFileInfo>
#include <chrono>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

class Compaction : public DictionaryTest
{
protected:
    QByteArray Bytes() const
    {
        QFile file(Host());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Overwrites a page in the middle of the file.
    void DamageAPage() const
    {
        constexpr qint64 pageSize = 16384;
        QFile file(Host());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.seek(3 * pageSize));
        EXPECT_EQ(file.write(QByteArray(pageSize, '\x5a')), pageSize);
    }
    /// A file of which most rows were deleted.
    void CreateSparse() const
    {
        QStringList words;
        for (int i = 0; i < 4000; ++i)
            words.append(u"headword number %1"_s.arg(i * 7 % 4001));
        CreateWith(words);
        RunRaw("DELETE FROM Dictionary WHERE AutoID % 10 <> 3");
        RunRaw("UPDATE Dictionary SET Example = 'example' WHERE AutoID = 13");
    }
};

TEST_F(Compaction, KeepsRowsNumbersAndTheCounter)
{
    CreateSparse();
    RunRaw("REINDEX");
    RunRaw("DROP INDEX WordID");
    const std::vector<Entry> rows = All();
    ASSERT_EQ(rows.size(), 400U);
    const QByteArray before = Bytes();
    Compact();
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(All(u"b.mdb"_s), rows);
    EXPECT_LT(QFileInfo(Host(u"b.mdb"_s)).size(), before.size());
    EXPECT_EQ(AskRaw("SELECT Example FROM Dictionary WHERE AutoID = 13", u"b.mdb"_s), "example");
    EXPECT_EQ(AskRaw("PRAGMA page_size", u"b.mdb"_s), "16384");
    EXPECT_EQ(OpenTable(u"b.mdb"_s)->Add(u"next"_s).autoID, 4001);
    EXPECT_EQ(Names(), (QStringList{u"a.mdb"_s, u"b.mdb"_s}));
}

TEST_F(Compaction, BuildsTheIndexThatTheSourceLacks)
{
    CreateWith({u"B"_s, u"a"_s, u"Ｃ"_s});
    RunRaw("DROP INDEX WordID");
    std::vector<bool> busy;
    ADODB::EngineHooks().busy = [&busy](bool begins) { busy.push_back(begins); };
    Compact();
    EXPECT_FALSE(busy.empty());
    EXPECT_EQ(All(u"b.mdb"_s), (std::vector<Entry>{{u"a"_s, 2}, {u"B"_s, 1}, {u"Ｃ"_s, 3}}));
}

TEST_F(Compaction, EmptyDictionary)
{
    CreateWith({u"a"_s});
    OpenTable()->rows.Delete();
    Compact();
    EXPECT_TRUE(All(u"b.mdb"_s).empty());
    EXPECT_EQ(OpenTable(u"b.mdb"_s)->Add(u"x"_s).autoID, 2);
}

TEST_F(Compaction, NothingStaysOfAFailure)
{
    QFile file(Host(u"text.mdb"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no dictionary");
    file.close();
    EXPECT_EQ(Raised([&] { Compact(u"text.mdb"_s); }), RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(Raised([&] { Compact(u"none.mdb"_s); }), RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(Names(), QStringList{u"text.mdb"_s});

    CreateWith({u"a"_s});
    faults::FailNext(u"CompactDatabase"_s, 61);
    try {
        Compact();
        ADD_FAILURE();
    } catch (const RuntimeError &error) {
        EXPECT_EQ(error.number(), 61);
        EXPECT_EQ(error.source(), u"JRO.JetEngine"_s);
    }
    files::MarkReadOnly(QFileInfo(Host()).path());
    EXPECT_EQ(Raised([&] { Compact(); }), RuntimeError::PermissionDenied);
    EXPECT_EQ(Names(), (QStringList{u"a.mdb"_s, u"text.mdb"_s}));
}

TEST_F(Compaction, ExistingTargetIsLeftAlone)
{
    CreateWith({u"a"_s});
    CreateWith({u"x"_s, u"y"_s}, u"b.mdb"_s);
    EXPECT_EQ(Raised([&] { Compact(); }), RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(All(u"b.mdb"_s).size(), 2U);
}

TEST_F(Compaction, DamagedSourceGivesNoCopy)
{
    CreateSparse();
    DamageAPage();
    const QByteArray before = Bytes();
    EXPECT_EQ(Raised([&] { Compact(); }), RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(Names(), QStringList{u"a.mdb"_s});
}

TEST_F(Compaction, WhatTheProgressHookRaisesEndsIt)
{
    Create();
    RunRaw("INSERT INTO Dictionary(Word) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
           "WHERE i < 300000) SELECT 'headword number ' || i FROM n");
    RunRaw("DROP INDEX WordID");
    files::MarkReadOnly(Host());
    int calls = 0;
    ADODB::EngineHooks().progress = [&calls] {
        ADODB::ReleaseReads();
        if (++calls == 2)
            throw RuntimeError(RuntimeError::InvalidCall);
    };
    const qint32 number = Raised([&] { Compact(); });
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(number, RuntimeError::InvalidCall);
    EXPECT_EQ(Names(), QStringList{u"a.mdb"_s});
}

TEST_F(Compaction, TellsWhenSourceOrCopyHaveChangedSince)
{
    const auto compactAnd = [&](const std::function<void()> &change) {
        for (const QString &name : Names())
            QFile::remove(Host(name));
        CreateWith({u"a"_s, u"b"_s});
        JRO::JetEngine engine;
        engine.CompactDatabase(u"Data Source="_s + Drive(), u"Data Source="_s + Drive(u"b.mdb"_s));
        change();
        return Raised([&] { engine.RequireUnchanged(); });
    };
    EXPECT_EQ(compactAnd([] {}), 0);
    EXPECT_EQ(compactAnd([&] { EXPECT_EQ(All().size(), 2U); }), 0);
    EXPECT_EQ(compactAnd([&] { OpenTable()->Add(u"c"_s); }), RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(compactAnd([&] { QFile::remove(Host()); }), RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(compactAnd([&] {
                  QFile::remove(Host());
                  CreateWith({u"a"_s, u"b"_s});
              }),
              RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(compactAnd([&] { OpenTable(u"b.mdb"_s)->Add(u"c"_s); }), RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(compactAnd([&] { QFile::remove(Host(u"b.mdb"_s)); }), RuntimeError::CannotOpenDatabase);
    for (const QString &ending : {u"-journal"_s, u"-wal"_s})
        EXPECT_EQ(compactAnd([&] {
                      QFile beside(Host() + ending);
                      EXPECT_TRUE(beside.open(QIODevice::WriteOnly));
                  }),
                  RuntimeError::CannotOpenDatabase)
            << ending.toStdString();
}

TEST_F(Compaction, AnInterruptedWriteToTheSourceIsTakenBackFirst)
{
    CreateWith({u"a"_s, u"b"_s});
    // A writer that dies within a transaction leaves a journal that takes its pages back.
    EXPECT_EQ(InChild([&] {
                  data::Session session(Host(), Drive(), data::Session::Access::Existing);
                  session.Run("PRAGMA cache_size = 1");
                  session.BeginWrite();
                  session.Run("UPDATE Dictionary SET Word = 'x'");
                  session.Run(
                      "INSERT INTO Dictionary(Word, Description) WITH RECURSIVE n(i) AS (SELECT 1 "
                      "UNION ALL SELECT i + 1 FROM n WHERE i < 5000) SELECT 'x' || i, 'y' || i FROM n");
                  return QFile::exists(Host() + u"-journal"_s) ? 0 : 1;
              }),
              0);
    Compact();
    EXPECT_EQ(All(u"b.mdb"_s), (std::vector<Entry>{{u"a"_s, 1}, {u"b"_s, 2}}));
}

// Another program's choice: writes go to a log beside the file.
TEST_F(Compaction, WhatStandsInALogIsTakenInFirst)
{
    CreateWith({u"a"_s, u"b"_s});
    RunRaw("PRAGMA journal_mode = WAL");
    const auto compactAndLook = [&](const std::vector<Entry> &expected) {
        QFile::remove(Host(u"b.mdb"_s));
        JRO::JetEngine engine;
        EXPECT_EQ(Raised([&] {
                      engine.CompactDatabase(u"Data Source="_s + Drive(),
                                             u"Data Source="_s + Drive(u"b.mdb"_s));
                      engine.RequireUnchanged();
                  }),
                  0);
        EXPECT_EQ(All(u"b.mdb"_s), expected);
        EXPECT_EQ(AskRaw("PRAGMA journal_mode"), "delete");
        EXPECT_EQ(Names(), (QStringList{u"a.mdb"_s, u"b.mdb"_s}));
    };
    compactAndLook({{u"a"_s, 1}, {u"b"_s, 2}});
    // A writer that ends without closing leaves its log.
    EXPECT_EQ(InChild([&] {
                  data::Session session(Host(), Drive(), data::Session::Access::Existing);
                  session.Run("PRAGMA journal_mode = WAL");
                  session.Run("INSERT INTO Dictionary(Word) VALUES('c')");
                  return QFile::exists(Host() + u"-wal"_s) ? 0 : 1;
              }),
              0);
    compactAndLook({{u"a"_s, 1}, {u"b"_s, 2}, {u"c"_s, 3}});
}

TEST_F(Compaction, ALogThatAnotherProgramKeepsIsTold)
{
    CreateWith({u"a"_s});
    OtherProcess other([&]() -> std::shared_ptr<void> {
        auto session = std::make_shared<data::Session>(Host(), Drive(), data::Session::Access::Existing);
        session->Run("PRAGMA journal_mode = WAL");
        session->Run("INSERT INTO Dictionary(Word) VALUES('b')");
        return session;
    });
    ASSERT_TRUE(other.Begin());
    EXPECT_EQ(Raised([&] { Compact(); }), RuntimeError::CannotOpenDatabase);
    EXPECT_FALSE(QFile::exists(Host(u"b.mdb"_s)));
    EXPECT_EQ(All().size(), 2U);
    other.LetGo();
    Compact();
    EXPECT_EQ(All(u"b.mdb"_s).size(), 2U);
}

TEST_F(Compaction, ASourceThatAnotherProgramLocksIsWaitedForAndTold)
{
    CreateWith({u"a"_s});
    int toChild[2];
    int toParent[2];
    ASSERT_EQ(pipe(toChild), 0);
    ASSERT_EQ(pipe(toParent), 0);
    char token = 'x';
    const pid_t child = fork();
    if (child == 0) {
        data::Session session(Host(), Drive(), data::Session::Access::Existing);
        session.Run("BEGIN EXCLUSIVE");
        const bool told = write(toParent[1], &token, 1) == 1 && read(toChild[0], &token, 1) == 1;
        _exit(told ? 0 : 1);
    }
    ASSERT_EQ(read(toParent[0], &token, 1), 1);
    EXPECT_EQ(Raised([&] { Compact(); }), RuntimeError::CannotOpenDatabase);
    EXPECT_FALSE(QFile::exists(Host(u"b.mdb"_s)));
    ASSERT_EQ(write(toChild[1], &token, 1), 1);
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    Compact();
    EXPECT_EQ(All(u"b.mdb"_s).size(), 1U);
}

TEST_F(Compaction, TheStructureCheckFindsDamage)
{
    CreateSparse();
    const qint64 stored = All(u"a.mdb"_s).size();
    ASSERT_GT(stored, 0);
    EXPECT_TRUE(data::CheckStructure(Host()).get());
    EXPECT_EQ(data::CountRows(Host()).get(), stored);
    DamageAPage();
    EXPECT_FALSE(data::CheckStructure(Host()).get());
    EXPECT_FALSE(data::CheckStructure(Host(u"none.mdb"_s)).get());
    EXPECT_EQ(data::CountRows(Host(u"none.mdb"_s)).get(), std::nullopt);
}

TEST_F(Compaction, AFlushTellsWhatItCannotReach)
{
    CreateWith({u"a"_s});
    EXPECT_EQ(Raised([&] { data::FileFlush(Host()).Finish(); }), 0);
    EXPECT_EQ(Raised([&] { data::FileFlush(Host(u"none.mdb"_s)).Finish(); }),
              RuntimeError::CannotOpenDatabase);
}

TEST_F(Compaction, LetsEventsThroughAboutEvery50Milliseconds)
{
    Create();
    RunRaw(
        "INSERT INTO Dictionary(Word, Description) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
        "FROM n WHERE i < 400000) SELECT 'headword number ' || i, 'meaning' FROM n");
    using Clock = std::chrono::steady_clock;
    int turns = 0;
    ADODB::EngineHooks().progress = [&] { ++turns; };
    const Clock::time_point start = Clock::now();
    Compact();
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
    // The flush at the end is one step; a loaded machine may be late now and then.
    EXPECT_GE(turns, milliseconds.count() / 250) << milliseconds.count() << " ms";
}

} // namespace
