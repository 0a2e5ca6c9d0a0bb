#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>

/// Operations on whole files. All paths are drive paths. Failures are raised with the numbers 52
/// (bad name), 53 (not found), 57 (device), 58 (exists), 61 (disk full), 70 (permission denied)
/// and 76 (path not found).
namespace files
{

/// Whether a file (not a folder) stands there; never raises.
bool Exists(const QString &path);

/// Whether both paths name one file that exists; never raises.
bool IsSameFile(const QString &path, const QString &other);

/// Length in bytes; raises 53.
qint64 Length(const QString &path);

/// Time of the last change; raises 53.
QDateTime Modified(const QString &path);

/// Deletes a file; raises 53 when it is not there.
void Delete(const QString &path);

/// Deletes a file if it is there.
void DeleteIfThere(const QString &path);

/// Copies a file, flushed to the disk; raises 58 when the target exists. `yield` is called after each
/// piece copied; what it raises ends the copy, of which nothing stays.
void Copy(const QString &from, const QString &to, const std::function<void()> &yield = {});

/// Renames a file; across file systems it copies beside the target, flushes, renames and deletes.
/// Raises 58 when the target exists.
void Rename(const QString &from, const QString &to);

/// Puts `content` in the place of the file: written beside it, flushed, renamed, so that a crash
/// leaves the old or the new file whole.
void Replace(const QString &path, const QByteArray &content);

/// Puts the file `from` in the place of the file `path`, which need not exist: one step within a file
/// system; across file systems `from` is copied beside the target (`yield` as in Copy), flushed and
/// renamed, then deleted. A symbolic link stays and leads to the new file, and permissions stay those of
/// the old one. A crash leaves the old or the new file whole. `lastLook` is called right before each try to
/// rename; what it raises leaves the old file.
void ReplaceByFile(const QString &path, const QString &from, const std::function<void()> &yield = {},
                   const std::function<void()> &lastLook = {});

/// The whole content; raises 53.
QByteArray ReadAll(const QString &path);

/// Names of the files in a folder that match the pattern (`*.acs`), case ignored, by name; empty
/// where there is no such folder.
QStringList Matching(const QString &folder, const QString &pattern);

/// Bytes free for the user, and in all, on the file system that holds the path (a path that is not
/// there belongs to its nearest folder that is); raises 76.
qint64 FreeBytes(const QString &path);
qint64 TotalBytes(const QString &path);

/// Raises 70 when the file (or, where it does not exist, its folder) may not be written. For
/// those who open files by other means than this module.
void RequireWritable(const QString &path);
/// Whether RequireWritable would not raise.
bool IsWritable(const QString &path);

/// What a test sets: host paths that count as read-only, folders included with all below them, and
/// the answer of FreeBytes (-1: the truth).
void MarkReadOnly(const QString &hostPath);
void ClearReadOnlyMarks();
void SetFreeBytes(qint64 bytes);

} // namespace files
