#pragma once

#include <QString>

namespace JRO
{

/// Compaction of dictionary files.
class JetEngine
{
public:
    /// Writes a compact copy of the source file of the first connection string to the new file of
    /// the second and verifies it (rows, order, structure). Never touches the source. On failure
    /// nothing stays at the destination. Raises -2147467259, 61, 70.
    void CompactDatabase(const QString &sourceConnection, const QString &destConnection);
};

} // namespace JRO
