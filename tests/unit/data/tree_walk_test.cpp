#include "platform/data/index_walk.h"
#include "platform/data/stored_row.h"
#include "platform/data/tree_walk.h"
#include "unit/data/dictionary_fixture.h"

#include <QFile>
#include <map>
#include <random>

using namespace Qt::StringLiterals;
using data::StoredPage;
using Tree = data::TreeWalk::Tree;

namespace
{

class TreeWalk : public DictionaryTest
{
protected:
    /// So many rows that they fill some pages; the one of this number is longer than a page.
    void Fill(int count, int longRow = 0) const
    {
        Create();
        const auto view = OpenBulk();
        for (int i = 1; i <= count; ++i) {
            view->rows.AddNew();
            view->Set("Word", WordOf(i));
            view->Set("WordPhrase", i % 3 == 0 ? QVariant() : QVariant(i % 3));
            view->Set("Description", i == longRow ? u"x"_s.repeated(40000) : u"meaning(%1)"_s.arg(i));
            view->rows.Update();
        }
        view->rows.Close();
    }

    /// Headwords in the order of the numbers.
    static QString WordOf(int number)
    {
        return u"a rather long headword %1"_s.arg(number, 6, 10, QChar(u'0'));
    }

    std::unique_ptr<data::Session> Open() const
    {
        return std::make_unique<data::Session>(Host(), Drive(), data::Session::Access::Existing);
    }

    /// Before the first row of either tree.
    static std::optional<bool> All(const StoredPage::Cell & /*cell*/) { return true; }

    /// Behind the row of this number, in either tree.
    static data::TreeWalk::IsBehind Behind(Tree tree, int number)
    {
        return [tree, number](const StoredPage::Cell &cell) -> std::optional<bool> {
            data::StoredRow row;
            if (tree == Tree::Table)
                return cell.number > number;
            return row.ReadEntry(cell) ? std::optional(row.Number(data::AutoID) > number) : std::nullopt;
        };
    }

    /// The numbers of the rows from the stop on, in their order.
    static std::vector<qint64> Numbers(data::TreeWalk &walk, Tree tree)
    {
        std::vector<qint64> numbers;
        StoredPage::Cell cell;
        data::StoredRow row;
        do {
            for (int i = walk.FirstCell(); i < walk.EndCell(); ++i) {
                EXPECT_TRUE(walk.Page().CellAt(i, cell));
                EXPECT_TRUE(tree == Tree::Table ? row.ReadRow(cell) : row.ReadEntry(cell));
                numbers.push_back(row.Number(data::AutoID));
                EXPECT_EQ(row.Text(data::Word), WordOf(static_cast<int>(numbers.back())).toStdString());
                EXPECT_EQ(row.IsNull(data::WordPhrase), numbers.back() % 3 == 0);
                EXPECT_EQ(row.Number(data::WordPhrase), numbers.back() % 3);
            }
        } while (walk.Next());
        return numbers;
    }

