#pragma once

#include "platform/data/prepared.h"
#include "platform/data/session.h"
#include "platform/data/statement.h"

#include <QVariant>

namespace data
{

/// Reads whole rows by their AutoID.
class RowReader
{
public:
    explicit RowReader(Session &session) : m_session(session) {}

    /// Goes to the row; false where there is none. Does nothing where it stands there already.
    bool Load(qint64 autoID);
    /// Forgets the row, so that the next Load reads it anew.
    void Forget() { m_loaded = false; }

    /// A column of the row: text, number or an invalid value for null.
    QVariant Value(Column column) const;
    /// The bytes of a text column, until the next Load; empty for null.
    std::string_view Text(Column column) const { return m_statement.Text(column); }
    bool IsNull(Column column) const { return m_statement.IsNull(column); }
    qint64 Number(Column column) const { return m_statement.Number(column); }

private:
    Session &m_session;
    Prepared m_statement;
    bool m_loaded = false;
    qint64 m_autoID = 0;
    quint64 m_generation = 0;
};

/// The text of UTF-8 bytes.
QString FromUtf8(std::string_view bytes);

} // namespace data
