#include "platform/files/host_files.h"

#include "platform/failure/runtime_error.h"
#include "platform/files/read_only_marks.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <future>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using files::host::Raise;
using files::host::Target;

QString FolderOf(const QString &path) { return QFileInfo(path).path(); }

void RequireName(const QString &path)
{
    if (path.contains(QChar::Null))
        throw RuntimeError(RuntimeError::BadFileName);
}

int FailureNumber(int error, const QString &path)
{
    switch (error) {
    case ENOENT:
        return QFileInfo(FolderOf(path)).isDir() ? RuntimeError::FileNotFound : RuntimeError::PathNotFound;
    case ENOTDIR: return RuntimeError::PathNotFound;
    case EISDIR:
    case EINVAL:
    case ENAMETOOLONG:
    case ELOOP: return RuntimeError::BadFileName;
    case EEXIST:
    case ENOTEMPTY: return RuntimeError::FileExists;
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return RuntimeError::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY: return RuntimeError::PermissionDenied;
    default: return RuntimeError::DeviceIoError;
    }
}

int ErrorOf(const QFileDevice &file, int error)
{
    if (error != 0)
        return error;
    switch (file.error()) {
    case QFileDevice::ResourceError: return ENOSPC;
    case QFileDevice::PermissionsError: return EACCES;
    default: return EIO;
    }
}

/// Gives the file its new name without ever taking the place of another; errno, or 0.
int RenameToFreeName(const QByteArray &from, const QByteArray &to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // The file system knows no such renaming; asking first is the best that is left.
    if (::access(to.constData(), F_OK) == 0)
        return EEXIST;
    return ::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
}

int RenameFile(const QString &from, const QString &to, Target target)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray name = QFile::encodeName(to);
    if (target == Target::MustBeFree)
        return RenameToFreeName(source, name);
    return ::rename(source.constData(), name.constData()) == 0 ? 0 : errno;
}

/// Writes all bytes through to the system; raises what the device answers.
void WriteAll(QFileDevice &file, const QByteArray &bytes, const QString &path)
{
    errno = 0;
    if (file.write(bytes) != bytes.size() || !file.flush())
        Raise(file, errno, path);
}

/// A file of its own beside the target, for a content that gets the target's name at the end.
void OpenBeside(QTemporaryFile &file, const QString &target)
{
    file.setFileTemplate(FolderOf(target) + QStringLiteral("/.wordmere-XXXXXX"));
    errno = 0;
    if (!file.open())
        Raise(file, errno, target);
}

void CopyContent(QFile &source, QFileDevice &copy, const QString &from, const QString &to,
                 const std::function<void()> &yield)
{
    constexpr qint64 kChunk = qint64{1} << 20;
    while (true) {
        errno = 0;
        const QByteArray bytes = source.read(kChunk);
        if (bytes.isEmpty()) {
            if (source.error() != QFileDevice::NoError)
                Raise(source, errno, from);
            return;
        }
        WriteAll(copy, bytes, to);
        if (yield)
            yield();
    }
}

/// Writes the file through to the disk: errno, or 0. With a `yield` on a thread of its own, for it may
/// take seconds.
int Flush(int handle, const std::function<void()> &yield)
{
    const auto flush = [handle] { return ::fsync(handle) == 0 ? 0 : errno; };
    if (!yield)
        return flush();
    std::future<int> error = std::async(std::launch::async, flush);
    constexpr std::chrono::milliseconds interval{10};
    while (error.wait_for(interval) != std::future_status::ready)
        yield();
    return error.get();
}

void SetTimeAndPermissions(const QFile &source, const QFileDevice &copy)
{
    struct stat state {
    };
    if (::fstat(source.handle(), &state) != 0)
        return;
    // Neither is worth failing for: some file systems have no permissions, some no such times.
    if (::fchmod(copy.handle(), (state.st_mode & 0777) | S_IWUSR) != 0)
        errno = 0;
    const timespec times[2] = {state.st_atim, state.st_mtim};
    if (::futimens(copy.handle(), times) != 0)
        errno = 0;
}

} // namespace

void files::host::Raise(int error, const QString &path) { throw RuntimeError(FailureNumber(error, path)); }

