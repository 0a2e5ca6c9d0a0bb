#include "platform/data/query_plan.h"

#include "platform/data/index_scan.h"
#include "platform/data/table_scan.h"
#include "platform/text/fold.h"

#include <QString>
#include <algorithm>
#include <optional>

namespace data
{

namespace
{

bool IsInIndex(const RowTest &test) { return test.column() == Word || test.IsNumeric(); }

/// One row by its number.
class RowPlan : public QueryPlan
{
public:
    RowPlan(RowTests tests, int autoID, RowReader &row)
        : m_tests(std::move(tests)), m_autoID(autoID), m_row(row)
    {
    }

    bool Next(Hit &hit) override
    {
        if (std::exchange(m_done, true) || !m_row.Load(m_autoID) || !PassesAll(m_tests, m_row))
            return false;
        hit = Hit();
        hit.autoID = m_autoID;
        return true;
    }
    void Restart() override { m_done = false; }

private:
    RowTests m_tests;
    int m_autoID;
    RowReader &m_row;
    bool m_done = false;
};

/// The index, whole or the range of the headwords with a common beginning. The index answers what it
/// can; only what it cannot costs a look-up of the row.
class IndexPlan : public QueryPlan
{
public:
    /// `range` is the number of the key test whose range is walked; -1 for the whole index.
    IndexPlan(RowTests keyTests, int range, RowTests rowTests, Session &session, RowReader &row)
        : m_scan(session, std::move(keyTests), range, row), m_rowTests(std::move(rowTests)), m_row(row)
    {
    }

    /// Lets the plan look up no more rows than this; behind them it says that there is no further one.
    void LimitLookUps(int most) { m_mostLookUps = most; }
    /// Whether it stopped at that limit, behind the row of Place.
    bool IsAtLimit() const { return m_isAtLimit; }
    const IndexScan::Entry &Place() const { return m_scan.Current(); }

    bool Next(Hit &hit) override
    {
        while (!m_isAtLimit && m_scan.Next()) {
            if (PassesRow()) {
                const IndexScan::Entry &entry = m_scan.Current();
                hit.autoID = entry.autoID;
                hit.hasKey = true;
                hit.word = entry.word;
                hit.hasWordPhrase = entry.hasWordPhrase;
                hit.wordPhrase = entry.wordPhrase;
                return true;
            }
            m_isAtLimit = m_lookUps == m_mostLookUps;
        }
        return false;
    }

    void Restart() override
    {
        m_scan.Restart();
        m_lookUps = 0;
        m_isAtLimit = false;
    }

private:
    bool PassesRow()
    {
        if (m_rowTests.empty())
            return true;
        ++m_lookUps;
        return m_row.Load(m_scan.Current().autoID) && PassesAll(m_rowTests, m_row);
    }

    IndexScan m_scan;
    RowTests m_rowTests;
    RowReader &m_row;
    int m_lookUps = 0;
    int m_mostLookUps = -1;
    bool m_isAtLimit = false;
};

/// The table in the order of its numbers.
class TablePlan : public QueryPlan
{
public:
    TablePlan(RowTests tests, Session &session, RowReader &row) : m_scan(session, std::move(tests), row) {}

    bool Next(Hit &hit) override
    {
        if (!m_scan.Next())
            return false;
        hit = Hit();
        hit.autoID = m_scan.AutoID();
        return true;
    }
    void Restart() override { m_scan.Restart(); }

private:
    TableScan m_scan;
};

/// The rows of a table scan in the order of the index. Only keys are held, and of those no more than
/// the statement asks for.
class SortedPlan : public QueryPlan
{
public:
    SortedPlan(RowTests tests, int top, Session &session, RowReader &row)
        : m_scan(session, std::move(tests), row), m_row(row),
          m_limit(top < 0 ? std::nullopt : std::optional(std::size_t(top)))
    {
    }

    /// Leaves out the rows up to this key, from the first on; for a plan that has not begun.
    void BeginBehind(std::string_view word, qint64 autoID) { m_behind = {std::string(word), autoID}; }

    bool Next(Hit &hit) override
    {
        if (!m_collected)
            Collect();
        // A row that has gone since it was collected is left out.
        while (m_next < m_keys.size()) {
            const qint64 autoID = m_keys[m_next++].autoID;
            if (!m_row.Load(autoID))
                continue;
            hit = Hit();
            hit.autoID = autoID;
            return true;
        }
        return false;
    }

    void Restart() override { m_next = 0; }

private:
    struct Key {
        std::string word;
        qint64 autoID = kBeforeAllIDs;
    };

