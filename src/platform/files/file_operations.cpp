#include "platform/files/file_operations.h"

#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/host_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <unistd.h>

namespace
{

std::atomic<qint64> injectedFreeBytes{-1};

QFileInfo RequireFile(const QString &path)
{
    const QString host = files::HostPath(path);
    if (!files::host::IsFile(host))
        files::host::Raise(ENOENT, host);
    return QFileInfo(host);
}

/// The figures of the file system; a path that is not there yet belongs to its nearest folder.
std::filesystem::space_info SpaceAt(const QString &path)
{
    QString place = QDir::cleanPath(files::HostPath(path));
    while (!QFileInfo::exists(place) && place != QLatin1String("/"))
        place = QFileInfo(place).path();
    std::error_code error;
    const std::filesystem::space_info space =
        std::filesystem::space(QFile::encodeName(place).toStdString(), error);
    if (error)
        throw RuntimeError(RuntimeError::PathNotFound);
    return space;
}

} // namespace

bool files::Exists(const QString &path) { return host::IsFile(HostPathOrEmpty(path)); }

bool files::IsSameFile(const QString &path, const QString &other)
{
    const auto native = [](const QString &drivePath) {
        return std::filesystem::path(QFile::encodeName(HostPathOrEmpty(drivePath)).toStdString());
    };
    std::error_code failure;
    return std::filesystem::equivalent(native(path), native(other), failure) && !failure;
}

qint64 files::Length(const QString &path) { return RequireFile(path).size(); }

QDateTime files::Modified(const QString &path) { return RequireFile(path).lastModified(); }

void files::Delete(const QString &path)
{
    faults::Point("delete");
    const QString file = RequireFile(path).filePath();
    host::RequireWritable(file);
    host::RequireWritableFolderOf(file);
    if (::unlink(QFile::encodeName(file).constData()) != 0)
        host::Raise(errno, file);
}

void files::DeleteIfThere(const QString &path)
{
    if (Exists(path))
        Delete(path);
}

void files::Copy(const QString &from, const QString &to, const std::function<void()> &yield)
{
    faults::Point("copy");
    host::Copy(HostPath(from), HostPath(to), host::Target::MustBeFree, yield);
}

void files::Rename(const QString &from, const QString &to)
{
    faults::Point("rename");
    host::Move(RequireFile(from).filePath(), HostPath(to), host::Target::MustBeFree);
}

void files::ReplaceByFile(const QString &path, const QString &from, const std::function<void()> &yield,
                          const std::function<void()> &lastLook)
{
    QString target = HostPath(path);
    const bool replaces = host::IsFile(target);
    if (replaces)
        faults::Point("delete");
    faults::Point("rename");
    const QString source = RequireFile(from).filePath();
    if (replaces) {
        host::RequireWritable(target);
        target = QFileInfo(target).canonicalFilePath();
        host::TakePermissions(source, target);
    }
    host::Move(source, target, host::Target::IsReplaced, yield, lastLook);
}

void files::Replace(const QString &path, const QByteArray &content)
{
    if (Exists(path))
        faults::Point("delete");
    faults::Point("rename");
    faults::Point("write");
    host::Replace(HostPath(path), content);
}

QByteArray files::ReadAll(const QString &path)
{
    faults::Point("read");
    const QString name = HostPath(path);
    QFile file;
    host::Open(file, name, QIODevice::ReadOnly | QIODevice::Unbuffered);
    errno = 0;
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        host::Raise(file, errno, name);
    return content;
}

QStringList files::Matching(const QString &folder, const QString &pattern)
{
    const QString hostFolder = HostPathOrEmpty(folder);
    if (hostFolder.isEmpty())
        return {};
    QStringList names = QDir(hostFolder).entryList({pattern}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    // A name with a backslash has no drive path.
    names.removeIf([](const QString &name) { return name.contains(u'\\'); });
    return names;
}

qint64 files::FreeBytes(const QString &path)
{
    const qint64 injected = injectedFreeBytes;
    return injected >= 0 ? injected : static_cast<qint64>(SpaceAt(path).available);
}

qint64 files::TotalBytes(const QString &path) { return static_cast<qint64>(SpaceAt(path).capacity); }

void files::RequireWritable(const QString &path) { host::RequireWritableOrCreatable(HostPath(path)); }

bool files::IsWritable(const QString &path)
{
    try {
        RequireWritable(path);
        return true;
    } catch (const RuntimeError &) {
        return false;
    }
}

void files::SetFreeBytes(qint64 bytes) { injectedFreeBytes = bytes; }
