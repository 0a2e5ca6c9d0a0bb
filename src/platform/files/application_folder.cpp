#include "platform/files/application_folder.h"

#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/host_files.h"
#include "platform/files/line_file.h"
#include "platform/text/shift_jis.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using files::host::Target;

QString applicationFolder;

/// The names of the shipped files that were brought to a folder, so that what the user deleted stays
/// deleted.
const QString kManifest = QStringLiteral(".shipped");
const QString kCatalogue = QStringLiteral("lexicons.dat");

QString Join(const QString &folder, const QString &name) { return folder + u'/' + name; }

void MakeFolder(const QString &folder)
{
    errno = 0;
    if (!QDir().mkpath(folder))
        files::host::Raise(errno == 0 ? EACCES : errno, folder);
}

/// All files below a folder, by their paths inside it, in a steady order.
QStringList FilesBelow(const QString &folder)
{
    QStringList names;
    QDirIterator iterator(folder, QDir::Files, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        names.append(QDir(folder).relativeFilePath(iterator.next()));
    names.sort();
    return names;
}

QByteArray ReadHostFile(const QString &path)
{
    QFile file;
    files::host::Open(file, path, QIODevice::ReadOnly);
    return file.readAll();
}

QSet<QString> ReadManifest(const QString &folder)
{
    const QString path = Join(folder, kManifest);
    if (!files::host::IsFile(path))
        return {};
    const QStringList names = QString::fromUtf8(ReadHostFile(path)).split(u'\n', Qt::SkipEmptyParts);
    return {names.begin(), names.end()};
}

void WriteManifest(const QString &folder, const QSet<QString> &names)
{
    QStringList sorted(names.begin(), names.end());
    sorted.sort();
    files::host::Replace(Join(folder, kManifest), (sorted.join(u'\n') + u'\n').toUtf8());
}

/// What the program itself may renew: the user edits the other files.
bool IsRefreshed(const QString &name)
{
    return name == QLatin1String("Help.HLP") || (name.startsWith(QLatin1String("msagent/Chars/")) &&
                                                 name.endsWith(QLatin1String(".acs"), Qt::CaseInsensitive));
}

/// Copies a file to a name that is free; another process may have brought it first.
void BringFile(const QString &from, const QString &to)
{
    if (QFileInfo::exists(to))
        return;
    MakeFolder(QFileInfo(to).path());
    try {
        files::host::Copy(from, to, Target::MustBeFree);
    } catch (const RuntimeError &error) {
        if (error.number() != RuntimeError::FileExists)
            throw;
    }
}

void RefreshFile(const QString &from, const QString &to)
{
    if (!files::host::IsFile(to) || QFileInfo(from).lastModified() <= QFileInfo(to).lastModified())
        return;
    try {
        files::host::RequireWritable(to);
        files::host::RequireWritableFolderOf(to);
    } catch (const RuntimeError &) {
        return; // A folder that cannot be written keeps what it has.
    }
    files::host::Copy(from, to, Target::IsReplaced);
}

/// A catalogue record of the dictionary in use: name, path, selected, not deleted.
QByteArray CatalogueRecord(const QString &name, const QString &path)
{
    constexpr qsizetype kNameSize = 50;
    constexpr qsizetype kPathSize = 255;
    return text::FixedField(name, kNameSize) + text::FixedField(path, kPathSize) +
           QByteArray("\xFF\xFF\x00\x00", 4);
}

/// The sample dictionary: its file, and the name that the catalogue shows.
struct Sample {
    QString file;
    QString name;
};

/// Empty where none is installed.
Sample FindSample(const QString &shareFolder)
{
    const QDir folder(Join(shareFolder, QStringLiteral("sample")));
    const QStringList found = folder.entryList({QStringLiteral("*.mdb")}, QDir::Files, QDir::Name);
    const QString nameFile = folder.filePath(QStringLiteral("name.txt"));
    if (found.isEmpty() || !files::host::IsFile(nameFile))
        return {};
    return {folder.filePath(found.first()), QString::fromUtf8(ReadHostFile(nameFile)).trimmed()};
}

/// Brings the sample to a folder whose catalogue is empty; `home` is the folder's name in the end.
void BringSample(const QString &folder, const QString &home, const QString &shareFolder,
                 QSet<QString> &manifest)
{
    const Sample sample = FindSample(shareFolder);
    const QString name = QFileInfo(sample.file).fileName();
    if (sample.file.isEmpty() || manifest.contains(name))
        return;
    const QString catalogue = Join(folder, kCatalogue);
    const QString path = files::DrivePath(Join(home, name));
    if (QFileInfo(catalogue).size() > 0 || text::FieldCuts(path, 255))
        return;
    BringFile(sample.file, Join(folder, name));
    files::host::Replace(catalogue, CatalogueRecord(sample.name, path));
    manifest.insert(name);
}

/// Keeps other processes from filling the same folder for as long as it lives. Where the file system
/// knows no locks, each file is still whole.
class FillLock
{
public:
    explicit FillLock(const QString &folder)
        : m_folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        if (m_folder >= 0)
            ::flock(m_folder, LOCK_EX);
    }
    ~FillLock()
    {
        if (m_folder >= 0)
            ::close(m_folder);
    }
    FillLock(const FillLock &) = delete;
    FillLock &operator=(const FillLock &) = delete;

private:
    int m_folder;
};

