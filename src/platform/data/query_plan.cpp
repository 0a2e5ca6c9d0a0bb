#include "platform/data/query_plan.h"

#include "platform/data/index_walk.h"
#include "platform/data/row_test.h"
#include "platform/data/schema.h"
#include "platform/text/fold.h"

#include <QString>
#include <algorithm>
#include <optional>

namespace data
{

namespace
{

bool IsInIndex(const RowTest &test) { return test.column() == Word || test.IsNumeric(); }

bool PassesLoaded(const RowTest &test, const RowReader &row)
{
    if (row.IsNull(test.column()))
        return false;
    return test.IsNumeric() ? test.Passes(row.Number(test.column())) : test.Passes(row.Text(test.column()));
}

bool PassesLoaded(const RowTests &tests, const RowReader &row)
{
    return std::ranges::all_of(tests, [&row](const RowTest &test) { return PassesLoaded(test, row); });
}

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
        if (std::exchange(m_done, true) || !m_row.Load(m_autoID) || !PassesLoaded(m_tests, m_row))
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

/// The index, whole or the range of the headwords with a common beginning.
class IndexPlan : public QueryPlan
{
public:
    /// `range` is the number of the test whose range is walked; -1 for the whole index.
    IndexPlan(RowTests tests, int range, Session &session, RowReader &row)
        : m_tests(std::move(tests)), m_walk(session), m_row(row)
    {
        if (range < 0)
            return;
        const RowTest &bound = m_tests.at(static_cast<std::size_t>(range));
        m_prefix = bound.Prefix();
        m_exact = bound.IsExact();
        m_bounded = true;
        m_from = QString::fromStdU32String(m_prefix).toStdString();
    }

    bool Next(Hit &hit) override
    {
        if (m_state == State::Ended)
            return false;
        bool there = m_state == State::Begun ? m_walk.Next() : m_walk.SeekBehind(m_from, kBeforeAllIDs);
        m_state = State::Begun;
        for (; there; there = m_walk.Next()) {
            if (Passes()) {
                hit.autoID = m_walk.AutoID();
                hit.hasKey = true;
                hit.word = m_walk.Word();
                hit.hasWordPhrase = m_walk.HasWordPhrase();
                hit.wordPhrase = m_walk.WordPhrase();
                return true;
            }
            if (m_bounded && !IsInRange())
                break;
        }
        m_state = State::Ended;
        return false;
    }
    void Restart() override { m_state = State::Fresh; }

private:
    enum class State { Fresh, Begun, Ended };

    bool Passes()
    {
        // What the index holds comes first: the row itself costs a look-up.
        for (const RowTest &test : m_tests)
            if (IsInIndex(test) && !PassesKey(test))
                return false;
        for (const RowTest &test : m_tests)
            if (!IsInIndex(test) && !(m_row.Load(m_walk.AutoID()) && PassesLoaded(test, m_row)))
                return false;
        return true;
    }

    bool PassesKey(const RowTest &test) const
    {
        switch (test.column()) {
        case AutoID: return test.Passes(m_walk.AutoID());
        case WordPhrase: return m_walk.HasWordPhrase() && test.Passes(qint64(m_walk.WordPhrase()));
        default: return test.Passes(m_walk.Word());
        }
    }

    bool IsInRange()
    {
        text::FoldUtf8(m_walk.Word(), m_folded);
        return m_exact ? m_folded == m_prefix : m_folded.starts_with(m_prefix);
    }

    RowTests m_tests;
    IndexWalk m_walk;
    RowReader &m_row;
    State m_state = State::Fresh;
    bool m_bounded = false;
    bool m_exact = false;
    std::u32string m_prefix;
    std::u32string m_folded;
    std::string m_from;
};

/// The table in the order of its numbers. Only the columns that are tested are read of rows that fail.
class TablePlan : public QueryPlan
{
public:
    TablePlan(RowTests tests, Session &session) : m_tests(std::move(tests)), m_session(session)
    {
        m_sql = "SELECT AutoID";
        for (const RowTest &test : m_tests) {
            m_sql.append(", ");
            m_sql.append(ColumnName(test.column()).data());
        }
        m_sql.append(" FROM Dictionary NOT INDEXED WHERE AutoID > ?1 ORDER BY AutoID");
    }

