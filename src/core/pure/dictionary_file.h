#pragma once

#include "platform/data/adodb.h"

#include <QString>

/// Creates a dictionary file with an empty table. The caller sees to it that the path (a drive path,
/// whose blanks at both ends do not count) is free; failures of the data engine go to the caller and
/// leave nothing there.
void CreateDictionaryFile(const QString &path);

/// The connection string under which records are shown and walked.
QString ViewConnectionString(const QString &path);

/// Opens the table on an open connection, in the order of the index.
void OpenTableByIndex(ADODB::Connection &connection, ADODB::Recordset &recordset);
