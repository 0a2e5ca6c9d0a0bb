#pragma once

#include "conversion/pure/source_format.h"
#include "platform/data/adodb.h"
#include "platform/failure/runtime_error.h"

#include <QString>

/// The table that a conversion writes to.
class RowStore
{
public:
    /// Opens the dictionary file at a drive path; failures of the data engine go to the caller.
    void Open(const QString &path);
    /// Stores an entry as a row, each text cut to what its column takes.
    void StoreRecord(const SourceEntry &entry);
    /// Commits, sees to the index and closes; does nothing where nothing is open. What fails leaves it
    /// closed all the same.
    void Close();

private:
    void Disconnect() noexcept;

    ADODB::Connection m_connection;
    ADODB::Recordset m_rows;
};
