#include "host_paths.h"

#include "platform/files/drive_path.h"

namespace
{

bool IsDrivePath(const QString &path)
{
    return path.size() >= 3 && path[0].isLetter() && path[1] == u':' && path[2] == u'\\';
}

} // namespace

QString HostPathOf(const QString &path) { return IsDrivePath(path) ? files::HostPath(path) : path; }

QString DrivePathOf(const QString &path) { return path.startsWith(u'/') ? files::DrivePath(path) : path; }
