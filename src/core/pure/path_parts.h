#pragma once

#include <QString>

/// Parts of a drive path. Periods and backslashes are searched as text comparison sees them, their
/// full-width forms included.

/// The drive letter in front of ":\" (found as it stands); empty unless it is one letter alone.
QString DriveOfPath(const QString &path);

/// What stands before the last period of the trimmed path: with its folders for the mode 1, behind the
/// last backslash for the mode 2. Empty without a period, and for the mode 2 without a backslash or
/// where nothing stands behind it.
QString StemOfPath(const QString &path, int mode);

/// What stands behind the last period, not trimmed; empty without a period.
QString ExtOfPath(const QString &path);
