#pragma once

#include "platform/data/row_reader.h"
#include "platform/data/session.h"
#include "platform/data/statement.h"

#include <memory>
#include <string>

namespace data
{

/// A row that a plan found. Headword and WordPhrase stand in it where the plan came by them anyway.
struct Hit {
    qint64 autoID = 0;
    bool hasKey = false;
    std::string word; ///< UTF-8
    bool hasWordPhrase = false;
    int wordPhrase = 0;
};

/// The way in which the rows of a statement are found, one after the other, in the statement's order.
/// It resumes behind its last row when the read transaction was released in between.
class QueryPlan
{
public:
    QueryPlan() = default;
    virtual ~QueryPlan() = default;
    QueryPlan(const QueryPlan &) = delete;
    QueryPlan &operator=(const QueryPlan &) = delete;

    /// Goes to the next row; false behind the last.
    virtual bool Next(Hit &hit) = 0;
    /// Begins from the first row.
    virtual void Restart() = 0;
};

/// Chooses the plan for a statement:
/// - a number of a row: that row;
/// - a headword, or a pattern with a literal beginning: a range of the index;
/// - conditions that the index holds: the whole index;
/// - others, with an order: the index as long as that pays, then the table, its hits sorted;
/// - others, without: the table.
/// Rows come in the order of the index, or of AutoID where no order is asked for and the table is
/// read. `row` is the reader that tests read further columns through. Raises -2147217900 for an
/// invalid pattern.
std::unique_ptr<QueryPlan> PlanFor(const Statement &statement, Session &session, RowReader &row);

} // namespace data
