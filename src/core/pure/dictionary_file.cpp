#include "core/pure/dictionary_file.h"

#include "core/pure/record_rules.h"
#include "platform/data/adox.h"

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

void CreateDictionaryFile(const QString &path)
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
