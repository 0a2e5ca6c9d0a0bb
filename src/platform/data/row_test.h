#pragma once

#include "platform/data/like_pattern.h"
#include "platform/data/statement.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace data
{

/// One condition of a statement, compiled: its pattern is read once.
class RowTest
{
public:
    /// Raises -2147217900 for an invalid pattern.
    explicit RowTest(const Condition &condition);

    Column column() const { return m_column; }
    bool IsNumeric() const { return m_column == WordPhrase || m_column == AutoID; }
    int Number() const { return m_number; }

    bool Passes(std::string_view text) const;
    bool Passes(qint64 number) const { return number == m_number; }

    /// Whether bytes may hold a text that passes, whatever else they hold; false is exact.
    bool MayPassWithin(std::string_view bytes) const
    {
        return !m_pattern || m_pattern->MayMatchWithin(bytes);
    }
    /// Where in such bytes: each text that passes holds one of the places. False where these cannot be
    /// told, or are more than `most`.
    bool FindPlaces(std::string_view bytes, std::vector<size_t> &places, size_t most) const
    {
        return m_pattern && m_pattern->FindPlaces(bytes, places, most);
    }

    /// The folded beginning of every text that passes; empty where there is none.
    const std::u32string &Prefix() const { return m_prefix; }
    /// Whether only texts equal to Prefix pass.
    bool IsExact() const { return m_exact; }
    /// Whether every text that begins with Prefix passes.
    bool IsPrefixRange() const { return m_pattern && m_pattern->IsPrefixRange(); }

private:
    Column m_column;
    int m_number = 0;
    std::string m_text;
    std::u32string m_prefix;
    bool m_exact = false;
    std::shared_ptr<const LikePattern> m_pattern; ///< copies of a test share it
};

/// The conditions of a statement.
using RowTests = std::vector<RowTest>;

/// Whether a row, which gives its columns as RowReader does, passes all tests. No null passes any.
template <typename Row> bool PassesAll(const RowTests &tests, const Row &row)
{
    return std::ranges::all_of(tests, [&row](const RowTest &test) {
        const Column column = test.column();
        if (row.IsNull(column))
            return false;
        return test.IsNumeric() ? test.Passes(row.Number(column)) : test.Passes(row.Text(column));
    });
}

} // namespace data
