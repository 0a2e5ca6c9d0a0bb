#include "temp_home.h"

#include <array>
#include <chrono>
#include <csignal>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr int kKills = 60;
constexpr auto kLongestRun = std::chrono::microseconds(20000);

/// The sizes of real files: a line of list sizes, the fonts, a catalogue of many dictionaries.
constexpr std::array<qsizetype, 3> kSizes{22, 396, qsizetype{309} * 500};

class Crash : public TempHome
{
protected:
    /// Runs `work` in a process of its own that is killed after a time; true when it was alive until then.
    template <typename Work> static bool KillWhile(std::chrono::microseconds time, Work work)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            work();
            ::_exit(0);
        }
        std::this_thread::sleep_for(time);
        ::kill(child, SIGKILL);
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }
};

} // namespace

TEST_F(Crash, ASettingsFileIsAlwaysTheOldOrTheNewOne)
{
    for (const qsizetype size : kSizes) {
        const std::array contents{QByteArray(size, 'o'), QByteArray(size + 44, 'n')};
        const QString path = Drive(u"settings.dat"_s);
        Put(u"settings.dat"_s, contents[0]);
        std::array<int, 2> seen{};
        for (int i = 0; i < kKills; ++i) {
            ASSERT_TRUE(KillWhile(kLongestRun * i / kKills, [&] {
                for (std::size_t turn = 1;; turn = 1 - turn)
                    files::Replace(path, contents[turn]);
            }));
            const QByteArray found = Get(u"settings.dat"_s);
            ASSERT_TRUE(found == contents[0] || found == contents[1]) << found.size() << " bytes";
            ++seen[found == contents[1] ? 1 : 0];
        }
        EXPECT_GT(seen[1], 0) << "no write was ever completed";
        EXPECT_NO_THROW(files::Replace(path, contents[0]));
        EXPECT_EQ(Get(u"settings.dat"_s), contents[0]);
    }
}

TEST_F(Crash, AFileThatWasNotThereIsNeverThereInPart)
{
    const QByteArray content(396, 'n');
    for (int i = 0; i < kKills; ++i) {
        QFile::remove(Host(u"new.dat"_s));
        ASSERT_TRUE(KillWhile(kLongestRun * i / kKills, [&] {
            for (;;) {
                files::Replace(Drive(u"new.dat"_s), content);
                files::Delete(Drive(u"new.dat"_s));
            }
        }));
        const QByteArray found = Get(u"new.dat"_s);
        ASSERT_TRUE(found == "(none)" || found == content) << found.size() << " bytes";
    }
}
