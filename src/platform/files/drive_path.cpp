#include "platform/files/drive_path.h"

#include "platform/failure/runtime_error.h"

#include <QDir>

#ifdef Q_OS_WIN

QString files::HostPath(const QString &drivePath) { return drivePath; }

QString files::HostPathOrEmpty(const QString &drivePath) { return drivePath; }

QString files::DrivePath(const QString &hostPath) { return QDir::toNativeSeparators(hostPath); }

QString files::TypedPath(const QString &typed) { return typed; }

#else

namespace
{

bool IsOnRootDrive(const QString &path)
{
    if (path.size() < 2 || path[0].toUpper() != u'Z' || path[1] != u':')
        return false;
    return path.size() == 2 || path[2] == u'\\' || path[2] == u'/';
}

QString OnRootDrive(QString hostPath) { return QStringLiteral("Z:") + hostPath.replace(u'/', u'\\'); }

} // namespace

QString files::HostPathOrEmpty(const QString &drivePath)
{
    if (!IsOnRootDrive(drivePath))
        return {};
    QString path = drivePath.sliced(2);
    return path.isEmpty() ? QStringLiteral("/") : path.replace(u'\\', u'/');
}

QString files::HostPath(const QString &drivePath)
{
    QString path = HostPathOrEmpty(drivePath);
    if (path.isEmpty())
        throw RuntimeError(RuntimeError::PathNotFound);
    return path;
}

QString files::DrivePath(const QString &hostPath)
{
    if (!hostPath.startsWith(u'/') || hostPath.contains(u'\\'))
        throw RuntimeError(RuntimeError::BadFileName);
    return OnRootDrive(hostPath);
}

QString files::TypedPath(const QString &typed) { return typed.startsWith(u'/') ? OnRootDrive(typed) : typed; }

#endif
