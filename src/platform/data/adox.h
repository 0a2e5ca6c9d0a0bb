#pragma once

#include "platform/data/adodb.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>
#include <vector>

/// Making dictionary files: catalogue, table, columns and the key.
namespace ADOX
{

enum KeyTypeEnum : int { adKeyPrimary = 1 };

class Catalog;

/// A column to be appended.
class Column
{
public:
    QString Name;
    int Type = ADODB::adVarWChar;
    int DefinedSize = 0;
    /// Needed before provider properties can be set.
    const Catalog *ParentCatalog = nullptr;
    /// Provider properties by name ("AutoIncrement"); raises 3265 for another name or without
    /// ParentCatalog.
    void SetProperty(const QString &name, const QVariant &value);
    bool AutoIncrement() const { return m_autoIncrement; }

private:
    bool m_autoIncrement = false;
};

/// A key to be appended.
struct Key {
    QString Name;
    int Type = adKeyPrimary;
    QString RelatedTable;
    QStringList Columns;
};

class TablePrivate;

/// A table: built up before it is appended to a catalogue, or one of a catalogue on a live file.
class Table
{
public:
    Table();
    QString Name;
    /// Appends a column; on a live table the file changes at once.
    void AppendColumn(const QString &name, int type, int definedSize);
    void AppendColumn(const Column &column);
    /// Appends the key and the index that it brings with it.
    void AppendKey(const Key &key, int type = adKeyPrimary);
    /// The names of the columns in their order.
    QStringList ColumnNames() const;

private:
    friend class Catalog;
    std::shared_ptr<TablePrivate> d;
};

/// A dictionary file's catalogue.
class Catalog
{
public:
    Catalog();
    ~Catalog();
    /// Creates the file of the connection string; raises -2147467259 when it exists or cannot be
    /// created, or when the engine type is not 5.
    void Create(const QString &connectionString);
    void SetActiveConnection(ADODB::Connection &connection);
    /// Adds a table; raises -2147217900 for one with other columns than a dictionary has.
    void AppendTable(Table &table);
    /// The table of that name; raises 3265.
    Table TableNamed(const QString &name);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace ADOX
