#include "platform/data/adox.h"

#include "platform/data/connection_string.h"
#include "platform/data/dictionary_file.h"
#include "platform/data/operation.h"
#include "platform/data/recordset_private.h"
#include "platform/data/schema.h"

#include <algorithm>

namespace ADOX
{

using data::kCatalogSource;
using data::Operation;

namespace
{

struct ColumnShape {
    const char *name;
    int type;
    int size;
};

/// The columns of a dictionary as they are appended.
constexpr std::array kShapes{
    ColumnShape{"Word", ADODB::adVarWChar, data::kWordSize},
    ColumnShape{"Pronunciation", ADODB::adVarWChar, data::kPronunciationSize},
    ColumnShape{"WordPhrase", ADODB::adSmallInt, 0},
    ColumnShape{"Description", ADODB::adLongVarWChar, 0},
    ColumnShape{"Example", ADODB::adLongVarWChar, 0},
    ColumnShape{"AutoID", ADODB::adInteger, 0},
};
static_assert(kShapes.size() == data::ColumnCount);

bool SameName(const QString &name, const char *expected)
{
    return name.compare(QLatin1String(expected), Qt::CaseInsensitive) == 0;
}

bool HasShape(const Column &column, const ColumnShape &shape)
{
    const bool sized = shape.size == 0 || column.DefinedSize == shape.size;
    const bool numbered = column.AutoIncrement() == (shape.type == ADODB::adInteger);
    return SameName(column.Name, shape.name) && column.Type == shape.type && sized && numbered;
}

bool IsWordID(const Key &key)
{
    return SameName(key.Name, data::kIndexName) && key.Type == adKeyPrimary && key.Columns.size() == 2 &&
           SameName(key.Columns[0], "Word") && SameName(key.Columns[1], "AutoID");
}

[[noreturn]] void RaiseBadShape()
{
    throw RuntimeError(RuntimeError::InvalidStatement, RuntimeError::defaultSource(),
                       QStringLiteral("辞書データベースのテーブルとは異なる定義です。"));
}

} // namespace

void Column::SetProperty(const QString &name, const QVariant &value)
{
    Operation(kCatalogSource, "Item", [&] {
        if (ParentCatalog == nullptr || !SameName(name, "AutoIncrement"))
            throw RuntimeError(RuntimeError::ItemNotFound);
        m_autoIncrement = value.toBool();
    });
}

/// Columns and key of a table, and the file where it stands in one.
class TablePrivate
{
public:
    std::vector<Column> columns;
    bool hasKey = false;
    std::shared_ptr<data::Session> session;

    bool HasShapeOf(std::size_t count) const
    {
        return columns.size() == count &&
               std::equal(columns.begin(), columns.end(), kShapes.begin(), HasShape);
    }
};

Table::Table() : d(std::make_shared<TablePrivate>()) {}

void Table::AppendColumn(const QString &name, int type, int definedSize)
{
    Column column;
    column.Name = name;
    column.Type = type;
    column.DefinedSize = definedSize;
    AppendColumn(column);
}

void Table::AppendColumn(const Column &column)
{
    Operation(kCatalogSource, "Append", [&] {
        if (d->session) {
            if (d->columns.size() + 1 != kShapes.size() || !HasShape(column, kShapes.back()))
                RaiseBadShape();
            d->session->Write([this] { data::AddAutoID(*d->session); });
        }
        d->columns.push_back(column);
        d->columns.back().ParentCatalog = nullptr;
    });
}

void Table::AppendKey(const Key &key, int type)
{
    Operation(kCatalogSource, "Append", [&] {
        if (!IsWordID(key) || type != adKeyPrimary || d->hasKey)
            RaiseBadShape();
        if (d->session) {
            if (!d->HasShapeOf(kShapes.size()))
                RaiseBadShape();
            data::BuildIndex(*d->session);
        }
        d->hasKey = true;
    });
}

QStringList Table::ColumnNames() const
{
    QStringList names;
    for (const Column &column : d->columns)
        names.append(column.Name);
    return names;
}

class Catalog::Private
{
public:
    std::shared_ptr<data::Session> session;

    data::Session &Session() const
    {
        if (!session || !session->IsOpen())
            throw RuntimeError(RuntimeError::ObjectClosed);
        return *session;
    }
};

Catalog::Catalog() : d(std::make_unique<Private>()) {}

Catalog::~Catalog() = default;

void Catalog::Create(const QString &connectionString)
{
    Operation(kCatalogSource, "Create", [&] {
        const data::ConnectionString parsed = data::ParseConnectionString(connectionString);
        if (parsed.path.isEmpty() ||
            (!parsed.engineType.isEmpty() && parsed.engineType != QLatin1String("5")))
            throw RuntimeError(RuntimeError::CannotOpenDatabase);
        d->session = data::CreateDictionaryFile(parsed.path);
    });
}

void Catalog::SetActiveConnection(ADODB::Connection &connection)
{
    Operation(kCatalogSource, "Open", [&] { d->session = ADODB::Impl(connection)->Session(); });
}

void Catalog::AppendTable(Table &table)
{
    Operation(kCatalogSource, "Append", [&] {
        data::Session &session = d->Session();
        session.BeginRead();
        TablePrivate &shape = *table.d;
        const bool whole = shape.HasShapeOf(kShapes.size());
        if (!SameName(table.Name, data::kTableName) || !(whole || shape.HasShapeOf(kShapes.size() - 1)) ||
            (shape.hasKey && !whole) || data::Examine(session).table != data::TableState::None)
            RaiseBadShape();
        session.Write([&] {
            data::CreateTable(session, whole);
            if (shape.hasKey)
                data::CreateIndex(session);
        });
        shape.session = d->session;
    });
}

Table Catalog::TableNamed(const QString &name)
{
    return Operation(kCatalogSource, "Item", [&] {
        data::Session &session = d->Session();
        session.BeginRead();
        const data::FileContent content = data::Examine(session);
        if (!SameName(name, data::kTableName) || content.table == data::TableState::None)
            throw RuntimeError(RuntimeError::ItemNotFound);
        Table table;
        table.Name = QLatin1String(data::kTableName);
        const std::size_t count =
            content.table == data::TableState::Whole ? kShapes.size() : kShapes.size() - 1;
        for (std::size_t i = 0; i < count; ++i) {
            Column column;
            column.Name = QLatin1String(kShapes.at(i).name);
            column.Type = kShapes.at(i).type;
            column.DefinedSize = kShapes.at(i).size;
            if (column.Type == ADODB::adInteger) {
                column.ParentCatalog = this;
                column.SetProperty(QStringLiteral("AutoIncrement"), true);
                column.ParentCatalog = nullptr;
            }
            table.d->columns.push_back(column);
        }
        table.d->hasKey = content.hasIndex;
        table.d->session = d->session;
        return table;
    });
}

} // namespace ADOX
