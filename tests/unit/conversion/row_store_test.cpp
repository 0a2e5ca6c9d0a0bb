#include "conversion/pure/row_store.h"

#include "core/pure/dictionary_file.h"
#include "platform/files/drive_path.h"
#include "unit/files/full_disk.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

class Rows : public testing::Test
{
protected:
    Rows() { CreateDictionaryFile(m_path); }

    struct Row {
        QVariant word, pronunciation, wordPhrase, description, example;
        bool operator==(const Row &) const = default;
    };
    std::vector<Row> Stored() const
    {
        ADODB::Connection connection;
        connection.Open(ViewConnectionString(m_path));
        ADODB::Recordset table;
        OpenTableByIndex(connection, table);
        const ADODB::Fields fields = table.Fields();
        std::vector<Row> rows;
        for (; !table.Eof(); table.MoveNext())
            rows.push_back({fields.Item(u"Word"_s).Value(), fields.Item(u"Pronunciation"_s).Value(),
                            fields.Item(u"WordPhrase"_s).Value(), fields.Item(u"Description"_s).Value(),
                            fields.Item(u"Example"_s).Value()});
        return rows;
    }

    QTemporaryDir m_folder;
    QString m_host = m_folder.filePath(u"rows.mdb"_s);
    QString m_path = files::DrivePath(m_host);
};

TEST_F(Rows, AreStoredWithEmptyTextsRatherThanNulls)
{
    RowStore store;
    store.Open(m_path);
    store.StoreRecord({u"New York"_s, {}, {}, {}});
    store.StoreRecord({{}, u"p"_s, u" d "_s, u" e "_s});
    store.Close();
    store.Close();
    EXPECT_EQ(Stored(), (std::vector<Row>{{u""_s, u"p"_s, 1, u" d "_s, u" e "_s},
                                          {u"New York"_s, u""_s, 2, u""_s, u""_s}}));
}

TEST_F(Rows, StayWhereNothingWasClosed)
{
    {
        RowStore store;
        store.Open(m_path);
        store.StoreRecord({u"a"_s, {}, {}, {}});
    }
    EXPECT_EQ(Stored().size(), 1U);
}

TEST_F(Rows, StayWhenTheDiskIsFull)
{
    RowStore store;
    store.Open(m_path);
    for (int i = 0; i < 100; ++i)
        store.StoreRecord({u"kept %1"_s.arg(i), {}, {}, {}});
    ADODB::CommitGroups();
    bool failed = false;
    {
        const FullDisk full(static_cast<rlim_t>(QFileInfo(m_host).size()) + 40'000);
        try {
            for (int i = 0; i < 100'000; ++i)
                store.StoreRecord({u"more %1"_s.arg(i), {}, QString(500, u'd'), {}});
        } catch (const RuntimeError &) {
            failed = true;
        }
        try {
            store.Close();
        } catch (const RuntimeError &) {
            failed = true;
        }
    }
    EXPECT_TRUE(failed);
    const std::vector<Row> rows = Stored();
    ASSERT_GE(rows.size(), 100U);
    EXPECT_EQ(rows.front().word, u"kept 0"_s);
}

} // namespace
