#include "platform/data/dictionary_file.h"

#include "platform/data/indexed_copies.h"
#include "platform/data/long_work.h"
#include "platform/data/operation.h"
#include "platform/data/schema.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"

#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

namespace data
{

void BuildIndex(Session &session)
{
    session.BeginWrite();
    try {
        DoLongWork(session, [&session] { CreateIndex(session); });
    } catch (...) {
        session.Rollback();
        throw;
    }
    session.Commit();
}

std::shared_ptr<Session> OpenDictionaryFile(const QString &drivePath)
{
    // A drive that the host lacks is one more place where the file is not.
    const QString hostPath = files::HostPathOrEmpty(drivePath);
    if (hostPath.isEmpty())
        RaiseCode(SQLITE_CANTOPEN);
    auto session = std::make_shared<Session>(hostPath, drivePath, Session::Access::Existing);
    session->BeginRead();
    const FileContent content = Examine(*session);
    if (content.table == TableState::Foreign)
        RaiseCode(SQLITE_NOTADB);
    if (content.table != TableState::Whole || content.hasIndex)
        return session;
    const Opening opening;
    if (!session->IsWritable())
        return std::make_shared<Session>(IndexedCopyOf(hostPath), drivePath, Session::Access::ReadOnly);
    BuildIndex(*session);
    session->BeginRead();
    return session;
}

void RequireNothingAt(const QString &hostPath)
{
    const QFileInfo info(hostPath);
    if (info.exists() || info.isSymLink())
        throw RuntimeError(
            RuntimeError::CannotOpenDatabase, RuntimeError::defaultSource(),
            QStringLiteral("同じ名前のファイルが既に存在するため、辞書データベースを作成できません。"));
}

std::shared_ptr<Session> CreateDictionaryFile(const QString &drivePath)
{
    const QString hostPath = files::HostPath(drivePath);
    RequireNothingAt(hostPath);
    if (!files::IsWritable(drivePath))
        throw RuntimeError(RuntimeError::CannotOpenDatabase, RuntimeError::defaultSource(),
                           QStringLiteral("辞書データベースを作成できません。"));
    auto session = std::make_shared<Session>(hostPath, drivePath, Session::Access::Create);
    try {
        SetPageSize(*session);
        session->Write([&session] { WriteMarks(*session); });
    } catch (...) {
        session->Close();
        QFile::remove(hostPath);
        throw;
    }
    return session;
}

} // namespace data
