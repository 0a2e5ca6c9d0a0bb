#pragma once

#include <QString>

namespace data
{

/// What the engine reads of a connection string.
struct ConnectionString {
    QString path;       ///< of "Data Source=", a drive path; empty where it is missing
    QString engineType; ///< of "Jet OLEDB:Engine Type="; empty where it is missing
};

/// Names are taken in any case, the last semicolon may be missing, and a path may hold semicolons.
ConnectionString ParseConnectionString(const QString &text);

} // namespace data
