#pragma once

#include <QString>

/// Parts of a drive path. Periods and backslashes are searched as text comparison sees them, their
/// full-width forms included.

/// The drive letter in front of ":\" (found as it stands); empty unless it is one letter alone.
QString DriveOfPath(const QString &path);

/// The modes of StemOfPath.
inline constexpr int kStemWithFolders = 1;
inline constexpr int kStemAlone = 2;

/// What stands before the last period of the trimmed path, or, alone, of that what stands behind the
/// last backslash. Empty without a period; alone, without a backslash too, or with nothing behind it.
QString StemOfPath(const QString &path, int mode);

/// What stands behind the last period, not trimmed; empty without a period.
QString ExtOfPath(const QString &path);
