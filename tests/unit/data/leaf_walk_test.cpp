#include "platform/data/index_walk.h"
#include "platform/data/leaf_walk.h"
#include "unit/data/dictionary_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace
{

class LeafWalk : public DictionaryTest
{
protected:
    /// So many rows that they fill some pages; the one of this number is longer than a page.
    void Fill(int count, int longRow = 0) const
    {
        Create();
        const auto view = OpenBulk();
        for (int i = 1; i <= count; ++i) {
            view->rows.AddNew();
            view->Set("Word", u"word%1"_s.arg(i));
            view->Set("Description", i == longRow ? u"x"_s.repeated(40000) : u"meaning(%1)"_s.arg(i));
            view->rows.Update();
        }
        view->rows.Close();
    }

    std::unique_ptr<data::Session> Open() const
    {
        return std::make_unique<data::Session>(Host(), Drive(), data::Session::Access::Existing);
    }
};

TEST_F(LeafWalk, ComesToEachRowOnItsPage)
{
    constexpr int count = 5000;
    Fill(count);
    const auto session = Open();
    data::LeafWalk walk(*session);
    ASSERT_TRUE(walk.Seek(data::kBeforeAllIDs));
    int pages = 1;
    for (int i = 1; i <= count; ++i) {
        while (walk.LastID() < i) {
            ASSERT_TRUE(walk.Next());
            ++pages;
        }
        ASSERT_NE(walk.Bytes().find("meaning(" + std::to_string(i) + ")"), std::string_view::npos) << i;
    }
    EXPECT_GT(pages, 5);
    EXPECT_EQ(walk.LastID(), data::kBehindAllIDs);
    EXPECT_FALSE(walk.Next());
    EXPECT_TRUE(walk.IsAtEnd());
}

TEST_F(LeafWalk, SeeksThePageBehindANumber)
{
    Fill(5000);
    const auto session = Open();
    data::LeafWalk walk(*session);
    for (const int number : {1, 700, 2500, 5000}) {
        ASSERT_TRUE(walk.Seek(number - 1));
        EXPECT_GE(walk.LastID(), number);
        EXPECT_NE(walk.Bytes().find("meaning(" + std::to_string(number) + ")"), std::string_view::npos);
    }
    EXPECT_TRUE(walk.Seek(data::kBehindAllIDs - 1));
    EXPECT_FALSE(walk.Next());
}

TEST_F(LeafWalk, TellsPagesWithRowsThatRunOn)
{
    Fill(3000, 1500);
    const auto session = Open();
    data::LeafWalk walk(*session);
    ASSERT_TRUE(walk.Seek(1499));
    EXPECT_TRUE(walk.Bytes().empty());
    ASSERT_TRUE(walk.Seek(0));
    EXPECT_FALSE(walk.Bytes().empty());
}

TEST_F(LeafWalk, LeavesWhatIsBeingWrittenAlone)
{
    Fill(10);
    const auto session = Open();
    data::LeafWalk walk(*session);
    session->Write([&] { EXPECT_FALSE(walk.Seek(0)); });
    EXPECT_TRUE(walk.Seek(0));
}

TEST_F(LeafWalk, StopsAtPagesThatMakeNoSense)
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
    data::LeafWalk walk(*session);
    bool there = walk.Seek(0);
    for (int pages = 0; there; there = walk.Next())
        ASSERT_LT(++pages, 1000);
    EXPECT_FALSE(walk.IsAtEnd());
    // A search over them is told so by a failure, not by rows that lack.
    EXPECT_EQ(Raised([&] { Select(u"SELECT TOP 9 * FROM Dictionary WHERE Description Like '%absent%'"_s); }),
              RuntimeError::CannotOpenDatabase);
}

} // namespace
