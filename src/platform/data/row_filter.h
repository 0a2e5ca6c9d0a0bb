#pragma once

#include "platform/data/row_test.h"

#include <string>
#include <string_view>

struct sqlite3;

namespace data
{

class Prepared;

/// Conditions that SQLite itself asks for each row, so that rows that fail cost it no step and no copy.
/// Their text stands in a statement as PASSES(?n, columns), with the filter bound to ?n.
class RowFilter
{
public:
    /// The filter passes rows that pass all tests. `range` is the number of a test on the headword whose
    /// range of the index is walked, -1 for none: the first row behind that range passes too, and
    /// HasLeftRange tells it, so that the walk ends there.
    explicit RowFilter(RowTests tests, int range = -1);
    RowFilter(const RowFilter &) = delete;
    RowFilter &operator=(const RowFilter &) = delete;

    /// Makes the function known to a connection.
    static void Register(sqlite3 *database);

    const RowTests &Tests() const { return m_tests; }
    /// The call, with the filter as the parameter of that number.
    std::string Call(int parameter) const;
    void BindTo(Prepared &statement, int parameter);
    /// Where the range begins, in UTF-8; empty without one.
    const std::string &RangeStart() const { return m_rangeStart; }
    bool HasLeftRange() const { return m_hasLeftRange; }
    /// Forgets that the range was left.
    void Restart() { m_hasLeftRange = false; }

private:
    struct Function;

    bool IsInRange(std::string_view word) const;

    RowTests m_tests;
    const RowTest *m_range = nullptr;
    std::string m_rangeStart;
    bool m_hasLeftRange = false;
};

} // namespace data
