#pragma once

#include <QString>

/// Paths. Inside the program a path is a drive path (`C:\dic\a.mdb`). On Windows it is the host's
/// own; elsewhere drive Z: is the root directory.
namespace files
{

/// The host path of a drive path; raises 76 on a drive that the host lacks and on a relative path.
QString HostPath(const QString &drivePath);

/// The same without raising: empty where the host lacks the drive.
QString HostPathOrEmpty(const QString &drivePath);

/// The drive path of an absolute host path; raises 52 where the host name holds a backslash.
QString DrivePath(const QString &hostPath);

/// A path as the user typed it: one that begins with "/" on a host without drives becomes its
/// drive path; every other is left alone.
QString TypedPath(const QString &typed);

} // namespace files
