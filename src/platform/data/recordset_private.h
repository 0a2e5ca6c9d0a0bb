#pragma once

#include "platform/data/adodb.h"
#include "platform/data/bulk_writer.h"
#include "platform/data/cursor.h"
#include "platform/data/pending_row.h"
#include "platform/data/row_writer.h"
#include "platform/data/session.h"
#include "platform/data/table_cursor.h"

#include <memory>
#include <optional>

namespace ADODB
{

/// What a connection holds: its session while it is open.
class ConnectionPrivate
{
public:
    QString connectionString;
    std::shared_ptr<data::Session> session;

    /// Raises 3704 for a connection that is not open.
    const std::shared_ptr<data::Session> &Session() const;
};

/// A recordset: rows to go through and a row being edited.
class RecordsetPrivate
{
public:
    int cursorType = adOpenForwardOnly;
    int lockType = adLockReadOnly;
    QString index;

    bool IsOpen() const { return m_session && m_session->IsOpen(); }
    void OpenTable(const std::shared_ptr<data::Session> &session, const QString &name);
    void OpenBulk(const std::shared_ptr<data::Session> &session, const QString &name);
    void OpenStatement(const std::shared_ptr<data::Session> &session, const QString &text);
    void Close();

    /// The rows; raises 3704 when the recordset is closed.
    data::Cursor &Rows();
    /// The rows, for a move: an edit in progress is stored first.
    data::Cursor &RowsToMove();
    void SetIndex(const QString &name);

    QVariant Value(data::Column column);
    void SetValue(data::Column column, const QVariant &value);
    void AddNew();
    void Update();
    void Delete();
    void Flush();

private:
    void RequireOpen() const;

    std::shared_ptr<data::Session> m_session;
    std::unique_ptr<data::Cursor> m_rows;
    std::unique_ptr<data::RowWriter> m_writer;
    std::unique_ptr<data::BulkWriter> m_bulk;
    std::optional<data::PendingRow> m_pending;
    bool m_adding = false;
    data::TableCursor *m_table = nullptr; ///< m_rows, where they are the table's
};

} // namespace ADODB
