#include "core/pure/dictionary_file.h"

#include "platform/data/adox.h"
#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

class NewDictionary : public testing::Test
{
protected:
    NewDictionary() { CreateDictionaryFile(m_path); }

    void SetUp() override
    {
        m_connection.Open(ViewConnectionString(m_path));
        OpenTableByIndex(m_connection, m_table);
    }

    void Add(const QString &word)
    {
        m_table.AddNew();
        m_table.Fields().Item(u"Word"_s).SetValue(word);
        m_table.Fields().Item(u"WordPhrase"_s).SetValue(1);
        m_table.Update();
    }
    /// Headword and number of the current row.
    std::pair<QString, int> Row()
    {
        return {m_table.Fields().Item(u"Word"_s).Text(), m_table.Fields().Item(u"AutoID"_s).Value().toInt()};
    }
    std::vector<std::pair<QString, int>> Rows()
    {
        std::vector<std::pair<QString, int>> rows;
        for (m_table.MoveFirst(); !m_table.Eof(); m_table.MoveNext())
            rows.push_back(Row());
        return rows;
    }

    using RowList = std::vector<std::pair<QString, int>>;

    QTemporaryDir m_folder;
    QString m_path = files::DrivePath(m_folder.filePath(u"new.mdb"_s));
    ADODB::Connection m_connection;
    ADODB::Recordset m_table;
};

} // namespace

TEST_F(NewDictionary, HasItsColumnsInOrderAndNoRows)
{
    ADOX::Catalog catalog;
    catalog.SetActiveConnection(m_connection);
    EXPECT_EQ(catalog.TableNamed(u"Dictionary"_s).ColumnNames(),
              QStringList({u"Word"_s, u"Pronunciation"_s, u"WordPhrase"_s, u"Description"_s, u"Example"_s,
                           u"AutoID"_s}));
    EXPECT_TRUE(m_table.Eof());
    EXPECT_TRUE(m_table.Bof());
}

TEST_F(NewDictionary, IsNotMadeOverAnother)
{
    Add(u"kept"_s);
    EXPECT_THROW(CreateDictionaryFile(m_path), RuntimeError);
    EXPECT_EQ(Rows(), RowList({{u"kept"_s, 1}}));
}

TEST_F(NewDictionary, IsThereWholeOrNotAtAll)
{
    const QString other = files::DrivePath(m_folder.filePath(u"other.mdb"_s));
    const auto names = [this] { return QDir(m_folder.path()).entryList(QDir::Files); };
    for (const QString &operation : {u"Create"_s, u"Append"_s, u"Open"_s, u"rename"_s}) {
        faults::FailNext(operation, RuntimeError::DiskFull);
        EXPECT_THROW(CreateDictionaryFile(other), RuntimeError) << operation.toStdString();
        EXPECT_EQ(names(), QStringList(u"new.mdb"_s)) << operation.toStdString();
        faults::Clear();
    }
    CreateDictionaryFile(other);
    EXPECT_EQ(names(), (QStringList{u"new.mdb"_s, u"other.mdb"_s}));
}

TEST_F(NewDictionary, TakesAwayItsOwnLeftOversOnly)
{
    const QString other = files::DrivePath(m_folder.filePath(u"other.mdb"_s));
    const QString beside = m_folder.filePath(u"other.mdb.unfinished"_s);
    const auto put = [&beside](const QByteArray &content) {
        QFile file(beside);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    ASSERT_TRUE(put("somebody's"));
    EXPECT_THROW(CreateDictionaryFile(other), RuntimeError);
    EXPECT_TRUE(QFile::exists(beside));
    // Nor a dictionary of somebody's under that name, and be it of one row.
    Add(u"row"_s);
    m_table.Close();
    m_connection.Close();
    const QString full = m_folder.filePath(u"new.mdb"_s);
    ASSERT_TRUE(QFile::remove(beside) && QFile::copy(full, beside));
    EXPECT_THROW(CreateDictionaryFile(other), RuntimeError);
    EXPECT_TRUE(QFile::exists(beside));
    // What a making leaves has no row, or nothing at all.
    ASSERT_TRUE(QFile::remove(beside));
    CreateDictionaryFile(files::DrivePath(beside));
    for (const bool isMade : {true, false}) {
        if (!isMade) {
            ASSERT_TRUE(put(QByteArray()));
        }
        CreateDictionaryFile(other);
        EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), (QStringList{u"new.mdb"_s, u"other.mdb"_s}));
        QFile::remove(m_folder.filePath(u"other.mdb"_s));
    }
    // The journal of a file that was deleted is none of the new one's.
    const auto journal = [this] { return m_folder.filePath(u"other.mdb-journal"_s); };
    QFile stale(journal());
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly) && stale.write("stale") == 5);
    stale.close();
    CreateDictionaryFile(other);
    EXPECT_FALSE(QFile::exists(journal()));
}

TEST_F(NewDictionary, OrdersEqualHeadwordsByNumber)
{
    for (const QString &word : {u"same"_s, u"other"_s, u"same"_s, u"Same"_s})
        Add(word);
    EXPECT_EQ(Rows(), RowList({{u"other"_s, 2}, {u"same"_s, 1}, {u"same"_s, 3}, {u"Same"_s, 4}}));
}

TEST_F(NewDictionary, FindsAKeyOnlyAsItIs)
{
    for (const QString &word : {u"bee"_s, u"bee"_s, u"cow"_s})
        Add(word);
    m_table.Seek(u"bee"_s, 2, ADODB::adSeekFirstEQ);
    EXPECT_EQ(Row(), std::pair(u"bee"_s, 2));
    m_table.Delete();
    m_table.Seek(u"bee"_s, 2, ADODB::adSeekFirstEQ);
    EXPECT_TRUE(m_table.Eof()) << "a pair that was deleted";
    m_table.Seek(u"bee"_s, 3, ADODB::adSeekFirstEQ);
    EXPECT_TRUE(m_table.Eof()) << "the number of another headword";
}

TEST_F(NewDictionary, FindsThePlaceBeforeAKey)
{
    for (const QString &word : {u"bee"_s, u"cow"_s})
        Add(word);
    m_table.Seek(u"ant"_s, 0, ADODB::adSeekBeforeEQ);
    EXPECT_TRUE(m_table.Eof()) << "nothing stands before the first row";
    m_table.Seek(u"cow"_s, 0, ADODB::adSeekBeforeEQ);
    EXPECT_EQ(Row(), std::pair(u"bee"_s, 1));
    m_table.Seek(u"cow"_s, 2, ADODB::adSeekBeforeEQ);
    EXPECT_EQ(Row(), std::pair(u"cow"_s, 2)) << "a key that is there";
    m_table.Seek(u"zoo"_s, 0, ADODB::adSeekBeforeEQ);
    EXPECT_EQ(Row(), std::pair(u"cow"_s, 2)) << "behind the last row";
}

TEST(DictionaryPath, DoesNotCountItsBlanks)
{
    const QTemporaryDir folder;
    const QString hostPath = folder.filePath(u"a b.mdb"_s);
    CreateDictionaryFile(u" "_s + files::DrivePath(hostPath) + u" \u3000"_s);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(u"a b.mdb"_s));
}
