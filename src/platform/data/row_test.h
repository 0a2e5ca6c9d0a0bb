#pragma once

#include "platform/data/like_pattern.h"
#include "platform/data/statement.h"

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

    /// Whether bytes may hold a text that passes, whatever else they hold; always, where HasLiteral tells
    /// that there is nothing to look for.
    bool MayPassWithin(std::string_view bytes) const
    {
        return !m_pattern || m_pattern->MayMatchWithin(bytes);
    }
    bool HasLiteral() const { return m_pattern && m_pattern->HasLiteral(); }

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

} // namespace data
