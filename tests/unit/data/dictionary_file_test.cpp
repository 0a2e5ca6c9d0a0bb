#include "unit/data/dictionary_fixture.h"

#include "platform/text/fold.h"

#include <QElapsedTimer>
#include <QFile>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr qint32 kCannotOpen = RuntimeError::CannotOpenDatabase;

class DictionaryFile : public DictionaryTest
{
protected:
    void Put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(Host(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QByteArray Bytes(const QString &name = u"a.mdb"_s) const
    {
        QFile file(Host(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// What opening the file and reading all of it raises.
    qint32 OpenAndRead(const QString &name) const
    {
        return Raised([&] { All(name); });
    }
};

TEST_F(DictionaryFile, MissingFilesAreNotCreated)
{
    EXPECT_EQ(OpenAndRead(u"none.mdb"_s), kCannotOpen);
    EXPECT_EQ(OpenAndRead(u"folder/none.mdb"_s), kCannotOpen);
    EXPECT_EQ(Names(), QStringList());
    ADODB::Connection connection;
    try {
        connection.Open(u"Data Source=Q:\\a.mdb;"_s);
        ADD_FAILURE();
    } catch (const RuntimeError &error) {
        EXPECT_EQ(error.number(), kCannotOpen);
        EXPECT_EQ(error.source(), u"ADODB.Connection"_s);
    }
    EXPECT_EQ(connection.State(), ADODB::adStateClosed);
    EXPECT_EQ(Raised([&] { connection.Open(u"Provider=x;"_s); }), kCannotOpen);
}

TEST_F(DictionaryFile, ForeignFilesAreRefused)
{
    Put(u"empty.mdb"_s, {});
    Put(u"text.mdb"_s, "This is a text.\r\n");
    Put(u"long.mdb"_s, QByteArray(100'000, 'x'));
    Put(u"image.mdb"_s, QByteArray("\x89PNG\r\n\x1a\n") + QByteArray(5000, '\0'));
    RunRaw("CREATE TABLE Dictionary(Word, AutoID); INSERT INTO Dictionary VALUES('a', 1)", u"other.mdb"_s);
    for (const QString &name :
         {u"empty.mdb"_s, u"text.mdb"_s, u"long.mdb"_s, u"image.mdb"_s, u"other.mdb"_s, u"."_s}) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray before = Bytes(name);
        EXPECT_EQ(OpenAndRead(name), kCannotOpen);
        EXPECT_EQ(Bytes(name), before);
    }
}

TEST_F(DictionaryFile, DamagedFilesAreRefusedOrRead)
{
    QStringList words;
    for (int i = 0; i < 3000; ++i)
        words.append(u"word %1"_s.arg(i));
    CreateWith(words);
    const QByteArray whole = Bytes();
    for (const qsizetype size : {whole.size() - 1, whole.size() / 2, qsizetype(16384), qsizetype(100)}) {
        Put(u"cut.mdb"_s, whole.first(size));
        EXPECT_EQ(OpenAndRead(u"cut.mdb"_s), kCannotOpen) << size;
    }
    for (qsizetype at = 0; at + 64 < whole.size(); at += 4099) {
        QByteArray damaged = whole;
        for (qsizetype i = 0; i < 64; ++i)
            damaged[at + i] = static_cast<char>(i * 37);
        Put(u"damaged.mdb"_s, damaged);
        const qint32 number = OpenAndRead(u"damaged.mdb"_s);
        EXPECT_TRUE(number == 0 || number == kCannotOpen) << at << ": " << number;
    }
}

TEST_F(DictionaryFile, TamperedTablesAreRefused)
{
    CreateWith({u"a"_s});
    RunRaw("CREATE TABLE Other(x); DROP TABLE Dictionary; CREATE VIEW Dictionary AS SELECT x AS Word FROM "
           "Other");
    EXPECT_EQ(OpenAndRead(u"a.mdb"_s), kCannotOpen);
}

TEST_F(DictionaryFile, NewerFormatIsRefused)
{
    CreateWith({u"a"_s});
    RunRaw("PRAGMA user_version = 131073");
    EXPECT_EQ(OpenAndRead(u"a.mdb"_s), kCannotOpen);
}

TEST_F(DictionaryFile, MissingOrOldIndexIsBuiltAtOpening)
{
    for (const char *sql : {"DROP INDEX WordID", "PRAGMA user_version = 65536",
                            "DROP INDEX WordID; CREATE INDEX WordID ON Dictionary(Example)"}) {
        SCOPED_TRACE(sql);
        QFile::remove(Host());
        CreateWith({u"B"_s, u"a"_s, u"ｃ"_s});
        RunRaw(sql);
        std::vector<bool> busy;
        ADODB::EngineHooks().busy = [&busy](bool begins) { busy.push_back(begins); };
        EXPECT_EQ(All(), (std::vector<Entry>{{u"a"_s, 2}, {u"B"_s, 1}, {u"ｃ"_s, 3}}));
        EXPECT_EQ(busy, (std::vector<bool>{true, false}));
        EXPECT_EQ(std::stoi(AskRaw("PRAGMA user_version")), 65536 + text::kFoldVersion);
        All();
        EXPECT_EQ(busy.size(), 2U);
        ADODB::EngineHooks() = {};
    }
}

TEST_F(DictionaryFile, ReadOnlyFileWithoutIndexIsReadThroughACopy)
{
    CreateWith({u"B"_s, u"a"_s, u"c"_s});
    RunRaw("DROP INDEX WordID");
    const QByteArray before = Bytes();
    files::MarkReadOnly(Host());
    int built = 0;
    ADODB::EngineHooks().busy = [&built](bool begins) { built += begins ? 1 : 0; };
    const std::vector<Entry> expected{{u"a"_s, 2}, {u"B"_s, 1}, {u"c"_s, 3}};
    EXPECT_EQ(All(), expected);
    EXPECT_GT(built, 0);
    const int once = built;
    EXPECT_EQ(All(), expected);
    EXPECT_EQ(Select(u"SELECT TOP 9 * FROM Dictionary WHERE Word Like 'b%' ORDER BY Word ASC"_s).size(), 1U);
    EXPECT_EQ(built, once);
    const auto view = OpenTable();
    EXPECT_EQ(Raised([&] { view->Add(u"d"_s); }), RuntimeError::PermissionDenied);
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(Names(), QStringList{u"a.mdb"_s});
}

TEST_F(DictionaryFile, ReadOnlyFileCanBeReadButNotWritten)
{
    CreateWith({u"a"_s, u"b"_s});
    files::MarkReadOnly(Host());
    const auto view = OpenTable();
    EXPECT_EQ(view->Text("Word"), u"a"_s);
    try {
        view->rows.Delete();
        ADD_FAILURE();
    } catch (const RuntimeError &error) {
        EXPECT_EQ(error.number(), RuntimeError::PermissionDenied);
        EXPECT_EQ(error.source(), u"ADODB.Recordset"_s);
    }
    view->Set("Description", u"x"_s);
    EXPECT_EQ(Raised([&] { view->rows.Update(); }), RuntimeError::PermissionDenied);
    EXPECT_EQ(All().size(), 2U);
}

TEST_F(DictionaryFile, AFileThatBecomesReadOnlyRefusesWrites)
{
    CreateWith({u"a"_s});
    const auto view = OpenTable();
    files::MarkReadOnly(Host());
    EXPECT_EQ(Raised([&] { view->Add(u"b"_s); }), RuntimeError::PermissionDenied);
}

TEST_F(DictionaryFile, ForeignLockIsWaitedForTwoSeconds)
{
    CreateWith({u"a"_s});
    OtherProcess reader([this] {
        const std::shared_ptr<View> other = OpenTable();
        other->Text("Word");
        return other;
    });
    const auto view = OpenTable();
    ASSERT_TRUE(reader.Begin());
    EXPECT_EQ(view->Text("Word"), u"a"_s);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(Raised([&] { view->Add(u"b"_s); }), kCannotOpen);
    EXPECT_GE(timer.elapsed(), 1900);
    EXPECT_LT(timer.elapsed(), 4000);
    EXPECT_EQ(All().size(), 1U);
    reader.LetGo();
    view->rows.Update();
    EXPECT_EQ(view->Current(), (Entry{u"b"_s, 2}));
}

TEST_F(DictionaryFile, ReleasedReadsLetAnotherProcessWrite)
{
    CreateWith({u"a"_s});
    OtherProcess writer([this]() -> std::shared_ptr<void> {
        OpenTable()->Add(u"b"_s);
        return nullptr;
    });
    const auto view = OpenTable();
    EXPECT_EQ(view->Text("Word"), u"a"_s);
    ADODB::ReleaseReads();
    EXPECT_TRUE(writer.Begin());
    view->rows.MoveNext();
    EXPECT_EQ(view->Current(), (Entry{u"b"_s, 2}));
}

TEST_F(DictionaryFile, EditsSurviveBeingKilled)
{
    CreateWith({u"a"_s});
    for (int round = 0; round < 6; ++round) {
        int channel[2];
        ASSERT_EQ(pipe(channel), 0);
        const pid_t child = fork();
        if (child == 0) {
            const auto view = OpenTable();
            for (;;) {
                const int id = view->Add(u"x"_s).autoID;
                if (write(channel[1], &id, sizeof id) != sizeof id)
                    _exit(1);
            }
        }
        close(channel[1]);
        usleep(static_cast<useconds_t>(15'000 + round * 5'000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        int promised = 0;
        for (int value = 0; read(channel[0], &value, sizeof value) == sizeof value;)
            promised = value;
        close(channel[0]);
        EXPECT_GE(std::ssize(All()), promised);
        EXPECT_EQ(AskRaw("PRAGMA quick_check"), "ok");
    }
}

} // namespace
