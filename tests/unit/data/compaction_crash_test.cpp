#include "platform/data/jro.h"
#include "unit/data/dictionary_fixture.h"

#include <QFile>
#include <QFileInfo>
#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr int kKills = 50;
constexpr int kWords = 20'000;

/// What a compaction of the program does to the files, one run after the other.
class CompactionCrash : public DictionaryTest
{
protected:
    void MakeDictionary() const
    {
        Create();
        RunRaw("INSERT INTO Dictionary(Word, WordPhrase, Description) WITH RECURSIVE n(i) AS (SELECT 1 UNION "
               "ALL SELECT i + 1 FROM n WHERE i < 20000) SELECT 'headword number ' || (i * 7919 % 20011), 1, "
               "'meaning of ' || i FROM n");
        RunRaw("DELETE FROM Dictionary WHERE AutoID % 3 = 0");
    }

    static void CompactInPlace(const QString &path, const QString &temporary, const QString &backup)
    {
        files::DeleteIfThere(temporary);
        files::DeleteIfThere(backup);
        JRO::JetEngine engine;
        engine.CompactDatabase(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path,
                               u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + temporary);
        files::Copy(path, backup);
        engine.RequireUnchanged();
        files::ReplaceByFile(path, temporary);
    }

    /// Kills compactions at moments all over their length; each time the dictionary must be whole.
    void KillAndLook(const QString &temporary)
    {
        MakeDictionary();
        const std::vector<Entry> rows = All();
        ASSERT_EQ(rows.size(), static_cast<std::size_t>(kWords - kWords / 3));
        const QString backup = Drive(u"BKUP_a.mdb"_s);
        std::minstd_rand random(20260717);
        // Up to twice the time of a whole run on this machine, so that a later one is hit as well as the
        // first.
        std::uniform_int_distribution<useconds_t> moment(
            0, 2 * TimeOf([&] { CompactInPlace(Drive(), temporary, backup); }));
        const QString wholeRun = Host(u"whole_run"_s);
        int completed = 0;
        for (int kill = 0; kill < kKills; ++kill) {
            SCOPED_TRACE(kill);
            // However loaded the machine is, the first is killed at once and the last behind a whole run.
            const useconds_t time = kill == 0 ? 0 : moment(random);
            KillWhile(time, kill == kKills - 1 ? wholeRun : QString(), [&] {
                for (;;) {
                    CompactInPlace(Drive(), temporary, backup);
                    QFile(wholeRun).open(QIODevice::WriteOnly);
                }
            });
            ASSERT_EQ(All(), rows);
            ASSERT_EQ(AskRaw("PRAGMA quick_check"), "ok");
            ASSERT_FALSE(QFileInfo::exists(Host() + u"-journal"_s));
            if (files::Exists(backup)) {
                ASSERT_EQ(All(u"BKUP_a.mdb"_s), rows);
            }
            completed += QFile::remove(wholeRun) ? 1 : 0;
        }
        EXPECT_GT(completed, 0) << "no run came to its end";
        EXPECT_LT(completed, kKills) << "every run came to its end";
        // What a killed run left is in nobody's way.
        CompactInPlace(Drive(), temporary, backup);
        EXPECT_EQ(All(), rows);
        EXPECT_EQ(All(u"BKUP_a.mdb"_s), rows);
        EXPECT_FALSE(files::Exists(temporary));
    }

private:
    /// Microseconds that the work takes.
    template <typename Work> static useconds_t TimeOf(Work work)
    {
        const auto begin = std::chrono::steady_clock::now();
        work();
        const auto taken = std::chrono::steady_clock::now() - begin;
        return static_cast<useconds_t>(std::chrono::duration_cast<std::chrono::microseconds>(taken).count());
    }

    /// Kills the work after that time, counted from when the file is there where one is named.
    template <typename Work> static void KillWhile(useconds_t time, const QString &awaited, Work work)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            try {
                work();
            } catch (const RuntimeError &) {
                ::_exit(1);
            }
            ::_exit(0);
        }
        constexpr int mostLooks = 60'000;
        for (int look = 0; !awaited.isEmpty() && !QFile::exists(awaited) && look < mostLooks; ++look)
            ::usleep(1000);
        ::usleep(time);
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "it ended by itself";
    }
};

} // namespace

TEST_F(CompactionCrash, TheDictionaryIsAlwaysWhole) { KillAndLook(Drive(u"temporary.mdb"_s)); }

TEST_F(CompactionCrash, FromAnotherFileSystemToo)
{
    if (!QFileInfo(u"/dev/shm"_s).isWritable())
        GTEST_SKIP() << "one file system only";
    const QTemporaryDir other(u"/dev/shm/wordmere-test-XXXXXX"_s);
    KillAndLook(files::DrivePath(other.filePath(u"temporary.mdb"_s)));
}
