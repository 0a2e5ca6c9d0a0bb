#include "conversion/pure/row_store.h"
#include "conversion/pure/source_format.h"
#include "core/pure/dictionary_file.h"
#include "platform/data/adodb.h"
#include "platform/files/drive_path.h"
#include "platform/files/line_file.h"
#include "platform/text/fold.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr int kLines = 40'000;

QString WordOf(int number) { return u"word %1"_s.arg(number * 7919 % 100'003); }

/// Conversions that are killed: everything from the making of the file to the building of its index.
class KilledConversion : public testing::Test
{
protected:
    QString Host(const QString &name) const { return m_folder.filePath(name); }
    QString Drive(const QString &name) const { return files::DrivePath(Host(name)); }

    void WriteSource() const
    {
        files::LineWriter source(Drive(u"source.txt"_s), files::LineWriter::Mode::Output);
        for (int number = 1; number <= kLines; ++number)
            source.WriteLine(u"\u25A0%1 : <%2>"_s.arg(WordOf(number)).arg(number).toUtf8());
        source.Close();
        // Read as what it is.
        QFile file(Host(u"source.txt"_s));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const QByteArray content = file.readAll();
        file.seek(0);
        file.write("\xEF\xBB\xBF" + content);
    }

    void Convert(const QString &target, bool create) const
    {
        if (create)
            CreateDictionaryFile(target);
        RowStore store;
        store.Open(target);
        files::LineReader source(Drive(u"source.txt"_s));
        const std::unique_ptr<LineParser> parser = MakeEijiroParser();
        constexpr int linesPerBox = 2'000;
        for (int line = 1; !source.AtEnd(); ++line) {
            store.StoreRecord(*parser->Parse(source.ReadLine()));
            // As if boxes were shown: more groups, and so more moments to be killed at.
            if (line % linesPerBox == 0)
                ADODB::CommitGroups();
        }
        store.Close();
    }

    /// Begins a conversion in a process of its own and kills it after the time; whether it had ended.
    bool ConvertAndKill(const QString &target, bool create, useconds_t microseconds) const
    {
        const pid_t child = fork();
        if (child == 0) {
            int code = 1;
            try {
                Convert(target, create);
                code = 0;
            } catch (const RuntimeError &) {
                code = 2;
            }
            _exit(code);
        }
        usleep(microseconds);
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_FALSE(WIFEXITED(status) && WEXITSTATUS(status) != 0) << "the conversion failed by itself";
        return WIFEXITED(status);
    }

    /// The rows that are there, which are the first ones of the source behind `before` others; -1 where
    /// something is wrong.
    int CheckedRows(const QString &target, int before) const
    {
        ADODB::Connection connection;
        connection.Open(ViewConnectionString(target));
        ADODB::Recordset table;
        OpenTableByIndex(connection, table);
        const ADODB::Fields fields = table.Fields();
        std::vector<bool> seen;
        QString last;
        for (; !table.Eof(); table.MoveNext()) {
            const int number = fields.Item(u"AutoID"_s).Value().toInt();
            const QString word = fields.Item(u"Word"_s).Text();
            const int line = number > before ? number - before : number;
            EXPECT_EQ(word, WordOf(line));
            EXPECT_EQ(fields.Item(u"Description"_s).Text(), u"<%1>"_s.arg(line));
            EXPECT_LE(text::Compare(last, word), 0) << "the index is out of order";
            last = word;
            if (static_cast<std::size_t>(number) >= seen.size())
                seen.resize(static_cast<std::size_t>(number) + 1);
            seen[static_cast<std::size_t>(number)] = true;
        }
        const auto rows = std::count(seen.begin(), seen.end(), true);
        EXPECT_EQ(std::ssize(seen), rows == 0 ? 0 : rows + 1) << "a row is missing in between";
        EXPECT_GE(rows, before);
        return static_cast<int>(rows);
    }

    void StoreOneMore(const QString &target) const
    {
        ADODB::Connection connection;
        connection.Open(ViewConnectionString(target));
        ADODB::Recordset table;
        OpenTableByIndex(connection, table);
        table.AddNew();
        table.Fields().Item(u"Word"_s).SetValue(u"after"_s);
        table.Update();
    }

    /// What SQLite itself says of the file, its index included.
    std::string Integrity(const QString &name) const
    {
        sqlite3 *database = nullptr;
        sqlite3_open_v2(Host(name).toUtf8().constData(), &database, SQLITE_OPEN_READWRITE, nullptr);
        const auto compare = [](void *, int leftSize, const void *left, int rightSize, const void *right) {
            return text::CompareUtf8({static_cast<const char *>(left), static_cast<std::size_t>(leftSize)},
                                     {static_cast<const char *>(right), static_cast<std::size_t>(rightSize)});
        };
        sqlite3_create_collation(database, "WORDMERE", SQLITE_UTF8, nullptr, compare);
        std::string answer;
        const auto keep = [](void *to, int, char **values, char **) {
            *static_cast<std::string *>(to) += values[0];
            return 0;
        };
        sqlite3_exec(database, "PRAGMA integrity_check", keep, &answer, nullptr);
        sqlite3_exec(database, "SELECT count(*) FROM sqlite_schema WHERE name = 'WordID'", keep, &answer,
                     nullptr);
        sqlite3_close(database);
        return answer;
    }

    QTemporaryDir m_folder;
};

TEST_F(KilledConversion, LeavesAWholeDictionaryWithTheFirstRows)
{
    WriteSource();
    std::mt19937 random(20'240'607); // NOLINT(cert-msc51-cpp): the same moments at every run
    const auto within = [&random](unsigned long longest) {
        return static_cast<useconds_t>(random() % longest);
    };
    constexpr int rounds = 50;
    int inPart = 0;
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(round);
        const QString name = u"k%1.mdb"_s.arg(round);
        const QString target = Drive(name);
        // Half of them early, where the file is made and the first groups are stored; half anywhere.
        const useconds_t moment = within(round % 2 == 0 ? 60'000 : 500'000);
        const bool ended = ConvertAndKill(target, true, moment);
        if (!QFile::exists(Host(name))) {
            EXPECT_FALSE(ended);
            CreateDictionaryFile(target);
        }
        const int rows = CheckedRows(target, 0);
        EXPECT_TRUE(!ended || rows == kLines) << rows;
        inPart += static_cast<int>(rows > 0 && rows < kLines);
        EXPECT_EQ(Integrity(name), "ok1");
        if (round % 10 == 0) {
            // The next conversion adds to what is there, and may be killed in its turn.
            ConvertAndKill(target, false, within(500'000));
            CheckedRows(target, rows);
            EXPECT_EQ(Integrity(name), "ok1");
        }
        // A journal that the killed writer had only begun stays until the next write.
        StoreOneMore(target);
        EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).filter(u"journal"_s).size(), 0);
        QFile::remove(Host(name));
    }
    EXPECT_GT(inPart, 0) << "no conversion was killed in its midst";
}

} // namespace
