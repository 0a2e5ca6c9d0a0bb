#include "core/pure/dictionary_file.h"

#include "core/pure/record_rules.h"
#include "platform/data/adox.h"
#include "platform/data/dictionary_file.h"
#include "platform/data/session.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"
#include "platform/text/trim.h"

#include <QScopeGuard>

QString ViewConnectionString(const QString &path)
{
    return QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path + u';';
}

void OpenTableByIndex(ADODB::Connection &connection, ADODB::Recordset &recordset)
{
    recordset.Open(QStringLiteral("Dictionary"), connection, ADODB::adOpenKeyset, ADODB::adLockOptimistic,
                   ADODB::adCmdTableDirect);
    recordset.SetIndex(QStringLiteral("WordID"));
}

namespace
{

void MakeDictionary(const QString &path)
{
    const QString tableName = QStringLiteral("Dictionary");
    {
        ADOX::Catalog catalog;
        ADOX::Table table;
        catalog.Create(ViewConnectionString(path) + QStringLiteral("Jet OLEDB:Engine Type=5;"));
        table.Name = tableName;
        table.AppendColumn(QStringLiteral("Word"), ADODB::adVarWChar, kWordLength);
        table.AppendColumn(QStringLiteral("Pronunciation"), ADODB::adVarWChar, kPronunciationLength);
        table.AppendColumn(QStringLiteral("WordPhrase"), ADODB::adSmallInt, 0);
        table.AppendColumn(QStringLiteral("Description"), ADODB::adLongVarWChar, 0);
        table.AppendColumn(QStringLiteral("Example"), ADODB::adLongVarWChar, 0);
        catalog.AppendTable(table);
    }
    // The automatic column needs a live connection, and so stands last in the table.
    ADODB::Connection connection;
    connection.Open(ViewConnectionString(path));
    ADOX::Catalog catalog;
    catalog.SetActiveConnection(connection);
    ADOX::Column column;
    column.Name = QStringLiteral("AutoID");
    column.Type = ADODB::adInteger;
    column.ParentCatalog = &catalog;
    column.SetProperty(QStringLiteral("AutoIncrement"), true);
    ADOX::Table table = catalog.TableNamed(tableName);
    table.AppendColumn(column);
    ADOX::Key key;
    key.Name = QStringLiteral("WordID");
    key.RelatedTable = tableName;
    key.Columns = {QStringLiteral("Word"), QStringLiteral("AutoID")};
    table.AppendKey(key);
}

/// Whether the file is what a making that ended early has left: no row was ever stored in it.
bool IsLeftOver(const QString &path)
{
    if (!files::Exists(path))
        return false;
    try {
        // Not for reading alone: what the end of a process cut short has to be taken back first.
        const data::Session session(files::HostPath(path), path, data::Session::Access::Existing);
        return session.NumberOf("SELECT count(*) FROM sqlite_schema WHERE name = 'Dictionary'") == 0 ||
               session.NumberOf("SELECT EXISTS(SELECT 1 FROM Dictionary)") == 0;
    } catch (const RuntimeError &) {
        return false;
    }
}

void TakeAway(const QString &path) noexcept
{
    try {
        files::DeleteIfThere(path);
    } catch (const RuntimeError &) {
        // What failed before is told; what stays bears a name of its own.
        return;
    }
}

} // namespace

void CreateDictionaryFile(const QString &path)
{
    const QString trimmed = text::Trim(path);
    data::RequireNothingAt(files::HostPath(trimmed));
    // Made under another name: whatever ends the process meanwhile, nobody finds a dictionary in part.
    const QString unfinished = trimmed + QStringLiteral(".unfinished");
    if (IsLeftOver(unfinished))
        TakeAway(unfinished);
    data::RequireNothingAt(files::HostPath(unfinished));
    auto takeAway = qScopeGuard([&unfinished] { TakeAway(unfinished); });
    MakeDictionary(unfinished);
    // A journal is of a file that is there no more; it would be played back into the new one.
    for (const QString &ending : {QStringLiteral("-journal"), QStringLiteral("-wal"), QStringLiteral("-shm")})
        TakeAway(trimmed + ending);
    files::Rename(unfinished, trimmed);
    takeAway.dismiss();
}
