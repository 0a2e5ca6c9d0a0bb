#include "unit/data/dictionary_fixture.h"

#include "platform/data/jro.h"

#include <QDir>
#include <algorithm>
#include <array>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

int CompareAnyhow(void * /*unused*/, int leftSize, const void *left, int rightSize, const void *right)
{
    return std::string_view(static_cast<const char *>(left), static_cast<std::size_t>(leftSize))
        .compare(std::string_view(static_cast<const char *>(right), static_cast<std::size_t>(rightSize)));
}

sqlite3 *OpenRaw(const QString &path)
{
    sqlite3 *database = nullptr;
    EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &database), SQLITE_OK);
    sqlite3_create_collation(database, "WORDMERE", SQLITE_UTF8, nullptr, CompareAnyhow);
    return database;
}

} // namespace

void DictionaryTest::Reset()
{
    faults::Clear();
    files::ClearReadOnlyMarks();
    files::SetFreeBytes(-1);
    ADODB::EngineHooks() = {};
}

QStringList DictionaryTest::Names() const
{
    return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

void DictionaryTest::Create(const QString &name) const { CreateDictionaryFile(Drive(name)); }

void DictionaryTest::CreateWith(const QStringList &words, const QString &name) const
{
    Create(name);
    const auto view = OpenBulk(name);
    for (const QString &word : words)
        view->Add(word);
    view->rows.Close();
}

std::unique_ptr<View> DictionaryTest::OpenTable(const QString &name) const
{
    auto view = std::make_unique<View>();
    view->connection.Open(ConnectionTo(name));
    OpenTableByIndex(view->connection, view->rows);
    return view;
}

std::unique_ptr<View> DictionaryTest::OpenBulk(const QString &name) const
{
    auto view = std::make_unique<View>();
    view->connection.Open(ConnectionTo(name));
    view->rows.SetCursorType(ADODB::adOpenDynamic);
    view->rows.SetLockType(ADODB::adLockOptimistic);
    view->rows.Open(u"Dictionary"_s, view->connection, -1, -1, ADODB::adCmdTable);
    return view;
}

std::vector<Entry> DictionaryTest::Rest(ADODB::Recordset &rows)
{
    std::vector<Entry> entries;
    for (; !rows.Eof(); rows.MoveNext())
        entries.push_back(
            {rows.Fields().Item(u"Word"_s).Text(), rows.Fields().Item(u"AutoID"_s).Value().toInt()});
    return entries;
}

std::vector<Entry> DictionaryTest::All(const QString &name) const { return Rest(OpenTable(name)->rows); }

std::vector<Entry> DictionaryTest::Select(const QString &statement, const QString &name) const
{
    ADODB::Connection connection;
    connection.Open(ConnectionTo(name));
    return Rest(*connection.Execute(statement));
}

QStringList DictionaryTest::SelectWords(const QString &statement) const
{
    QStringList words;
    for (const Entry &entry : Select(statement))
        words.append(entry.word);
    return words;
}

void DictionaryTest::Compact(const QString &from, const QString &to) const
{
    JRO::JetEngine engine;
    engine.CompactDatabase(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + Drive(from),
                           u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + Drive(to));
}

void DictionaryTest::RunRaw(const char *sql, const QString &name) const
{
    sqlite3 *database = OpenRaw(Host(name));
    EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
}

std::string DictionaryTest::AskRaw(const char *sql, const QString &name) const
{
    sqlite3 *database = OpenRaw(Host(name));
    sqlite3_stmt *statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(database, sql, -1, &statement, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database);
    std::string answer;
    if (sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_text(statement, 0) != nullptr)
        answer = reinterpret_cast<const char *>(sqlite3_column_text(statement, 0));
    sqlite3_finalize(statement);
    sqlite3_close(database);
    return answer;
}

std::shared_ptr<void> DictionaryTest::LockExclusively(const QString &name) const
{
    const std::shared_ptr<sqlite3> database(OpenRaw(Host(name)), sqlite3_close);
    if (sqlite3_exec(database.get(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) != SQLITE_OK)
        throw RuntimeError(RuntimeError::CannotOpenDatabase);
    return database;
}

int DictionaryTest::InChild(const std::function<int()> &body)
{
    const pid_t child = fork();
    if (child == 0) {
        int code = 99;
        try {
            code = body();
        } catch (const RuntimeError &) {
            code = 98;
        }
        _exit(code);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

OtherProcess::OtherProcess(const std::function<std::shared_ptr<void>()> &begin)
{
    std::array<int, 2> toChild{};
    std::array<int, 2> toParent{};
    EXPECT_EQ(pipe(toChild.data()), 0);
    EXPECT_EQ(pipe(toParent.data()), 0);
    m_child = fork();
    if (m_child != 0) {
        close(toChild[0]);
        close(toParent[1]);
        m_toChild = toChild[1];
        m_toParent = toParent[0];
        return;
    }
    close(toChild[1]);
    const auto wait = [&] {
        int number = 0;
        return read(toChild[0], &number, sizeof number) == sizeof number ? number : -1;
    };
    if (wait() < 0)
        _exit(0);
    char done = 'y';
    std::shared_ptr<void> kept;
    try {
        kept = begin();
    } catch (const RuntimeError &) {
        done = 'n';
    }
    if (write(toParent[1], &done, 1) == 1)
        usleep(static_cast<useconds_t>(std::max(wait(), 0)) * 1000);
    _exit(0);
}

OtherProcess::~OtherProcess()
{
    close(m_toChild);
    close(m_toParent);
    waitpid(m_child, nullptr, 0);
}

bool OtherProcess::Begin() const
{
    const int now = 0;
    char done = 'n';
    return write(m_toChild, &now, sizeof now) == sizeof now && read(m_toParent, &done, 1) == 1 && done == 'y';
}

void OtherProcess::LetGo(int after)
{
    EXPECT_EQ(write(m_toChild, &after, sizeof after), ssize_t(sizeof after));
    if (after > 0)
        return;
    // What it kept is free when it has gone: its end of the pipe closes.
    char none = 0;
    EXPECT_EQ(read(m_toParent, &none, 1), 0);
}
