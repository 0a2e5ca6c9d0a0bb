#include "platform/data/long_work.h"
#include "platform/data/page_appender.h"
#include "platform/data/tree_copy.h"
#include "unit/data/dictionary_fixture.h"
#include "unit/files/full_disk.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <random>

using namespace Qt::StringLiterals;
using data::Session;
using Tree = data::TreeWalk::Tree;

namespace
{

constexpr qint64 kPage = data::kPageSize;
/// The longest records that stand in their page whole, in the table and in the index.
constexpr int kMostInTable = 16349;
constexpr int kMostInIndex = 4066;

class TreeCopy : public DictionaryTest
{
protected:
    std::unique_ptr<Session> Open(const QString &name = u"a.mdb"_s) const
    {
        return std::make_unique<Session>(Host(name), Drive(name), Session::Access::Existing);
    }

    /// Does work on the file in a write transaction.
    template <typename Work> void Write(Work work) const
    {
        const auto session = Open();
        session->Write([&] { work(*session); });
    }

    /// So many characters, but never fewer than the digits of the number, with which the text ends.
    static std::string TextOf(int number, int size, char first)
    {
        const std::string digits = std::to_string(number);
        const std::size_t digitsAt =
            static_cast<std::size_t>(size) - std::min(static_cast<std::size_t>(size), digits.size());
        return std::string(digitsAt, static_cast<char>(first + number % 26)) + digits;
    }

    /// Adds a row with texts of so many characters.
    static void Add(Session &session, int number, int word, int description)
    {
        data::Prepared insert = session.Prepare(
            "INSERT INTO Dictionary(AutoID, Word, Pronunciation, WordPhrase, Description, Example) "
            "VALUES(?1, ?2, NULL, ?1 % 3, ?3, '')");
        insert.BindNumber(1, number);
        insert.BindText(2, TextOf(number, word, 'a'));
        insert.BindText(3, TextOf(number, description, 'A'));
        insert.Step();
    }

    /// The copy has the rows and the counter of its source, byte for byte, and an index that is theirs.
    void ExpectSame() const
    {
        const auto session = Open(u"b.mdb"_s);
        session->Run("ATTACH '" + Host().toStdString() + "' AS source");
        const qint64 rows = session->NumberOf("SELECT count(*) FROM source.Dictionary NOT INDEXED");
        EXPECT_EQ(session->NumberOf("SELECT count(*) FROM main.Dictionary NOT INDEXED"), rows);
        EXPECT_EQ(session->NumberOf("SELECT count(*) FROM main.Dictionary a JOIN source.Dictionary b USING "
                                    "(AutoID) WHERE hex(a.Word) = hex(b.Word) "
                                    "AND a.Pronunciation IS b.Pronunciation AND a.WordPhrase IS b.WordPhrase "
                                    "AND a.Description IS b.Description AND a.Example IS b.Example"),
                  rows);
        EXPECT_EQ(session->NumberOf("SELECT seq FROM main.sqlite_sequence"),
                  session->NumberOf("SELECT seq FROM source.sqlite_sequence"));
        session->Run("DETACH source");
        // With the true order of headwords, and each entry of the index against its row.
        data::Prepared check = session->Prepare("PRAGMA integrity_check");
        ASSERT_TRUE(check.Step());
        EXPECT_EQ(check.Text(0), "ok");
    }

    /// The copy is hardly ever larger than the one that SQLite makes, and has no free page.
    void ExpectCompact() const
    {
        QFile::remove(Host(u"c.mdb"_s));
        Open()->Run("VACUUM INTO '" + Host(u"c.mdb"_s).toStdString() + "'");
        const qint64 size = QFileInfo(Host(u"c.mdb"_s)).size();
        EXPECT_LE(QFileInfo(Host(u"b.mdb"_s)).size(), size + size / 100 + kPage);
        EXPECT_EQ(AskRaw("PRAGMA freelist_count", u"b.mdb"_s), "0");
    }

    void CompactAnew() const
    {
        QFile::remove(Host(u"b.mdb"_s));
        Compact();
    }

