#pragma once

#include <QList>
#include <QString>

namespace data
{

/// The columns of `Dictionary` in their order.
enum Column : int { Word, Pronunciation, WordPhrase, Description, Example, AutoID, ColumnCount };

/// The column of that name, case ignored; -1 for none.
int ColumnNamed(QStringView name);

/// One condition of a WHERE clause; all of them are joined by AND.
struct Condition {
    enum class Operator { Equals, Like };
    Column column = Word;
    Operator op = Operator::Equals;
    QString text;   ///< the literal with its doubled quotes made single
    int number = 0; ///< for WordPhrase and AutoID
};

/// A parsed statement of the dialect:
/// SELECT [TOP n] * FROM Dictionary [WHERE condition {AND condition}] [ORDER BY Word [ASC][, AutoID [ASC]]]
/// Words are recognised in any case; blanks between them are free.
struct Statement {
    enum class Order { None, Word };
    int top = -1; ///< -1: no limit
    QList<Condition> conditions;
    Order order = Order::None;
};

/// Raises -2147217900 for everything else, an unbalanced quote included.
Statement ParseStatement(QStringView text);

} // namespace data
