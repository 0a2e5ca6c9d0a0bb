#include "platform/data/jro.h"

#include "platform/data/connection_string.h"
#include "platform/data/dictionary_file.h"
#include "platform/data/operation.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"

#include <QFileInfo>

using data::StateOf;

void JRO::JetEngine::CompactDatabase(const QString &sourceConnection, const QString &destConnection)
{
    data::Operation(data::kJetEngineSource, "CompactDatabase", [&] {
        m_sourcePath = files::HostPath(data::ParseConnectionString(sourceConnection).path);
        const QString target = data::ParseConnectionString(destConnection).path;
        m_copyPath = files::HostPath(target);
        data::RequireNothingAt(m_copyPath);
        files::RequireWritable(target);
        data::EndLog(m_sourcePath);
        const data::CopyStates states = data::CopyDictionary(m_sourcePath, m_copyPath, target);
        m_source = states.source;
        m_copy = states.copy;
    });
}

void JRO::JetEngine::RequireUnchanged() const
{
    // A journal is a write to the source that is under way, or that was cut short; in a log stand writes that
    // are not in the file.
    const QString source = QFileInfo(m_sourcePath).canonicalFilePath();
    const bool isBeingWritten = QFileInfo::exists(source + QStringLiteral("-journal")) ||
                                QFileInfo::exists(source + QStringLiteral("-wal"));
    if (isBeingWritten || StateOf(m_sourcePath) != m_source || StateOf(m_copyPath) != m_copy)
        throw RuntimeError(
            RuntimeError::CannotOpenDatabase, QString::fromLatin1(data::kJetEngineSource),
            QStringLiteral("最適化の間に辞書データベースが他のプログラムによって変更されました。"));
}
