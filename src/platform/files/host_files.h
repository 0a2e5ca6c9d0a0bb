#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <functional>

/// What the operations on drive paths stand on: the same on host paths.
namespace files::host
{

/// Raises the failure that belongs to the system's error `error` (an errno) at the host path. Where
/// the error is "not there", a missing folder raises 76 and a missing file 53.
[[noreturn]] void Raise(int error, const QString &path);

/// Raises the failure that a QFile reported at the host path. `error` is errno as it stood right
/// after the failed call, 0 when the call left none.
[[noreturn]] void Raise(const QFileDevice &file, int error, const QString &path);

/// Whether a file that is no folder stands there.
bool IsFile(const QString &path);

/// Raises 70 when the file or folder, or something above it, is marked read-only, when the user may
/// not write it, or when nobody may (which binds the system's administrator too); 53 or 76 when it
/// is not there.
void RequireWritable(const QString &path);

/// The same for the folder that holds the path: whether names in it may be made and taken away.
void RequireWritableFolderOf(const QString &path);

/// RequireWritable for a file that stands there, RequireWritableFolderOf for one that does not.
void RequireWritableOrCreatable(const QString &path);

/// Opens the file; raises 52 for a folder and for a name that no file can have, 53, 70, 76.
void Open(QFile &file, const QString &path, QIODevice::OpenMode mode);

/// What happens to a file that stands at the target already.
enum class Target { MustBeFree, IsReplaced };

/// Moves a file within one file system or from one to another. From another, it is copied beside
/// the target, flushed and renamed, so that the target is never there in part. `lastLook`, unless it is
/// empty, is called right before each try to rename, and may raise.
void Move(const QString &from, const QString &to, Target target, const std::function<void()> &yield = {},
          const std::function<void()> &lastLook = {});

/// Copies a file beside the target, flushes it and gives it its name. Time and permissions are the
/// source's; the owner may always write the copy. `yield`, unless it is empty, is called after each
/// piece.
void Copy(const QString &from, const QString &to, Target target, const std::function<void()> &yield = {},
          const std::function<void()> &lastLook = {});

/// Gives a file the permissions of another; leaves it as it is on a file system that has none.
void TakePermissions(const QString &path, const QString &from);

/// Puts a file with the content at the path, whole or not at all.
void Replace(const QString &path, const QByteArray &content);

} // namespace files::host
