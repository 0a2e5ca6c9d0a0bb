#include "unit/data/dictionary_fixture.h"
#include "unit/files/full_disk.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

class BulkWriter : public DictionaryTest
{
protected:
    bool HasIndex() const
    {
        return AskRaw("SELECT count(*) FROM sqlite_schema WHERE name = 'WordID'") == "1";
    }
};

TEST_F(BulkWriter, BuildsTheIndexAtTheEnd)
{
    Create();
    const auto bulk = OpenBulk();
    EXPECT_EQ(bulk->Add(u"b"_s), (Entry{u"b"_s, 1}));
    EXPECT_EQ(bulk->Add(u"a"_s), (Entry{u"a"_s, 2}));
    bulk->rows.Flush();
    EXPECT_FALSE(HasIndex());
    EXPECT_EQ(AskRaw("SELECT count(*) FROM Dictionary"), "2");
    bulk->Add(u"c"_s);
    bulk->rows.Close();
    bulk->connection.Close();
    EXPECT_TRUE(HasIndex());
    EXPECT_EQ(All(), (std::vector<Entry>{{u"a"_s, 2}, {u"b"_s, 1}, {u"c"_s, 3}}));
    EXPECT_EQ(Names(), QStringList{u"a.mdb"_s});
}

TEST_F(BulkWriter, KeepsTheIndexOfAFilledTable)
{
    CreateWith({u"m"_s});
    const auto bulk = OpenBulk();
    bulk->Add(u"a"_s);
    bulk->rows.Flush();
    EXPECT_TRUE(HasIndex());
    bulk->rows.Close();
    EXPECT_EQ(All(), (std::vector<Entry>{{u"a"_s, 2}, {u"m"_s, 1}}));
}

TEST_F(BulkWriter, CommitsAtLeastEveryQuarterSecond)
{
    Create();
    const auto bulk = OpenBulk();
    QElapsedTimer timer;
    timer.start();
    int added = 0;
    while (timer.elapsed() < 400) {
        bulk->Add(u"w"_s);
        ++added;
    }
    const int stored = std::stoi(AskRaw("SELECT count(*) FROM Dictionary"));
    EXPECT_GT(stored, 0);
    EXPECT_LT(stored, added);
}

TEST_F(BulkWriter, OthersOfThisProcessNeverWait)
{
    Create();
    const auto bulk = OpenBulk();
    bulk->Add(u"b"_s);
    bulk->Add(u"a"_s);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(All(), (std::vector<Entry>{{u"a"_s, 2}, {u"b"_s, 1}}));
    const auto writer = OpenTable();
    bulk->Add(u"d"_s);
    writer->Add(u"c"_s);
    EXPECT_EQ(writer->Text("Word"), u"c"_s);
    bulk->Add(u"e"_s);
    writer->rows.MoveNext();
    EXPECT_EQ(writer->Text("Word"), u"d"_s);
    bulk->rows.Close();
    EXPECT_LT(timer.elapsed(), 1500);
    EXPECT_EQ(All().size(), 5U);
}

TEST_F(BulkWriter, AFailureKeepsTheRowsBefore)
{
    Create();
    const auto bulk = OpenBulk();
    bulk->Add(u"a"_s);
    bulk->rows.AddNew();
    bulk->Set("Description", u"no headword"_s);
    EXPECT_EQ(Raised([&] { bulk->rows.Update(); }), RuntimeError::ProviderError);
    EXPECT_EQ(AskRaw("SELECT count(*) FROM Dictionary"), "1");
    bulk->rows.Close();
    EXPECT_EQ(All().size(), 1U);
}

TEST_F(BulkWriter, DroppedWithoutCloseStillCommits)
{
    Create();
    {
        const auto bulk = OpenBulk();
        bulk->Add(u"a"_s);
        bulk->Add(u"b"_s);
    }
    EXPECT_EQ(AskRaw("SELECT count(*) FROM Dictionary"), "2");
    EXPECT_EQ(All().size(), 2U);
    EXPECT_TRUE(HasIndex());
    {
        const auto bulk = OpenBulk();
        bulk->Add(u"c"_s);
        bulk->connection.Close();
    }
    EXPECT_EQ(All().size(), 3U);
}