    static std::vector<qint64> Rising(qint64 first, qint64 last)
    {
        std::vector<qint64> numbers;
        for (qint64 number = first; number <= last; ++number)
            numbers.push_back(number);
        return numbers;
    }
};

constexpr std::array kTrees{Tree::Table, Tree::Index};

// In an index every second stop is one cell of an inner page.
TEST_F(TreeWalk, ComesToEachRowOnce)
{
    constexpr int count = 5000;
    Fill(count);
    const auto session = Open();
    for (const Tree tree : kTrees) {
        data::TreeWalk walk(*session, tree);
        std::map<bool, int> stops;
        for (bool there = walk.Seek(All); there; there = walk.Next())
            ++stops[walk.Page().IsLeaf()];
        EXPECT_TRUE(walk.IsAtEnd());
        EXPECT_GT(stops[true], 5);
        EXPECT_EQ(stops[false], tree == Tree::Table ? 0 : stops[true] - 1);
        ASSERT_TRUE(walk.Seek(All));
        EXPECT_EQ(Numbers(walk, tree), Rising(1, count));
        EXPECT_FALSE(walk.Next()) << "the end stays the end";
    }
}

TEST_F(TreeWalk, SeeksThePlaceBehindARow)
{
    constexpr int count = 3000;
    Fill(count);
    const auto session = Open();
    for (const Tree tree : kTrees) {
        data::TreeWalk walk(*session, tree);
        for (int number = 0; number <= count; number += 7) {
            ASSERT_TRUE(walk.Seek(Behind(tree, number)));
            ASSERT_EQ(Numbers(walk, tree), Rising(number + 1, count)) << number;
        }
    }
}

TEST_F(TreeWalk, WalksTreesOfOnePageAndOfNoRow)
{
    Create();
    const auto session = Open();
    for (const Tree tree : kTrees) {
        data::TreeWalk walk(*session, tree);
        ASSERT_TRUE(walk.Seek(All));
        EXPECT_TRUE(Numbers(walk, tree).empty());
        EXPECT_TRUE(walk.IsAtEnd());
    }
}

TEST_F(TreeWalk, TellsRowsThatRunOn)
{
    constexpr int longRow = 1500;
    Fill(3000, longRow);
    const auto session = Open();
    data::TreeWalk walk(*session, Tree::Table);
    ASSERT_TRUE(walk.Seek(Behind(Tree::Table, longRow - 1)));
    StoredPage::Cell cell;
    ASSERT_TRUE(walk.Page().CellAt(walk.FirstCell(), cell));
    EXPECT_EQ(cell.number, longRow);
    EXPECT_TRUE(cell.runsOn);
    EXPECT_FALSE(data::StoredRow().ReadRow(cell));
    ASSERT_TRUE(walk.Seek(All));
    ASSERT_TRUE(walk.Page().CellAt(walk.FirstCell(), cell));
    EXPECT_FALSE(cell.runsOn);
}

TEST_F(TreeWalk, LeavesWhatIsBeingWrittenAlone)
{
    Fill(10);
    const auto session = Open();
    data::TreeWalk walk(*session, Tree::Table);
    ASSERT_TRUE(walk.Seek(All));
    session->Write([&] {
        EXPECT_FALSE(walk.Seek(All));
        EXPECT_FALSE(walk.StillStands());
    });
    EXPECT_TRUE(walk.Seek(All));
}

TEST_F(TreeWalk, StandsUntilSomebodyWrites)
{
    Fill(1000);
    const auto session = Open();
    data::TreeWalk walk(*session, Tree::Index);
    ASSERT_TRUE(walk.Seek(Behind(Tree::Index, 500)));
    data::Session::ReleaseAllReads();
    EXPECT_TRUE(walk.StillStands());
    EXPECT_EQ(Numbers(walk, Tree::Index), Rising(501, 1000));
    data::Session::ReleaseAllReads();
    OpenTable()->Add(u"new"_s);
    EXPECT_FALSE(walk.StillStands());
}

TEST_F(TreeWalk, StopsAtPagesThatMakeNoSense)
{
    Fill(5000);
    // All pages behind the first quarter lose their first bytes.
    QFile file(Host());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    for (qint64 at = file.size() / data::kPageSize / 4; at < file.size() / data::kPageSize; ++at) {
        file.seek(at * data::kPageSize);
        file.write(QByteArray(8, '\xFF'));
    }
    file.close();
    const auto session = Open();
    for (const Tree tree : kTrees) {
        data::TreeWalk walk(*session, tree);
        bool there = walk.Seek(All);
        for (int stops = 0; there; there = walk.Next())
            ASSERT_LT(++stops, 1000);
        EXPECT_FALSE(walk.IsAtEnd());
    }
    // A search over them is told so by a failure, not by rows that lack.
    for (const QString &condition : {u"Description Like '%absent%'"_s, u"Word Like '%absent%'"_s})
        EXPECT_EQ(Raised([&] { Select(u"SELECT TOP 9 * FROM Dictionary WHERE "_s + condition); }),
                  RuntimeError::CannotOpenDatabase);
}

// Pages that lead to each other round in circles.
TEST_F(TreeWalk, EndsInCircles)
{
    Fill(5000);
    QFile file(Host());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const qint64 pages = file.size() / data::kPageSize;
    for (qint64 page = 1; page < pages; ++page) {
        file.seek(page * data::kPageSize);
        const char kind = file.peek(1).at(0);
        if (kind != static_cast<char>(StoredPage::Kind::InnerTable) &&
            kind != static_cast<char>(StoredPage::Kind::InnerIndex))
            continue;
        // The last child is the page itself.
        constexpr qint64 lastChildAt = 8;
        file.seek(page * data::kPageSize + lastChildAt);
        const auto number = static_cast<char>(page + 1);
        ASSERT_LT(page, 127);
        file.write(QByteArray(3, '\0') + number);
    }
    file.close();
    const auto session = Open();
    for (const Tree tree : kTrees) {
        data::TreeWalk walk(*session, tree);
        bool there = walk.Seek(All);
        for (qint64 stops = 0; there; there = walk.Next())
            ASSERT_LT(++stops, 3 * pages);
        EXPECT_FALSE(walk.IsAtEnd());
    }
}

TEST_F(TreeWalk, ReadsNumbersOfEachSize)
{
    Create();
    const std::vector<qint64> numbers{data::kBeforeAllIDs,
                                      -(qint64(1) << 40),
                                      -32769,
                                      -128,
                                      -1,
                                      0,
                                      1,
                                      2,
                                      127,
                                      128,
                                      32768,
                                      8388608,
                                      qint64(1) << 31,
                                      qint64(1) << 47,
                                      data::kBehindAllIDs};
    for (const qint64 number : numbers)
        RunRaw(u"INSERT INTO Dictionary(Word, WordPhrase, AutoID) VALUES('w', %1, %1)"_s.arg(number)
                   .toLatin1()
                   .constData());
    const auto session = Open();
    for (const Tree tree : kTrees) {
        data::TreeWalk walk(*session, tree);
        ASSERT_TRUE(walk.Seek(All));
        ASSERT_EQ(walk.EndCell(), static_cast<int>(numbers.size()));
        for (int i = 0; i < walk.EndCell(); ++i) {
            StoredPage::Cell cell;
            data::StoredRow row;
            ASSERT_TRUE(walk.Page().CellAt(i, cell));
            ASSERT_TRUE(tree == Tree::Table ? row.ReadRow(cell) : row.ReadEntry(cell));
            EXPECT_EQ(row.Number(data::AutoID), numbers[static_cast<std::size_t>(i)]);
            EXPECT_EQ(row.Number(data::WordPhrase), numbers[static_cast<std::size_t>(i)]);
            EXPECT_FALSE(row.IsNull(data::AutoID));
            EXPECT_TRUE(row.IsNull(data::Description));
        }
    }
}

// Whatever bytes a page has, nothing lies outside it.
TEST(StoredPage, StaysWithinItsBytes)
{
    constexpr std::array kinds{StoredPage::Kind::InnerIndex, StoredPage::Kind::InnerTable,
                               StoredPage::Kind::LeafIndex, StoredPage::Kind::LeafTable};
    std::mt19937 random(1);
    int read = 0;
    for (int round = 0; round < 400; ++round) {
        StoredPage page;
        // Small bytes make records that hold together for a while, great ones numbers without an end.
        const unsigned most = round % 2 == 0 ? 0x30 : 0xFF;
        std::generate_n(page.Buffer(), data::kPageSize,
                        [&] { return static_cast<unsigned char>(random() % (most + 1)); });
        page.Buffer()[0] = static_cast<unsigned char>(kinds.at(random() % kinds.size()));
        const auto isInside = [bytes = page.Bytes()](std::string_view text) {
            return text.empty() ||
                   (text.data() >= bytes.data() && text.data() + text.size() <= bytes.data() + bytes.size());
        };
        for (int i = 0; i < page.CellCount(); ++i) {
            StoredPage::Cell cell;
            if (!page.CellAt(i, cell))
                continue;
            ASSERT_TRUE(isInside(cell.record));
            data::StoredRow row;
            if (page.IsOfTable() ? !row.ReadRow(cell) : !row.ReadEntry(cell))
                continue;
            ++read;
            for (const data::Column column : {data::Word, data::Pronunciation, data::Description})
                ASSERT_TRUE(isInside(row.Text(column)));
            row.Number(data::WordPhrase);
        }
    }
    EXPECT_GT(read, 100);
}

} // namespace
