#include "platform/data/row_writer.h"

#include "platform/data/operation.h"
#include "platform/data/schema.h"

#include <limits>
#include <sqlite3.h>
#include <string>

namespace data
{

namespace
{

/// The columns that a caller sets; AutoID comes by itself.
constexpr std::array kSettable{Word, Pronunciation, WordPhrase, Description, Example};

void Bind(Prepared &statement, int parameter, Column column, const PendingRow::Value &value)
{
    if (value.isNull)
        statement.BindNull(parameter);
    else if (column == WordPhrase)
        statement.BindNumber(parameter, value.number);
    else
        statement.BindTextInPlace(parameter,
                                  {value.text.constData(), static_cast<std::size_t>(value.text.size())});
}

void RequireOneChange(Session &session)
{
    if (sqlite3_changes(session.Database()) == 0)
        throw RuntimeError(RuntimeError::NoCurrentRow);
}

} // namespace

qint64 RowWriter::Insert(const PendingRow &row)
{
    if (!m_insert)
        m_insert =
            m_session.Prepare("INSERT INTO Dictionary(Word, Pronunciation, WordPhrase, Description, Example) "
                              "VALUES(?1, ?2, ?3, ?4, ?5)");
    m_insert.Reset();
    for (std::size_t i = 0; i < kSettable.size(); ++i)
        Bind(m_insert, static_cast<int>(i) + 1, kSettable.at(i), row.At(kSettable.at(i)));
    m_insert.Step();
    const qint64 autoID = sqlite3_last_insert_rowid(m_session.Database());
    if (autoID > std::numeric_limits<qint32>::max())
        throw RuntimeError(RuntimeError::Overflow);
    return autoID;
}

void RowWriter::Change(qint64 autoID, const PendingRow &row)
{
    std::string sql;
    for (std::size_t i = 0; i < kSettable.size(); ++i) {
        if (!row.At(kSettable.at(i)).isSet)
            continue;
        sql.append(sql.empty() ? "UPDATE Dictionary SET " : ", ");
        sql.append(ColumnName(kSettable.at(i)).data()).append(" = ?").append(std::to_string(i + 1));
    }
    sql.append(" WHERE AutoID = ?6");
    Prepared update = m_session.Prepare(sql);
    for (std::size_t i = 0; i < kSettable.size(); ++i)
        if (const PendingRow::Value &value = row.At(kSettable.at(i)); value.isSet)
            Bind(update, static_cast<int>(i) + 1, kSettable.at(i), value);
    update.BindNumber(static_cast<int>(kSettable.size()) + 1, autoID);
    update.Step();
    RequireOneChange(m_session);
}

void RowWriter::Remove(qint64 autoID)
{
    Prepared remove = m_session.Prepare("DELETE FROM Dictionary WHERE AutoID = ?1");
    remove.BindNumber(1, autoID);
    remove.Step();
    RequireOneChange(m_session);
}

} // namespace data