TEST_F(BulkWriter, ReadOnlyFileIsRefused)
{
    Create();
    files::MarkReadOnly(Host());
    EXPECT_EQ(Raised([&] { OpenBulk(); }), RuntimeError::PermissionDenied);
}

TEST_F(BulkWriter, CommitsForABox)
{
    CreateWith({u"m"_s});
    const auto bulk = OpenBulk();
    bulk->Add(u"a"_s);
    EXPECT_EQ(AskRaw("SELECT count(*) FROM Dictionary"), "1");
    ADODB::CommitGroups();
    EXPECT_EQ(AskRaw("SELECT count(*) FROM Dictionary"), "2");
    bulk->Add(u"b"_s);
    bulk->rows.Close();
    ADODB::CommitGroups();
    EXPECT_EQ(All().size(), 3U);
}

TEST_F(BulkWriter, RaisesItselfWhatFailedForOthers)
{
    Create();
    const auto bulk = OpenBulk();
    for (int i = 0; i < 1'000; ++i)
        bulk->Add(u"a word of some length, %1"_s.arg(i));
    ASSERT_EQ(AskRaw("SELECT count(*) FROM Dictionary"), "0");
    {
        const FullDisk full(static_cast<rlim_t>(QFileInfo(Host()).size()) + 1);
        EXPECT_EQ(Raised([] { ADODB::CommitGroups(); }), 0);
        EXPECT_NE(Raised([&] { bulk->Add(u"next"_s); }), 0);
    }
    // Told once; what was being added then is stored when the next row begins.
    bulk->Add(u"after"_s);
    bulk->rows.Close();
    EXPECT_EQ(All(), (std::vector<Entry>{{u"after"_s, 2}, {u"next"_s, 1}}));
    EXPECT_EQ(AskRaw("PRAGMA integrity_check"), "ok");
}

TEST_F(BulkWriter, SurvivesBeingKilledAtAnyMoment)
{
    for (int round = 0; round < 12; ++round) {
        SCOPED_TRACE(round);
        const QString name = u"k%1.mdb"_s.arg(round);
        Create(name);
        int channel[2];
        ASSERT_EQ(pipe(channel), 0);
        const pid_t child = fork();
        if (child == 0) {
            const auto bulk = OpenBulk(name);
            for (int i = 1;; ++i) {
                bulk->Add(u"word %1"_s.arg(i * 7919 % 100'003));
                if (i % 64 == 0) {
                    bulk->rows.Flush();
                    if (write(channel[1], &i, sizeof i) != sizeof i)
                        _exit(1);
                }
            }
        }
        close(channel[1]);
        usleep(static_cast<useconds_t>(20'000 + round * 7'000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        int promised = 0;
        for (int value = 0; read(channel[0], &value, sizeof value) == sizeof value;)
            promised = value;
        close(channel[0]);

        const std::vector<Entry> rows = All(name);
        EXPECT_GE(std::ssize(rows), promised);
        EXPECT_EQ(AskRaw("PRAGMA quick_check", name), "ok");
        std::vector<bool> seen(rows.size() + 1);
        for (const Entry &row : rows) {
            ASSERT_LE(static_cast<std::size_t>(row.autoID), rows.size());
            seen[static_cast<std::size_t>(row.autoID)] = true;
            ASSERT_EQ(row.word, u"word %1"_s.arg(row.autoID * 7919 % 100'003));
        }
        EXPECT_EQ(std::count(seen.begin(), seen.end(), true), std::ssize(rows));
        // A journal that the killed writer had only begun stays until the next write.
        OpenTable(name)->Add(u"after"_s);
        EXPECT_EQ(Names().filter(u"journal"_s), QStringList());
        EXPECT_EQ(std::ssize(All(name)), std::ssize(rows) + 1);
    }
}

} // namespace