/// Brings to the folder what was never brought to it, and renews what is the program's own.
void Bring(const QString &folder, const QString &home, const files::Shipped &shipped)
{
    const QSet<QString> brought = ReadManifest(folder);
    QSet<QString> manifest = brought;
    const QString source = Join(shipped.shareFolder, QStringLiteral("appfolder"));
    for (const QString &name : FilesBelow(source)) {
        if (!manifest.contains(name)) {
            BringFile(Join(source, name), Join(folder, name));
            manifest.insert(name);
        }
        if (IsRefreshed(name))
            RefreshFile(Join(source, name), Join(folder, name));
    }
    if (shipped.withSample)
        BringSample(folder, home, shipped.shareFolder, manifest);
    if (manifest != brought)
        WriteManifest(folder, manifest);
}

/// Fills a folder aside and gives it the name; false where another process was first.
bool FillAside(const QString &folder, const files::Shipped &shipped)
{
    const QString parent = QFileInfo(folder).path();
    MakeFolder(parent);
    files::host::RequireWritableFolderOf(folder);
    errno = 0;
    QTemporaryDir aside(folder + QStringLiteral(".new-XXXXXX"));
    if (!aside.isValid())
        files::host::Raise(errno == 0 ? EACCES : errno, folder);
    Bring(aside.path(), folder, shipped);
    if (::rename(QFile::encodeName(aside.path()).constData(), QFile::encodeName(folder).constData()) == 0) {
        aside.setAutoRemove(false);
        return true;
    }
    const int error = errno;
    if (error != EEXIST && error != ENOTEMPTY && error != ENOTDIR)
        files::host::Raise(error, folder);
    return false;
}

} // namespace

QString files::ApplicationFolder() { return applicationFolder; }

void files::SetApplicationFolder(const QString &hostPath)
{
    QString path = DrivePath(QDir::cleanPath(hostPath));
    while (path.endsWith(u'\\'))
        path.chop(1);
    applicationFolder = path;
}

QString files::ChooseApplicationFolder(const QString &executableFolder)
{
    if (host::IsFile(Join(executableFolder, QStringLiteral("portable"))))
        return executableFolder;
    return Join(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation),
                QStringLiteral("Wordmere"));
}

void files::FillApplicationFolder(const QString &hostFolder, const Shipped &shipped)
{
    const QString folder = QDir::cleanPath(hostFolder);
    if (!QFileInfo::exists(folder) && FillAside(folder, shipped))
        return;
    if (!QFileInfo(folder).isDir())
        host::Raise(ENOTDIR, folder);
    const FillLock lock(folder);
    Bring(folder, folder, shipped);
}

QString files::TempFolder()
{
    const QString folder = Join(QDir::tempPath(), QStringLiteral("wordmere-%1").arg(::getuid()));
    const QByteArray name = QFile::encodeName(folder);
    constexpr mode_t kPrivate = S_IRWXU;
    if (::mkdir(name.constData(), kPrivate) != 0 && errno != EEXIST)
        host::Raise(errno, folder);
    // In a folder that everybody writes, another user may have taken the name first.
    struct stat state {
    };
    if (::lstat(name.constData(), &state) != 0)
        host::Raise(errno, folder);
    if (!S_ISDIR(state.st_mode) || state.st_uid != ::getuid())
        throw RuntimeError(RuntimeError::PermissionDenied);
    if ((state.st_mode & 0777) != kPrivate && ::chmod(name.constData(), kPrivate) != 0)
        host::Raise(errno, folder);
    return DrivePath(folder) + u'\\';
}
