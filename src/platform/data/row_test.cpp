#include "platform/data/row_test.h"

#include "platform/text/fold.h"

namespace data
{

RowTest::RowTest(const Condition &condition) : m_column(condition.column), m_number(condition.number)
{
    if (IsNumeric())
        return;
    if (condition.op == Condition::Operator::Like) {
        m_pattern = std::make_shared<const LikePattern>(condition.text);
        m_prefix = m_pattern->Prefix();
        m_exact = m_pattern->IsLiteral();
    } else {
        m_text = condition.text.toStdString();
        text::FoldUtf8(m_text, m_prefix);
        m_exact = true;
    }
}

bool RowTest::Passes(std::string_view text) const
{
    return m_pattern ? m_pattern->Matches(text) : text::CompareUtf8(text, m_text) == 0;
}

} // namespace data