    bool Next(Hit &hit) override
    {
        if (m_ended)
            return false;
        m_session.BeginRead();
        if (!m_open || m_generation != m_session.Generation())
            Begin();
        while (m_scan.Step()) {
            if (!Passes())
                continue;
            m_last = m_scan.Number(0);
            hit = Hit();
            hit.autoID = m_last;
            return true;
        }
        m_ended = true;
        return false;
    }

    void Restart() override
    {
        m_last = kBeforeAllIDs;
        m_open = false;
        m_ended = false;
    }

private:
    void Begin()
    {
        if (!m_scan)
            m_scan = m_session.Prepare(m_sql);
        m_scan.Reset();
        m_scan.BindNumber(1, m_last);
        m_open = true;
        m_generation = m_session.Generation();
    }

    bool Passes() const
    {
        int column = 0;
        for (const RowTest &test : m_tests) {
            ++column;
            if (m_scan.IsNull(column))
                return false;
            const bool passes =
                test.IsNumeric() ? test.Passes(m_scan.Number(column)) : test.Passes(m_scan.Text(column));
            if (!passes)
                return false;
        }
        return true;
    }

    RowTests m_tests;
    Session &m_session;
    std::string m_sql;
    Prepared m_scan;
    bool m_open = false;
    bool m_ended = false;
    qint64 m_last = kBeforeAllIDs;
    quint64 m_generation = 0;
};

/// The rows of another plan in the order of the index. Only keys are held, and of those no more than
/// the statement asks for.
class SortedPlan : public QueryPlan
{
public:
    SortedPlan(std::unique_ptr<QueryPlan> rows, int top, RowReader &row)
        : m_rows(std::move(rows)), m_row(row),
          m_limit(top < 0 ? std::nullopt : std::optional(std::size_t(top)))
    {
    }

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
        qint64 autoID;
    };

    static bool Before(const Key &left, const Key &right)
    {
        const int order = text::CompareUtf8(left.word, right.word);
        return order != 0 ? order < 0 : left.autoID < right.autoID;
    }

    void Collect()
    {
        // A heap with the last key on top, so that with a limit only the first keys are kept.
        Hit hit;
        while (m_rows->Next(hit)) {
            if (!m_row.Load(hit.autoID))
                continue;
            Key key{std::string(m_row.Text(Word)), hit.autoID};
            if (m_limit && m_keys.size() == *m_limit) {
                if (m_keys.empty() || !Before(key, m_keys.front()))
                    continue;
                std::ranges::pop_heap(m_keys, Before);
                m_keys.pop_back();
            }
            m_keys.push_back(std::move(key));
            std::ranges::push_heap(m_keys, Before);
        }
        std::ranges::sort_heap(m_keys, Before);
        m_collected = true;
    }

    std::unique_ptr<QueryPlan> m_rows;
    RowReader &m_row;
    std::optional<std::size_t> m_limit;
    std::vector<Key> m_keys;
    std::size_t m_next = 0;
    bool m_collected = false;
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
    const int range = NarrowestRange(tests);
    const bool byIndex = range >= 0 || (std::ranges::all_of(tests, IsInIndex) && (ordered || !tests.empty()));
    if (byIndex)
        return std::make_unique<IndexPlan>(std::move(tests), range, session, row);
    auto scan = std::make_unique<TablePlan>(std::move(tests), session);
    if (!ordered)
        return scan;
    return std::make_unique<SortedPlan>(std::move(scan), statement.top, row);
}

} // namespace data
