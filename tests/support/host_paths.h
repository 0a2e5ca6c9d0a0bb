#pragma once

#include <QString>

/// Paths as scripts give them: a host path, or the drive path of one, means the same file.
QString HostPathOf(const QString &path);
QString DrivePathOf(const QString &path);
