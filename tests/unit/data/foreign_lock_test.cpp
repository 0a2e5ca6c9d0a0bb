// Another process keeps the dictionary to itself while a search is in progress.

#include "unit/data/dictionary_fixture.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace
{

constexpr int kRows = 3000;
constexpr int kLongestWait = 2000;

/// A way in which rows are found, and a condition that leads to it and that all rows pass.
struct Plan {
    const char *name;
    const char16_t *condition;
};

void PrintTo(const Plan &plan, std::ostream *out) { *out << plan.name; }

class ForeignLock : public DictionaryTest, public testing::WithParamInterface<Plan>
{
protected:
    ForeignLock()
    {
        Create();
        const auto view = OpenBulk();
        for (int i = 1; i <= kRows; ++i) {
            view->rows.AddNew();
            view->Set("Word", u"word%1"_s.arg(i, 5, 10, QChar(u'0')));
            view->Set("Description", u"meaning "_s.repeated(20));
            view->rows.Update();
            m_all.push_back(view->Current());
        }
        view->rows.Close();
    }

    static QString Statement()
    {
        return u"SELECT TOP 32767 * FROM Dictionary WHERE %1"_s.arg(QStringView(GetParam().condition));
    }

    std::vector<Entry> m_all;
};

TEST_P(ForeignLock, IsWaitedForBetweenTwoRows)
{
    OtherProcess other([this] { return LockExclusively(); });
    ADODB::Connection connection;
    connection.Open(ConnectionTo());
    const auto rows = connection.Execute(Statement());
    std::vector<Entry> found;
    const auto take = [&] {
        found.push_back(
            {rows->Fields().Item(u"Word"_s).Text(), rows->Fields().Item(u"AutoID"_s).Value().toInt()});
    };
    for (int i = 0; i < kRows / 2; ++i, rows->MoveNext())
        take();
    take();
    ADODB::ReleaseReads();
    ASSERT_TRUE(other.Begin());
    QElapsedTimer timer;
    timer.start();
    // What a row needs beyond its key is read when it is asked for.
    EXPECT_EQ(Raised([&] {
                  rows->MoveNext();
                  rows->Fields().Item(u"Description"_s).Text();
              }),
              RuntimeError::CannotOpenDatabase);
    EXPECT_GE(timer.elapsed(), kLongestWait - 100);
    EXPECT_LT(timer.elapsed(), 2 * kLongestWait);
    other.LetGo();
    // The row in question is the next one, no other, when the lock has gone.
    if (rows->Fields().Item(u"AutoID"_s).Value().toInt() == found.back().autoID)
        rows->MoveNext();
    for (; !rows->Eof(); rows->MoveNext())
        take();
    EXPECT_EQ(found, m_all);
}

TEST_P(ForeignLock, ThatGoesSoonIsNotNoticed)
{
    OtherProcess other([this] { return LockExclusively(); });
    ADODB::Connection connection;
    connection.Open(ConnectionTo());
    const auto rows = connection.Execute(Statement());
    ADODB::ReleaseReads();
    ASSERT_TRUE(other.Begin());
    other.LetGo(kLongestWait / 10);
    EXPECT_EQ(Rest(*rows), m_all);
}

TEST_P(ForeignLock, IsWaitedForAtTheBeginning)
{
    OtherProcess other([this] { return LockExclusively(); });
    ASSERT_TRUE(other.Begin());
    QElapsedTimer timer;
    timer.start();
    const auto search = [this] { Select(Statement()); };
    EXPECT_EQ(Raised(search), RuntimeError::CannotOpenDatabase);
    EXPECT_GE(timer.elapsed(), kLongestWait - 100);
    EXPECT_LT(timer.elapsed(), 2 * kLongestWait);
    other.LetGo();
    EXPECT_EQ(Raised(search), 0);
}

constexpr Plan kPlans[]{
    {"RangeOfTheIndex", u"Word Like 'word%' ORDER BY Word ASC"},
    {"WholeIndex", u"Word Like '%ord%' ORDER BY Word ASC"},
    {"Table", u"Description Like '%meaning%'"},
    {"Mixed", u"Word Like '%ord%' AND Description Like '%g%' ORDER BY Word ASC"},
};
INSTANTIATE_TEST_SUITE_P(EachPlan, ForeignLock, testing::ValuesIn(kPlans),
                         [](const auto &plan) { return std::string(plan.param.name); });

} // namespace
