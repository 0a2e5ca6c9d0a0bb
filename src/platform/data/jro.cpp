#include "platform/data/jro.h"

#include "platform/data/connection_string.h"
#include "platform/data/dictionary_file.h"
#include "platform/data/operation.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"

void JRO::JetEngine::CompactDatabase(const QString &sourceConnection, const QString &destConnection)
{
    data::Operation(data::kJetEngineSource, "CompactDatabase", [&] {
        const QString source = files::HostPath(data::ParseConnectionString(sourceConnection).path);
        const QString target = data::ParseConnectionString(destConnection).path;
        const QString targetPath = files::HostPath(target);
        data::RequireNothingAt(targetPath);
        files::RequireWritable(target);
        data::CopyDictionary(source, targetPath, target);
    });
}
