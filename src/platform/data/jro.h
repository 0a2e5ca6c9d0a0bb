#pragma once

#include "platform/data/file_state.h"

#include <QString>

namespace JRO
{

/// Compaction of dictionary files.
class JetEngine
{
public:
    /// Writes a compact copy of the source file of the first connection string to the new file of
    /// the second and verifies it (rows, order, structure). Never touches the source, but for the end of a
    /// log that another program had it write. On failure nothing stays at the destination. Raises
    /// -2147467259, 61, 70.
    void CompactDatabase(const QString &sourceConnection, const QString &destConnection);

    /// Raises -2147467259 unless source and copy of the last compaction still are what they were: what
    /// somebody wrote to the source since stands in no copy. To be asked before the one takes the place
    /// of the other.
    void RequireUnchanged() const;

private:
    QString m_sourcePath, m_copyPath; ///< host paths
    data::FileState m_source, m_copy;
};

} // namespace JRO
