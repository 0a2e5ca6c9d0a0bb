#pragma once

#include "platform/data/cursor.h"
#include "platform/data/row_reader.h"

#include <memory>

namespace data
{

/// What a bulk writer shows: the row stored last, and no way to any other.
class StoredRowCursor : public Cursor
{
public:
    explicit StoredRowCursor(std::shared_ptr<Session> session);

    bool Eof() override { return m_autoID == 0; }
    bool Bof() override { return m_autoID == 0; }
    void MoveFirst() override;
    void MoveNext() override;
    QVariant Value(Column column) override;
    qint64 CurrentID() override;
    void StandOn(const QString &word, qint64 autoID) override;

private:
    std::shared_ptr<Session> m_session;
    RowReader m_row;
    qint64 m_autoID = 0;
};

} // namespace data
