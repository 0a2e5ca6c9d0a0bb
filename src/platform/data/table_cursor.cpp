#include "platform/data/table_cursor.h"

#include "platform/data/adodb.h"
#include "platform/data/operation.h"
#include "platform/text/fold.h"

namespace data
{

TableCursor::TableCursor(std::shared_ptr<Session> session)
    : m_session(std::move(session)), m_walk(*m_session), m_row(*m_session)
{
    m_session->BeginRead();
    m_walk.Prepare();
}

bool TableCursor::Eof()
{
    Settle();
    return m_place == Place::BehindLast || m_place == Place::Empty;
}

bool TableCursor::Bof()
{
    Settle();
    return m_place == Place::BeforeFirst || m_place == Place::Empty;
}

void TableCursor::MoveFirst() { Stand(m_walk.First(), Place::Empty); }

void TableCursor::MoveLast() { Stand(m_walk.Last(), Place::Empty); }

void TableCursor::MoveNext()
{
    Settle();
    switch (m_place) {
    case Place::BehindLast:
    case Place::Empty: throw RuntimeError(RuntimeError::NoCurrentRow);
    case Place::BeforeFirst: return Stand(m_walk.First(), Place::Empty);
    default: return Stand(m_walk.Next(), Place::BehindLast);
    }
}

void TableCursor::MovePrevious()
{
    Settle();
    switch (m_place) {
    case Place::BeforeFirst:
    case Place::Empty: throw RuntimeError(RuntimeError::NoCurrentRow);
    case Place::BehindLast: return Stand(m_walk.Last(), Place::Empty);
    default: return Stand(m_walk.Previous(), Place::BeforeFirst);
    }
}

void TableCursor::Seek(const QString &word, qint32 autoID, int option)
{
    const QByteArray key = word.toUtf8();
    const std::string_view keyView(key.constData(), static_cast<std::size_t>(key.size()));
    switch (option) {
    case ADODB::adSeekFirstEQ: {
        // The first row behind the key's forerunner is the key's own, or it does not exist.
        const bool found = m_walk.SeekBehind(keyView, qint64(autoID) - 1) && m_walk.AutoID() == autoID &&
                           text::CompareUtf8(m_walk.Word(), keyView) == 0;
        return Stand(found, Place::BehindLast);
    }
    case ADODB::adSeekBeforeEQ:
        return Stand(m_walk.SeekBefore(keyView, qint64(autoID) + 1), Place::BehindLast);
    default: throw RuntimeError(RuntimeError::InvalidCall);
    }
}

void TableCursor::StandOn(const QString &word, qint64 autoID)
{
    const QByteArray key = word.toUtf8();
    m_row.Forget();
    Stand(m_walk.SeekBehind({key.constData(), static_cast<std::size_t>(key.size())}, autoID - 1),
          Place::BehindLast);
}

void TableCursor::LoseRow() { m_rowLost = true; }

qint64 TableCursor::CurrentID()
{
    RequireRow();
    return m_walk.AutoID();
}

QVariant TableCursor::Value(Column column)
{
    RequireRow();
    switch (column) {
    case AutoID: return CheckedTo<qint32>(m_walk.AutoID());
    case Word: return FromUtf8(m_walk.Word());
    case WordPhrase: return m_walk.HasWordPhrase() ? QVariant(m_walk.WordPhrase()) : QVariant();
    default: break;
    }
    if (!m_row.Load(m_walk.AutoID()))
        throw RuntimeError(RuntimeError::CannotOpenDatabase);
    return m_row.Value(column);
}

void TableCursor::Settle()
{
    if (m_place == Place::AtStart)
        MoveFirst();
}

void TableCursor::Stand(bool onRow, Place otherwise)
{
    m_place = onRow ? Place::OnRow : otherwise;
    m_rowLost = false;
    m_generation = m_session->Generation();
}

void TableCursor::RequireRow()
{
    Settle();
    // A dictionary without a record is no use to whoever reads it, and is told as one that is missing.
    if (m_place == Place::Empty)
        throw RuntimeError(RuntimeError::CannotOpenDatabase, RuntimeError::defaultSource(),
                           QStringLiteral("レコードが一件も登録されていません。"));
    if (m_place != Place::OnRow || m_rowLost || !RowIsThere())
        throw RuntimeError(RuntimeError::NoCurrentRow);
}

bool TableCursor::RowIsThere()
{
    if (m_generation == m_session->Generation())
        return true;
    // Others may have written since: what stands under the key now is the row.
    m_rowLost = !m_walk.Refresh();
    m_generation = m_session->Generation();
    return !m_rowLost;
}

} // namespace data