    /// Levels of a tree, by its pages' paths.
    int LevelsOf(const char *tree, const QString &name) const
    {
        const std::string path = AskRaw(
            QByteArray("SELECT max(length(path)) FROM dbstat WHERE pagetype <> 'overflow' AND name = '%'")
                .replace("%", tree)
                .constData(),
            name);
        constexpr int lengthOfAStep = 4;
        return std::stoi(path) / lengthOfAStep + 1;
    }

    /// Writes bytes over those of a file; they lie where some other bytes are found.
    void Overwrite(const QByteArray &there, const QByteArray &bytes, const QString &name = u"a.mdb"_s) const
    {
        QFile file(Host(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const qsizetype at = file.readAll().indexOf(there);
        ASSERT_GE(at, 0) << there.toStdString();
        ASSERT_TRUE(file.seek(at));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
};

// Records around the sizes at which they run on into other pages, in the table and in the index.
TEST_F(TreeCopy, KeepsRecordsOfEachSize)
{
    Create();
    Write([&](Session &session) {
        int number = 0;
        constexpr int headOfARow = 20;
        for (const int pages : {0, 1, 2, 5})
            for (int size = -headOfARow; size <= headOfARow; ++size) {
                Add(session, ++number, 10, kMostInTable - headOfARow + pages * (data::kPageSize - 4) + size);
                Add(session, ++number, kMostInIndex - headOfARow + pages * (data::kPageSize - 4) + size, 10);
            }
        for (const int size : {0, 1, 1000, 1'000'000})
            Add(session, ++number, size % 999, size);
    });
    Compact();
    ExpectSame();
    ExpectCompact();
}

// However the cells fill the last pages of each level.
TEST_F(TreeCopy, KeepsAnyNumberOfRows)
{
    Create();
    constexpr int most = 150;
    for (int count = 0; count <= most; ++count) {
        SCOPED_TRACE(count);
        if (count > 0)
            Write([&](Session &session) { Add(session, count, 700 + count % 50, 1500 + count * 7 % 40); });
        CompactAnew();
        ASSERT_NO_FATAL_FAILURE(ExpectSame());
        ExpectCompact();
    }
}

TEST_F(TreeCopy, KeepsTreesOfManyLevels)
{
    Create();
    Write([&](Session &session) {
        for (int number = 1; number <= 9000; ++number)
            Add(session, number * 7919 % 9001, 765, number % 4 == 0 ? 15'000 : 1);
    });
    Compact();
    ExpectSame();
    ExpectCompact();
    EXPECT_EQ(LevelsOf("Dictionary", u"b.mdb"_s), 3);
    EXPECT_EQ(LevelsOf("WordID", u"b.mdb"_s), 3);
}

TEST_F(TreeCopy, KeepsWhatRandomChangesLeft)
{
    std::mt19937 random(20260717);
    const auto below = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    Create();
    for (int round = 0; round < 25; ++round) {
        SCOPED_TRACE(round);
        Write([&](Session &session) {
            for (int i = 0; i < 200; ++i) {
                const std::string number = std::to_string(below(1000));
                session.Run("DELETE FROM Dictionary WHERE AutoID = " + number);
                if (below(3) > 0)
                    Add(session, std::stoi(number), below(4) == 0 ? below(9000) : below(300),
                        below(5) == 0 ? below(60'000) : below(500));
            }
        });
        CompactAnew();
        ASSERT_NO_FATAL_FAILURE(ExpectSame());
        ExpectCompact();
    }
}

TEST_F(TreeCopy, KeepsNumbersOfEachSize)
{
    Create();
    for (const qint64 number : {std::numeric_limits<qint64>::min(), qint64(-1), qint64(0), qint64(127),
                                qint64(1) << 40, std::numeric_limits<qint64>::max() - 1})
        RunRaw(u"INSERT INTO Dictionary(Word, AutoID) VALUES('w', %1)"_s.arg(number).toLatin1().constData());
    Compact();
    ExpectSame();
}

// Laid out in pages of another size, a file is copied row by row.
TEST_F(TreeCopy, TakesFilesOfOtherPages)
{
    CreateWith({u"B"_s, u"a"_s, u"Ｃ"_s});
    {
        const auto session = Open();
        session->Run("PRAGMA page_size = 4096");
        session->Run("VACUUM");
    }
    for (int number = 10; QFileInfo(Host()).size() % kPage != 0; ++number)
        Write([&](Session &session) { Add(session, number, 20, 3000); });
    ASSERT_EQ(AskRaw("PRAGMA page_size"), "4096");
    Compact();
    ExpectSame();
    EXPECT_EQ(AskRaw("PRAGMA page_size", u"b.mdb"_s), "16384");
}

TEST_F(TreeCopy, ADamagedTreeGivesNoCopy)
{
    const auto damage = [&](const std::function<void()> &work) {
        for (const QString &name : Names())
            QFile::remove(Host(name));
        Create();
        Write([&](Session &session) {
            for (int number = 1; number <= 300; ++number)
                Add(session, number, 400, number == 150 ? 50'000 : 400);
        });
        work();
        EXPECT_EQ(Raised([&] { Compact(); }), RuntimeError::CannotOpenDatabase);
        EXPECT_EQ(Names(), QStringList{u"a.mdb"_s});
    };
    const auto writeAt = [&](qint64 page, qint64 at, const QByteArray &bytes) {
        QFile file(Host());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.seek((page - 1) * kPage + at));
        ASSERT_EQ(file.write(bytes), bytes.size());
    };
    const auto pageOf = [&](const char *sql) { return std::stoll(AskRaw(sql)); };
    // The roots.
    for (const char *name : {"Dictionary", "WordID"})
        damage([&] {
            writeAt(
                pageOf(
                    (std::string("SELECT rootpage FROM sqlite_schema WHERE name = '") + name + "'").c_str()),
                0, QByteArray(8, '\xFF'));
        });
    // A leaf of either tree.
    for (const char *name : {"Dictionary", "WordID"})
        damage([&] {
            writeAt(
                pageOf((std::string("SELECT max(pageno) FROM dbstat WHERE pagetype = 'leaf' AND name = '") +
                        name + "'")
                           .c_str()),
                0, QByteArray(20, '\xFF'));
        });
    // A record that runs on round in circles, and one that runs on beyond the file.
    for (const char number : {'\0', '\x7F'})
        damage([&] {
            const qint64 page = pageOf("SELECT min(pageno) FROM dbstat WHERE pagetype = 'overflow'");
            ASSERT_LT(page, 127);
            const char next = number == '\0' ? static_cast<char>(page) : number;
            writeAt(page, 0, QByteArray(3, '\0') + next);
        });
    // The cells of a page lie over each other: each is the greatest of them.
    damage([&] {
        const qint64 page =
            pageOf("SELECT min(pageno) FROM dbstat WHERE pagetype = 'leaf' AND name = 'Dictionary'");
        QFile file(Host());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly) && file.seek((page - 1) * kPage + 8));
        const QByteArray first = file.read(2);
        file.close();
        constexpr int cells = 1000;
        writeAt(page, 3, QByteArray(1, char(cells >> 8)) + char(cells & 0xFF));
        writeAt(page, 8, first.repeated(cells));
    });
    // The file ends before its trees do.
    damage([&] {
        QFile file(Host());
        ASSERT_TRUE(file.resize(file.size() / 2 / kPage * kPage));
    });
}

TEST_F(TreeCopy, AFullDiskLeavesNothing)
{
    Create();
    Write([&](Session &session) {
        for (int number = 1; number <= 300; ++number)
            Add(session, number, 100, 4000);
    });
    const qint64 size = QFileInfo(Host()).size();
    for (const qint64 room : {2 * kPage, size / 3, size / 2}) {
        const FullDisk full(static_cast<rlim_t>(room));
        EXPECT_NE(Raised([&] { Compact(); }), 0) << room;
        EXPECT_EQ(Names(), QStringList{u"a.mdb"_s}) << room;
    }
    Compact();
    ExpectSame();
}

TEST_F(TreeCopy, TheDigestTellsEachChange)
{
    Create();
    Write([&](Session &session) {
        for (int number = 1; number <= 300; ++number)
            Add(session, number, 400, number == 150 ? 50'000 : 400);
    });
    Compact();
    const QString name = u"b.mdb"_s;
    const auto digest = [&](Tree tree) { return data::DigestTree(*Open(name), tree); };
    const data::TreeDigest table = digest(Tree::Table);
    const data::TreeDigest index = digest(Tree::Index);
    EXPECT_EQ(table.cells, 300);
    EXPECT_EQ(index.cells, 300);
    EXPECT_NE(table.contents, index.contents);
    // One byte of a row that stands in its page, and one in the last page of a record that runs on.
    for (const auto &[there, changed] : {std::pair("P249", "X249"), std::pair("U150", "X150")}) {
        Overwrite(there, changed, name);
        EXPECT_NE(digest(Tree::Table), table) << there;
        EXPECT_EQ(digest(Tree::Index), index) << there;
        Overwrite(changed, there, name);
        EXPECT_EQ(digest(Tree::Table), table) << there;
    }
    OpenTable(name)->rows.Delete();
    EXPECT_NE(digest(Tree::Table), table);
    EXPECT_NE(digest(Tree::Index), index);
}

// A text that changes in the copy before it is verified: its structure says nothing of it.
TEST_F(TreeCopy, ATextThatIsNotTheSourcesIsFound)
{
    Create();
    RunRaw(
        "INSERT INTO Dictionary(Word, Description) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
        "FROM n WHERE i < 300000) SELECT 'headword number ' || i, '<meaning ' || i || '>' FROM n");
    // The index is built behind the copy of the table, and lets events through.
    RunRaw("DROP INDEX WordID");
    files::MarkReadOnly(Host());
    bool isChanged = false;
    ADODB::EngineHooks().progress = [&] {
        if (!isChanged &&
            AskRaw("SELECT count(*) FROM sqlite_schema WHERE name = 'WordID'", u"b.mdb"_s) == "0") {
            Overwrite("<meaning 12>", "<Meaning 12>", u"b.mdb"_s);
            isChanged = true;
        }
    };
    EXPECT_EQ(Raised([&] { Compact(); }), RuntimeError::CannotOpenDatabase);
    EXPECT_TRUE(isChanged);
    EXPECT_EQ(Names(), QStringList{u"a.mdb"_s});
}

TEST_F(TreeCopy, TheHookMayEndIt)
{
    CreateWith({u"a"_s});
    ADODB::EngineHooks().progress = [] { throw RuntimeError(RuntimeError::InvalidCall); };
    const auto session = Open();
    EXPECT_EQ(Raised([&] {
                  data::DoLongWork(*session, [&] {
                      for (;;)
                          data::DigestTree(*session, Tree::Table);
                  });
              }),
              RuntimeError::InvalidCall);
}

// SQLite locks bytes at 1 GiB: the page in which they lie is none of the file's.
TEST_F(TreeCopy, LeavesTheLockedPageFree)
{
    constexpr quint32 locked = 65537;
    EXPECT_EQ(data::PageAppender::Behind(locked - 2), locked - 1);
    EXPECT_EQ(data::PageAppender::Behind(locked - 1), locked + 1);
    const auto append = [&](int pages) {
        for (const QString &name : Names())
            QFile::remove(Host(name));
        Create();
        QFile file(Host());
        EXPECT_TRUE(file.resize((locked - 2) * kPage));
        const auto session = Open();
        data::PageAppender appender(*session);
        std::vector<quint32> numbers;
        for (int i = 0; i < pages; ++i)
            numbers.push_back(appender.Append(std::string(kPage, static_cast<char>('a' + i))));
        appender.Finish();
        return numbers;
    };
    const auto firstByteOf = [&](quint32 page) {
        QFile file(Host());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.seek((page - 1) * kPage));
        return file.read(1);
    };
    const auto pagesInHeader = [&] {
        QFile file(Host());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.seek(28));
        return qFromBigEndian<quint32>(file.read(4).constData());
    };
    EXPECT_EQ(append(1), (std::vector<quint32>{locked - 1}));
    EXPECT_EQ(pagesInHeader(), locked - 1);
    EXPECT_EQ(append(3), (std::vector<quint32>{locked - 1, locked + 1, locked + 2}));
    EXPECT_EQ(pagesInHeader(), locked + 2);
    EXPECT_EQ(firstByteOf(locked - 1), "a");
    EXPECT_EQ(firstByteOf(locked), QByteArray(1, '\0'));
    EXPECT_EQ(firstByteOf(locked + 1), "b");
    EXPECT_EQ(firstByteOf(locked + 2), "c");
}

} // namespace
