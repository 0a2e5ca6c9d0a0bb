#pragma once

#include <QString>

namespace data
{

/// The host path of an indexed copy of a dictionary file that cannot be written. A copy is made at the
/// first call and again when the file has changed; all are gone with the process.
QString IndexedCopyOf(const QString &hostPath);

} // namespace data