    static bool Before(const Key &left, const Key &right)
    {
        return IsBefore(left.word, left.autoID, right.word, right.autoID);
    }
    static bool IsBefore(std::string_view leftWord, qint64 leftID, std::string_view rightWord, qint64 rightID)
    {
        const int order = text::CompareUtf8(leftWord, rightWord);
        return order != 0 ? order < 0 : leftID < rightID;
    }

    bool IsWanted() const
    {
        const std::string &word = m_scan.Word();
        if (!IsBefore(m_behind.word, m_behind.autoID, word, m_scan.AutoID()))
            return false;
        return !m_limit || m_keys.size() < *m_limit ||
               (!m_keys.empty() &&
                IsBefore(word, m_scan.AutoID(), m_keys.front().word, m_keys.front().autoID));
    }

    void Collect()
    {
        // A heap with the last key on top, so that with a limit only the first keys are kept.
        while (m_scan.Next()) {
            if (!IsWanted())
                continue;
            if (m_limit && m_keys.size() == *m_limit) {
                std::ranges::pop_heap(m_keys, Before);
                m_keys.pop_back();
            }
            m_keys.push_back({std::string(m_scan.Word()), m_scan.AutoID()});
            std::ranges::push_heap(m_keys, Before);
        }
        std::ranges::sort_heap(m_keys, Before);
        m_collected = true;
    }

    TableScan m_scan;
    RowReader &m_row;
    std::optional<std::size_t> m_limit;
    Key m_behind;
    std::vector<Key> m_keys;
    std::size_t m_next = 0;
    bool m_collected = false;
};

/// Conditions on headword and texts, in the order of the index. The index is walked first: that gives
/// the first rows at once, and all of them where few headwords come into question or many rows pass.
/// Each row costs a look-up there, so where these come to nothing the rest is a scan of the table.
class MixedPlan : public QueryPlan
{
public:
    MixedPlan(RowTests keyTests, int range, RowTests rowTests, int top, Session &session, RowReader &row)
        : m_allTests(keyTests), m_top(top), m_session(session), m_row(row),
          m_walk(std::move(keyTests), range, rowTests, session, row)
    {
        std::ranges::copy(rowTests, std::back_inserter(m_allTests));
        m_walk.LimitLookUps(kMostLookUps);
    }

    bool Next(Hit &hit) override
    {
        if (!m_rest) {
            if (m_walk.Next(hit))
                return true;
            if (!m_walk.IsAtLimit())
                return false;
            m_rest = std::make_unique<SortedPlan>(m_allTests, m_top, m_session, m_row);
            m_rest->BeginBehind(m_walk.Place().word, m_walk.Place().autoID);
        }
        return m_rest->Next(hit);
    }

    void Restart() override
    {
        m_walk.Restart();
        m_rest.reset();
    }

private:
    /// They cost about a tenth of a scan of a large table.
    static constexpr int kMostLookUps = 4096;

    RowTests m_allTests;
    int m_top;
    Session &m_session;
    RowReader &m_row;
    IndexPlan m_walk;
    std::unique_ptr<SortedPlan> m_rest;
};

/// The test whose range of the index is the narrowest at a guess: an exact headword, else the longest
/// beginning; -1 where there is none.
int NarrowestRange(const RowTests &tests)
{
    int best = -1;
    for (std::size_t i = 0; i < tests.size(); ++i) {
        const RowTest &test = tests[i];
        if (test.column() != Word || (test.Prefix().empty() && !test.IsExact()))
            continue;
        if (test.IsExact())
            return static_cast<int>(i);
        if (best < 0 || test.Prefix().size() > tests[static_cast<std::size_t>(best)].Prefix().size())
            best = static_cast<int>(i);
    }
    return best;
}

} // namespace

std::unique_ptr<QueryPlan> PlanFor(const Statement &statement, Session &session, RowReader &row)
{
    RowTests tests;
    for (const Condition &condition : statement.conditions)
        tests.emplace_back(condition);

    const auto numbered = std::ranges::find(tests, AutoID, &RowTest::column);
    if (numbered != tests.end()) {
        const int autoID = numbered->Number();
        return std::make_unique<RowPlan>(std::move(tests), autoID, row);
    }
    const bool ordered = statement.order == Statement::Order::Word;
    RowTests keyTests;
    RowTests rowTests;
    for (const RowTest &test : tests)
        (IsInIndex(test) ? keyTests : rowTests).push_back(test);
    const int range = NarrowestRange(keyTests);
    if (!ordered && range < 0 && (tests.empty() || !rowTests.empty()))
        return std::make_unique<TablePlan>(std::move(tests), session, row);
    if (!ordered || rowTests.empty())
        return std::make_unique<IndexPlan>(std::move(keyTests), range, std::move(rowTests), session, row);
    return std::make_unique<MixedPlan>(std::move(keyTests), range, std::move(rowTests), statement.top,
                                       session, row);
}

} // namespace data
