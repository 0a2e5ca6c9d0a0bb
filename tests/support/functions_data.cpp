#include "core/pure/catalogue_record.h"
#include "core/pure/dictionary_file.h"
#include "functions.h"
#include "host_paths.h"
#include "platform/data/adodb.h"
#include "script_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>

namespace
{

/// The columns of a row as scripts give it, in their order.
constexpr std::array kColumns{u"Word", u"Pronunciation", u"WordPhrase", u"Description", u"Example"};

QString ColumnName(std::size_t column) { return QString::fromUtf16(kColumns.at(column)); }

/// The table of a dictionary file, open and in the order of the index.
class OpenedTable
{
public:
    explicit OpenedTable(const QString &path)
    {
        connection.Open(ViewConnectionString(DrivePathOf(path)));
        OpenTableByIndex(connection, table);
    }
    ~OpenedTable()
    {
        table.Close();
        connection.Close();
    }
    OpenedTable(const OpenedTable &) = delete;
    OpenedTable &operator=(const OpenedTable &) = delete;

    ADODB::Connection connection;
    ADODB::Recordset table;
};

QVariant ColumnValue(const QJSValue &value, std::size_t column)
{
    if (value.isUndefined() || value.isNull())
        return {};
    return ColumnName(column) == QStringLiteral("WordPhrase") ? QVariant(value.toInt())
                                                              : QVariant(value.toString());
}

void AppendRows(const QString &drivePath, const QJSValueList &rows)
{
    ADODB::Connection connection;
    connection.Open(ViewConnectionString(drivePath));
    ADODB::Recordset writer;
    writer.Open(QStringLiteral("Dictionary"), connection, ADODB::adOpenDynamic, ADODB::adLockOptimistic,
                ADODB::adCmdTable);
    for (const QJSValue &row : rows) {
        writer.AddNew();
        for (std::size_t column = 0; column < kColumns.size(); ++column)
            writer.Fields()
                .Item(ColumnName(column))
                .SetValue(ColumnValue(row.property(static_cast<quint32>(column)), column));
        writer.Update();
    }
    writer.Close();
    connection.Close();
}

void MakeDictionary(const QString &path, const QJSValueList &rows)
{
    const QString hostPath = HostPathOf(path);
    QDir().mkpath(QFileInfo(hostPath).path());
    QFile::remove(hostPath);
    CreateDictionaryFile(DrivePathOf(hostPath));
    if (!rows.isEmpty())
        AppendRows(DrivePathOf(hostPath), rows);
}

QJSValue RowValue(Scenario &scenario, ADODB::Recordset &table)
{
    QJSValue row = scenario.Engine().newObject();
    const auto set = [&](const QString &column) {
        const QVariant value = table.Fields().Item(column).Value();
        row.setProperty(column, value.isValid() ? scenario.Value(value) : QJSValue(QJSValue::NullValue));
    };
    for (std::size_t column = 0; column < kColumns.size(); ++column)
        set(ColumnName(column));
    set(QStringLiteral("AutoID"));
    return row;
}

QJSValue AllRows(Scenario &scenario, const QString &path)
{
    OpenedTable opened(path);
    QJSValue rows = scenario.Engine().newArray();
    for (quint32 i = 0; !opened.table.Eof(); ++i, opened.table.MoveNext())
        rows.setProperty(i, RowValue(scenario, opened.table));
    return rows;
}

void DeleteRow(const QString &path, int autoID)
{
    OpenedTable opened(path);
    for (; !opened.table.Eof(); opened.table.MoveNext())
        if (opened.table.Fields().Item(QStringLiteral("AutoID")).Value().toInt() == autoID) {
            opened.table.Delete();
            return;
        }
    throw ScriptError(QStringLiteral("deleteRow: %1 has no record %2").arg(path).arg(autoID));
}

QByteArray CatalogueOf(const QJSValueList &entries)
{
    QByteArray content;
    for (const QJSValue &entry : entries) {
        Lexicon lexicon;
        lexicon.DicName = entry.property(QStringLiteral("name")).toString();
        lexicon.DicPath = DrivePathOf(entry.property(QStringLiteral("path")).toString());
        lexicon.IsSelected = entry.property(QStringLiteral("selected")).toBool() ? -1 : 0;
        content += EncodeLexicon(lexicon);
    }
    return content;
}

void WriteCatalogue(const QString &folder, const QByteArray &content)
{
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/lexicons.dat"));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw ScriptError(QStringLiteral("setCatalogue: %1").arg(file.errorString()));
}

} // namespace

void AddDataFunctions(FunctionTable &table)
{
    table[QStringLiteral("makeDictionary")] = [](Scenario &, const Arguments &arguments) {
        MakeDictionary(arguments.Text(0), arguments.Has(1) ? arguments.List(1) : QJSValueList());
        return QJSValue();
    };
    table[QStringLiteral("rows")] = [](Scenario &scenario, const Arguments &arguments) {
        return AllRows(scenario, arguments.Text(0));
    };
    table[QStringLiteral("deleteRow")] = [](Scenario &, const Arguments &arguments) {
        DeleteRow(arguments.Text(0), arguments.Integer(1));
        return QJSValue();
    };
    table[QStringLiteral("setCatalogue")] = [](Scenario &scenario, const Arguments &arguments) {
        const QJSValueList entries = arguments.Has(0) ? arguments.List(0) : QJSValueList();
        WriteCatalogue(scenario.Folder().ApplicationFolder(), CatalogueOf(entries));
        return QJSValue();
    };
    table[QStringLiteral("statements")] = [](Scenario &scenario, const Arguments &) {
        return scenario.Value(scenario.Program().TakeStatements());
    };
}
