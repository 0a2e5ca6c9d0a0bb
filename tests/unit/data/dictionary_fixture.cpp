#include "unit/data/dictionary_fixture.h"

#include <QDir>
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

void DictionaryTest::Create(const QString &name) const
{
    {
        ADOX::Catalog catalog;
        ADOX::Table table;
        catalog.Create(ConnectionTo(name) + u"Jet OLEDB:Engine Type=5;"_s);
        table.Name = u"Dictionary"_s;
        table.AppendColumn(u"Word"_s, ADODB::adVarWChar, 255);
        table.AppendColumn(u"Pronunciation"_s, ADODB::adVarWChar, 64);
        table.AppendColumn(u"WordPhrase"_s, ADODB::adSmallInt, 0);
        table.AppendColumn(u"Description"_s, ADODB::adLongVarWChar, 0);
        table.AppendColumn(u"Example"_s, ADODB::adLongVarWChar, 0);
        catalog.AppendTable(table);
    }
    ADODB::Connection connection;
    connection.Open(ConnectionTo(name));
    ADOX::Catalog catalog;
    catalog.SetActiveConnection(connection);
    ADOX::Column column;
    column.Name = u"AutoID"_s;
    column.Type = ADODB::adInteger;
    column.ParentCatalog = &catalog;
    column.SetProperty(u"AutoIncrement"_s, true);
    ADOX::Table table = catalog.TableNamed(u"Dictionary"_s);
    table.AppendColumn(column);
    ADOX::Key key;
    key.Name = u"WordID"_s;
    key.Type = ADOX::adKeyPrimary;
    key.RelatedTable = u"Dictionary"_s;
    key.Columns = {u"Word"_s, u"AutoID"_s};
    table.AppendKey(key, ADOX::adKeyPrimary);
}

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
    view->rows.Open(u"Dictionary"_s, view->connection, ADODB::adOpenKeyset, ADODB::adLockOptimistic,
                    ADODB::adCmdTableDirect);
    view->rows.SetIndex(u"WordID"_s);
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