void files::host::Raise(const QFileDevice &file, int error, const QString &path)
{
    Raise(ErrorOf(file, error), path);
}

bool files::host::IsFile(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar::Null))
        return false;
    // Neither a folder nor a device nor a pipe, which might never give an end.
    return QFileInfo(path).isFile();
}

void files::host::RequireWritable(const QString &path)
{
    RequireName(path);
    if (IsMarkedReadOnly(path))
        throw RuntimeError(RuntimeError::PermissionDenied);
    const QByteArray name = QFile::encodeName(path);
    struct stat state {
    };
    if (::stat(name.constData(), &state) != 0 || ::access(name.constData(), W_OK) != 0)
        Raise(errno, path);
    constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    if ((state.st_mode & kAnyWrite) == 0)
        throw RuntimeError(RuntimeError::PermissionDenied);
}

void files::host::RequireWritableFolderOf(const QString &path)
{
    const QFileInfo folder(FolderOf(path));
    if (!folder.isDir())
        throw RuntimeError(RuntimeError::PathNotFound);
    RequireWritable(folder.filePath());
}

void files::host::RequireWritableOrCreatable(const QString &path)
{
    RequireName(path);
    if (QFileInfo::exists(path))
        RequireWritable(path);
    else if (IsMarkedReadOnly(path))
        throw RuntimeError(RuntimeError::PermissionDenied);
    else
        RequireWritableFolderOf(path);
}

void files::host::Open(QFile &file, const QString &path, QIODevice::OpenMode mode)
{
    RequireName(path);
    if (QFileInfo(path).isDir())
        Raise(EISDIR, path);
    if ((mode & QIODevice::WriteOnly) != 0)
        RequireWritableOrCreatable(path);
    file.setFileName(path);
    errno = 0;
    if (!file.open(mode))
        Raise(file, errno, path);
}

void files::host::Move(const QString &from, const QString &to, Target target,
                       const std::function<void()> &yield, const std::function<void()> &lastLook)
{
    RequireName(to);
    RequireWritable(from);
    RequireWritableFolderOf(from);
    RequireWritableFolderOf(to);
    if (lastLook)
        lastLook();
    const int error = RenameFile(from, to, target);
    if (error == 0)
        return;
    if (error != EXDEV)
        Raise(error, error == ENOENT ? from : to);
    Copy(from, to, target, yield, lastLook);
    if (::unlink(QFile::encodeName(from).constData()) != 0)
        Raise(errno, from);
}

void files::host::Copy(const QString &from, const QString &to, Target target,
                       const std::function<void()> &yield, const std::function<void()> &lastLook)
{
    RequireName(to);
    QFile source;
    Open(source, from, QIODevice::ReadOnly | QIODevice::Unbuffered);
    RequireWritableFolderOf(to);
    if (target == Target::MustBeFree && QFileInfo::exists(to))
        throw RuntimeError(RuntimeError::FileExists);
    QTemporaryFile copy;
    OpenBeside(copy, to);
    CopyContent(source, copy, from, to, yield);
    SetTimeAndPermissions(source, copy);
    if (const int error = Flush(copy.handle(), yield); error != 0)
        Raise(error, to);
    if (lastLook)
        lastLook();
    const int error = RenameFile(copy.fileName(), to, target);
    if (error != 0)
        Raise(error, to);
    copy.setAutoRemove(false);
}

void files::host::TakePermissions(const QString &path, const QString &from)
{
    struct stat state {
    };
    if (::stat(QFile::encodeName(from).constData(), &state) != 0)
        return;
    if (::chmod(QFile::encodeName(path).constData(), state.st_mode & 0777) != 0)
        errno = 0;
}

void files::host::Replace(const QString &path, const QByteArray &content)
{
    RequireName(path);
    if (QFileInfo(path).isDir())
        Raise(EISDIR, path);
    RequireWritableOrCreatable(path);
    RequireWritableFolderOf(path);
    QSaveFile file(path);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        Raise(file, errno, path);
    WriteAll(file, content, path);
    errno = 0;
    if (!file.commit())
        Raise(file, errno, path);
}
