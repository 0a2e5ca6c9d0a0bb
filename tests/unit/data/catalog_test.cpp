#include "platform/data/connection_string.h"
#include "unit/data/dictionary_fixture.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace
{

class Catalog : public DictionaryTest
{
};

TEST_F(Catalog, TwoStepsMakeADictionary)
{
    Create();
    ADODB::Connection connection;
    connection.Open(ConnectionTo());
    ADOX::Catalog catalog;
    catalog.SetActiveConnection(connection);
    EXPECT_EQ(catalog.TableNamed(u"dictionary"_s).ColumnNames(),
              (QStringList{u"Word"_s, u"Pronunciation"_s, u"WordPhrase"_s, u"Description"_s, u"Example"_s,
                           u"AutoID"_s}));
    EXPECT_EQ(Raised([&] { catalog.TableNamed(u"Other"_s); }), 3265);
    connection.Close();
    EXPECT_EQ(All(), std::vector<Entry>());
    EXPECT_EQ(AskRaw("PRAGMA page_size"), "16384");
    EXPECT_EQ(AskRaw("SELECT group_concat(name) FROM pragma_table_info('Dictionary')"),
              "Word,Pronunciation,WordPhrase,Description,Example,AutoID");
    EXPECT_EQ(Names(), QStringList{u"a.mdb"_s});
}

TEST_F(Catalog, TheFirstStepAloneIsNoTableToWalk)
{
    ADOX::Catalog catalog;
    catalog.Create(ConnectionTo());
    ADODB::Connection connection;
    connection.Open(ConnectionTo());
    ADODB::Recordset rows;
    EXPECT_EQ(Raised([&] { rows.Open(u"Dictionary"_s, connection, 1, 3, 512); }),
              RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(Raised([&] { rows.Open(u"Words"_s, connection, 1, 3, 512); }), RuntimeError::InvalidStatement);
}

TEST_F(Catalog, NothingIsOverwritten)
{
    CreateWith({u"a"_s});
    EXPECT_EQ(Raised([&] { Create(); }), RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(All().size(), 1U);
    ADOX::Catalog catalog;
    EXPECT_EQ(Raised([&] { catalog.Create(ConnectionTo(u"b.mdb"_s) + u"Jet OLEDB:Engine Type=4;"_s); }),
              RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(Raised([&] { catalog.Create(ConnectionTo(u"no/b.mdb"_s)); }), RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(Raised([&] { catalog.Create(u"Data Source=Q:\\b.mdb;"_s); }), RuntimeError::PathNotFound);
    files::MarkReadOnly(QFileInfo(Host()).path());
    EXPECT_EQ(Raised([&] { catalog.Create(ConnectionTo(u"b.mdb"_s)); }), RuntimeError::CannotOpenDatabase);
    EXPECT_EQ(Names(), QStringList{u"a.mdb"_s});
}

TEST_F(Catalog, OtherShapesAreRefused)
{
    ADOX::Catalog catalog;
    catalog.Create(ConnectionTo());
    ADOX::Table table;
    table.Name = u"Dictionary"_s;
    table.AppendColumn(u"Word"_s, ADODB::adVarWChar, 100);
    EXPECT_EQ(Raised([&] { catalog.AppendTable(table); }), RuntimeError::InvalidStatement);
    ADOX::Column column;
    EXPECT_EQ(Raised([&] { column.SetProperty(u"AutoIncrement"_s, true); }), 3265);
    column.ParentCatalog = &catalog;
    EXPECT_EQ(Raised([&] { column.SetProperty(u"Colour"_s, true); }), 3265);
    EXPECT_EQ(Raised([&] { table.AppendKey({}, ADOX::adKeyPrimary); }), RuntimeError::InvalidStatement);
}

TEST_F(Catalog, RowsOfAnUnnumberedTableGetTheirNumbers)
{
    Create();
    RunRaw(
        "DROP TABLE Dictionary; CREATE TABLE Dictionary(Word TEXT NOT NULL COLLATE WORDMERE, Pronunciation "
        "TEXT, WordPhrase INTEGER, Description TEXT, Example TEXT); INSERT INTO Dictionary(Word) "
        "VALUES('b'), "
        "('a')");
    ADODB::Connection connection;
    connection.Open(ConnectionTo());
    ADOX::Catalog catalog;
    catalog.SetActiveConnection(connection);
    ADOX::Column column;
    column.Name = u"AutoID"_s;
    column.Type = ADODB::adInteger;
    column.ParentCatalog = &catalog;
    column.SetProperty(u"AutoIncrement"_s, true);
    ADOX::Table table = catalog.TableNamed(u"Dictionary"_s);
    table.AppendColumn(column);
    table.AppendKey({u"WordID"_s, ADOX::adKeyPrimary, u"Dictionary"_s, {u"Word"_s, u"AutoID"_s}});
    connection.Close();
    EXPECT_EQ(All(), (std::vector<Entry>{{u"a"_s, 2}, {u"b"_s, 1}}));
}

TEST(ConnectionString, PathIsReadInAllForms)
{
    using data::ParseConnectionString;
    EXPECT_EQ(ParseConnectionString(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\a b.mdb;"_s).path,
              u"C:\\a b.mdb"_s);
    EXPECT_EQ(ParseConnectionString(u"Provider=x;Data Source=C:\\a.mdb"_s).path, u"C:\\a.mdb"_s);
    EXPECT_EQ(ParseConnectionString(u"data source=C:\\a;b.mdb;"_s).path, u"C:\\a;b.mdb"_s);
    EXPECT_EQ(ParseConnectionString(u"Data Source=C:\\a=b.mdb;Provider=x;"_s).path, u"C:\\a=b.mdb"_s);
    const auto create = ParseConnectionString(u"Provider=x;Data Source=C:\\a.mdb;Jet OLEDB:Engine Type=5;"_s);
    EXPECT_EQ(create.path, u"C:\\a.mdb"_s);
    EXPECT_EQ(create.engineType, u"5"_s);
    EXPECT_EQ(ParseConnectionString(u"Provider=x;"_s).path, QString());
}

} // namespace
