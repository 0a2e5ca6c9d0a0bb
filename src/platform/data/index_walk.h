#pragma once

#include "platform/data/prepared.h"
#include "platform/data/row_filter.h"
#include "platform/data/session.h"

#include <array>
#include <limits>
#include <string>
#include <string_view>

namespace data
{

/// Keys below and above those of all rows with the same headword.
inline constexpr qint64 kBeforeAllIDs = std::numeric_limits<qint64>::min();
inline constexpr qint64 kBehindAllIDs = std::numeric_limits<qint64>::max();

/// Walks the index both ways. It keeps its place by key: a statement stays open as long as the walk
/// goes on in one direction within one read transaction, and is begun anew behind the key otherwise.
/// One step has two ranges, the rest of the equal headwords and then the others, since the index is
/// not sought by both parts of the key at once otherwise.
class IndexWalk
{
public:
    /// With a filter it goes forward only, to the rows that pass.
    explicit IndexWalk(Session &session, RowFilter *filter = nullptr) : m_session(session), m_filter(filter)
    {
    }

    /// Raises -2147467259 where there is no index to be walked.
    void Prepare() { StatementOf(Forward, Equal); }

    /// Each goes to a row and tells whether there is one; where there is none the key stays.
    bool First();
    bool Last();
    /// The first row behind the key, the last row before it. The key need not be a row's.
    bool SeekBehind(std::string_view word, qint64 autoID);
    bool SeekBefore(std::string_view word, qint64 autoID);
    bool Next();
    bool Previous();
    /// Reads the row of the key anew; false where it has gone, and the key stays.
    bool Refresh();

    /// The key of the row: its headword in UTF-8 and its AutoID.
    const std::string &Word() const { return m_word; }
    qint64 AutoID() const { return m_autoID; }
    /// The WordPhrase of the row; null and its number.
    bool HasWordPhrase() const { return m_hasWordPhrase; }
    int WordPhrase() const { return m_wordPhrase; }

private:
    enum Direction : std::uint8_t { Forward, Backward };
    enum Range : std::uint8_t { Equal, Other };

    bool Seek(Direction direction, std::string_view word, qint64 autoID);
    bool Go(Direction direction);
    bool Take(Prepared &statement);
    Prepared &StatementOf(Direction direction, Range range);

    Session &m_session;
    RowFilter *m_filter;
    std::array<std::array<Prepared, 2>, 2> m_statements;
    std::string m_word;
    qint64 m_autoID = 0;
    int m_wordPhrase = 0;
    bool m_hasWordPhrase = false;
    bool m_open = false; ///< a statement stands on the row, in this direction and range:
    Direction m_direction = Forward;
    Range m_range = Equal;
    quint64 m_generation = 0;
};

} // namespace data
