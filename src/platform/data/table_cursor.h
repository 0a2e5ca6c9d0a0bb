#pragma once

#include "platform/data/cursor.h"
#include "platform/data/index_walk.h"
#include "platform/data/row_reader.h"

#include <memory>

namespace data
{

/// The table in index order. It begins on the first row, which is looked for when it is needed.
class TableCursor : public Cursor
{
public:
    /// Raises -2147467259 for a file that lacks the table or its index.
    explicit TableCursor(std::shared_ptr<Session> session);

    /// Goes back to where it began.
    void Restart() { m_place = Place::AtStart; }

    bool Eof() override;
    bool Bof() override;
    void MoveFirst() override;
    void MoveLast() override;
    void MoveNext() override;
    void MovePrevious() override;
    QVariant Value(Column column) override;
    qint64 CurrentID() override;
    void Seek(const QString &word, qint32 autoID, int option) override;
    void StandOn(const QString &word, qint64 autoID) override;
    void LoseRow() override;

private:
    /// Empty: before the first row and behind the last at once.
    enum class Place { AtStart, OnRow, BeforeFirst, BehindLast, Empty };

    void Settle();
    void Stand(bool onRow, Place otherwise);
    void RequireRow();
    bool RowIsThere();

    std::shared_ptr<Session> m_session;
    IndexWalk m_walk;
    RowReader m_row;
    Place m_place = Place::AtStart;
    bool m_rowLost = false;
    quint64 m_generation = 0; ///< at which the row was last seen
};

} // namespace data
