#include "platform/data/statement.h"

#include "platform/failure/runtime_error.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace
{

using data::Condition;
using data::ParseStatement;
using data::Statement;

TEST(Statement, ReadsWhatTheSearchesWrite)
{
    const Statement s =
        ParseStatement(u"SELECT TOP 500 * FROM Dictionary WHERE WordPhrase = 1 AND Word Like 'ab%_%' AND "
                       u"Description Like '%犬%' AND Example Like '%x%' ORDER BY Word ASC");
    EXPECT_EQ(s.top, 500);
    EXPECT_EQ(s.order, Statement::Order::Word);
    ASSERT_EQ(s.conditions.size(), 4);
    EXPECT_EQ(s.conditions[0].column, data::WordPhrase);
    EXPECT_EQ(s.conditions[0].op, Condition::Operator::Equals);
    EXPECT_EQ(s.conditions[0].number, 1);
    EXPECT_EQ(s.conditions[1].column, data::Word);
    EXPECT_EQ(s.conditions[1].op, Condition::Operator::Like);
    EXPECT_EQ(s.conditions[1].text, u"ab%_%"_s);
    EXPECT_EQ(s.conditions[2].column, data::Description);
    EXPECT_EQ(s.conditions[2].text, u"%犬%"_s);
    EXPECT_EQ(s.conditions[3].column, data::Example);
}

TEST(Statement, TakesAnyCaseAndAnyBlanks)
{
    const Statement s = ParseStatement(
        u"\tselect top 7*from\r\nDICTIONARY where word='a'and AUTOID=12 order  by word , autoid asc ");
    EXPECT_EQ(s.top, 7);
    EXPECT_EQ(s.order, Statement::Order::Word);
    ASSERT_EQ(s.conditions.size(), 2);
    EXPECT_EQ(s.conditions[0].text, u"a"_s);
    EXPECT_EQ(s.conditions[1].column, data::AutoID);
    EXPECT_EQ(s.conditions[1].number, 12);
    for (const QStringView text :
         {u"SELECT * FROM Dictionary WHERE Word Like 'a%'", u"SELECT * FROM Dictionary WHERE Word like 'a%'",
          u"SELECT * FROM Dictionary WHERE Word LIKE'a%'"})
        EXPECT_EQ(ParseStatement(text).conditions.value(0).op, Condition::Operator::Like);
}

TEST(Statement, NeedsNeitherLimitNorConditionNorOrder)
{
    const Statement s = ParseStatement(u"SELECT*FROM Dictionary");
    EXPECT_EQ(s.top, -1);
    EXPECT_TRUE(s.conditions.isEmpty());
    EXPECT_EQ(s.order, Statement::Order::None);
    EXPECT_EQ(ParseStatement(u"SELECT * FROM Dictionary ORDER BY Word").order, Statement::Order::Word);
    EXPECT_EQ(ParseStatement(u"SELECT * FROM Dictionary ORDER BY Word, AutoID ASC").order,
              Statement::Order::Word);
    EXPECT_EQ(ParseStatement(u"SELECT * FROM Dictionary ORDER BY Word ASC, AutoID").order,
              Statement::Order::Word);
}

TEST(Statement, MakesDoubledQuotesSingle)
{
    const auto literal = [](const QString &quoted) {
        return ParseStatement(u"SELECT * FROM Dictionary WHERE Word = "_s + quoted).conditions.value(0).text;
    };
    EXPECT_EQ(literal(u"'don''t'"_s), u"don't"_s);
    EXPECT_EQ(literal(u"''''"_s), u"'"_s);
    EXPECT_EQ(literal(u"''"_s), QString());
    EXPECT_EQ(literal(u"'a AND Word = b'"_s), u"a AND Word = b"_s);
    EXPECT_EQ(literal(u"'  \u3000'"_s), u"  \u3000"_s);
    EXPECT_EQ(literal(QStringLiteral("'a\0b'")), QStringLiteral("a\0b"));
}

TEST(Statement, LimitsAreWholeNumbers)
{
    EXPECT_EQ(ParseStatement(u"SELECT TOP 0 * FROM Dictionary").top, 0);
    EXPECT_EQ(ParseStatement(u"SELECT TOP 2147483647 * FROM Dictionary").top,
              std::numeric_limits<int>::max());
}

TEST(Statement, RaisesForEverythingElse)
{
    constexpr QStringView kInvalid[] = {
        u"",
        u"SELECT",
        u"DELETE FROM Dictionary",
        u"SELECT Word FROM Dictionary",
        u"SELECT * FROM Other",
        u"SELECT * FROM Dictionary;",
        u"SELECT * FROM Dictionary x",
        u"SELECT * FROM [Dictionary]",
        u"SELECT * FROM Dictionary WHERE",
        u"SELECT TOP * FROM Dictionary",
        u"SELECT TOP5 * FROM Dictionary",
        u"SELECT TOP -1 * FROM Dictionary",
        u"SELECT TOP 1.5 * FROM Dictionary",
        u"SELECT TOP 2147483648 * FROM Dictionary",
        u"SELECT TOP ５ * FROM Dictionary",
        u"SELECT TOP 5x * FROM Dictionary",
        u"SELECT TOP 5 PERCENT * FROM Dictionary",
        u"SELECT * FROM Dictionary WHERE Word = 'a",
        u"SELECT * FROM Dictionary WHERE Word = 'a'b'",
        u"SELECT * FROM Dictionary WHERE Word = 'a''",
        u"SELECT * FROM Dictionary WHERE Word = \"a\"",
        u"SELECT * FROM Dictionary WHERE Word = a",
        u"SELECT * FROM Dictionary WHERE Word = 1",
        u"SELECT * FROM Dictionary WHERE Word <> 'a'",
        u"SELECT * FROM Dictionary WHERE Word NOT Like 'a'",
        u"SELECT * FROM Dictionary WHERE Words = 'a'",
        u"SELECT * FROM Dictionary WHERE WordPhrase = '1'",
        u"SELECT * FROM Dictionary WHERE WordPhrase Like '1'",
        u"SELECT * FROM Dictionary WHERE WordPhrase = ",
        u"SELECT * FROM Dictionary WHERE AutoID = 99999999999",
        u"SELECT * FROM Dictionary WHERE Word = 'a' OR Word = 'b'",
        u"SELECT * FROM Dictionary WHERE (Word = 'a')",
        u"SELECT * FROM Dictionary WHERE Word = 'a' AND",
        u"SELECT * FROM Dictionary WHERE Word = 'a' Word = 'b'",
        u"SELECT * FROM Dictionary ORDER Word",
        u"SELECT * FROM Dictionary ORDER BY",
        u"SELECT * FROM Dictionary ORDER BY Word DESC",
        u"SELECT * FROM Dictionary ORDER BY AutoID",
        u"SELECT * FROM Dictionary ORDER BY Word,",
        u"SELECT * FROM Dictionary ORDER BY Word, Word",
        u"SELECT * FROM Dictionary ORDER BY Word WHERE Word = 'a'",
        u"SELECT * FROM Dictionary -- all",
    };
    for (const QStringView text : kInvalid) {
        try {
            ParseStatement(text);
            ADD_FAILURE() << text.toUtf8().toStdString();
        } catch (const RuntimeError &error) {
            EXPECT_EQ(error.number(), RuntimeError::InvalidStatement);
        }
    }
}

TEST(Statement, KnowsTheColumnsByName)
{
    EXPECT_EQ(data::ColumnNamed(u"Word"), data::Word);
    EXPECT_EQ(data::ColumnNamed(u"EXAMPLE"), data::Example);
    EXPECT_EQ(data::ColumnNamed(u"autoid"), data::AutoID);
    EXPECT_EQ(data::ColumnNamed(u""), -1);
    EXPECT_EQ(data::ColumnNamed(u"Word "), -1);
}

} // namespace
