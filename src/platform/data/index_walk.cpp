#include "platform/data/index_walk.h"

#include "platform/text/fold.h"

namespace data
{

namespace
{

/// Where a range lies, and the order of its rows.
struct RangeSql {
    std::string_view where;
    std::string_view order;
};

constexpr std::array<std::array<RangeSql, 2>, 2> kRanges{{
    {{{"Word = ?1 AND AutoID > ?2", "AutoID"}, {"Word > ?1", "Word, AutoID"}}},
    {{{"Word = ?1 AND AutoID < ?2", "AutoID DESC"}, {"Word < ?1", "Word DESC, AutoID DESC"}}},
}};
constexpr int kFilterParameter = 3;

std::string SqlOf(const RangeSql &range, const RowFilter *filter)
{
    std::string sql = "SELECT Word, AutoID, WordPhrase FROM Dictionary INDEXED BY WordID WHERE ";
    sql.append(range.where);
    if (filter != nullptr)
        sql.append(" AND ").append(filter->Call(kFilterParameter));
    return sql.append(" ORDER BY ").append(range.order);
}

} // namespace

bool IndexWalk::First() { return SeekBehind({}, kBeforeAllIDs); }

bool IndexWalk::Last()
{
    m_session.BeginRead();
    m_open = false;
    Prepared &statement = StatementOf(Backward, Other);
    statement.Reset();
    statement.BindBehindAllText(1);
    m_direction = Backward;
    m_range = Other;
    m_generation = m_session.Generation();
    return Take(statement);
}

bool IndexWalk::SeekBehind(std::string_view word, qint64 autoID) { return Seek(Forward, word, autoID); }

bool IndexWalk::SeekBefore(std::string_view word, qint64 autoID) { return Seek(Backward, word, autoID); }

bool IndexWalk::Next() { return Go(Forward); }

bool IndexWalk::Previous() { return Go(Backward); }

bool IndexWalk::Refresh()
{
    const std::string word = m_word;
    const qint64 autoID = m_autoID;
    const bool found = SeekBehind(word, autoID - 1);
    if (found && m_autoID == autoID && text::CompareUtf8(m_word, word) == 0)
        return true;
    m_word = word;
    m_autoID = autoID;
    m_open = false;
    return false;
}

bool IndexWalk::Seek(Direction direction, std::string_view word, qint64 autoID)
{
    m_session.BeginRead();
    m_open = false;
    m_direction = direction;
    m_generation = m_session.Generation();
    Prepared &equal = StatementOf(direction, Equal);
    equal.Reset();
    equal.BindText(1, word);
    equal.BindNumber(2, autoID);
    m_range = Equal;
    if (Take(equal))
        return true;
    Prepared &other = StatementOf(direction, Other);
    other.Reset();
    other.BindText(1, word);
    m_range = Other;
    return Take(other);
}

bool IndexWalk::Go(Direction direction)
{
    if (!m_open || m_direction != direction || m_generation != m_session.Generation())
        return Seek(direction, std::string(m_word), m_autoID);
    Prepared &statement = StatementOf(m_direction, m_range);
    if (Take(statement))
        return true;
    if (m_range == Other)
        return false;
    Prepared &other = StatementOf(m_direction, Other);
    other.Reset();
    other.BindText(1, m_word);
    m_range = Other;
    return Take(other);
}

bool IndexWalk::Take(Prepared &statement)
{
    // A step that fails puts the statement back to its beginning.
    m_open = false;
    if (!statement.Step())
        return false;
    m_open = true;
    m_word.assign(statement.Text(0));
    m_autoID = statement.Number(1);
    m_hasWordPhrase = !statement.IsNull(2);
    m_wordPhrase = static_cast<int>(statement.Number(2));
    return true;
}

Prepared &IndexWalk::StatementOf(Direction direction, Range range)
{
    Prepared &statement = m_statements.at(direction).at(range);
    if (!statement) {
        statement = m_session.Prepare(SqlOf(kRanges.at(direction).at(range), m_filter));
        if (m_filter != nullptr)
            m_filter->BindTo(statement, kFilterParameter);
    }
    return statement;
}

} // namespace data
