#include "run_folder.h"

#include "platform/files/application_folder.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <array>

namespace
{

struct Place {
    const char *variable;
    const char *name;
};
constexpr std::array kPlaces{
    Place{"HOME", "home"},
    Place{"XDG_CONFIG_HOME", "config"},
    Place{"XDG_DATA_HOME", "data"},
    Place{"XDG_STATE_HOME", "state"},
    Place{"XDG_CACHE_HOME", "cache"},
    Place{"XDG_RUNTIME_DIR", "runtime"},
    Place{"TMPDIR", "tmp"},
};

constexpr QFile::Permissions kOwnerAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

} // namespace

RunFolder::RunFolder() : m_root(QDir::tempPath() + QStringLiteral("/run-XXXXXX"))
{
    if (!m_root.isValid())
        qFatal("no temporary folder: %s", qPrintable(m_root.errorString()));
    for (const Place &place : kPlaces)
        QDir().mkpath(Inside(QString::fromLatin1(place.name)));
    QDir().mkpath(ScriptFolder());
    QFile::setPermissions(Inside(QStringLiteral("runtime")), kOwnerAll);
}

RunFolder::~RunFolder()
{
    QDirIterator folders(m_root.path(), QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks,
                         QDirIterator::Subdirectories);
    while (folders.hasNext())
        QFile::setPermissions(folders.next(), kOwnerAll);
}

void RunFolder::EnterEnvironment() const
{
    for (const Place &place : kPlaces)
        qputenv(place.variable, Inside(QString::fromLatin1(place.name)).toLocal8Bit());
    qputenv("LANG", "ja_JP.UTF-8");
    // The C library of a bare system lacks the Japanese locale; characters are all it is needed for.
    qputenv("LC_CTYPE", "C.UTF-8");
    qunsetenv("LC_ALL");
    qunsetenv("LANGUAGE");
}

QHash<QString, RunFolder::Stamp> RunFolder::StampsIn(const QString &folder)
{
    QHash<QString, Stamp> stamps;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QFileInfo info(path);
        stamps.insert(path, {info.size(), info.lastModified().toMSecsSinceEpoch()});
    }
    return stamps;
}

void RunFolder::FillApplicationFolder(const QString &shareFolder)
{
    files::FillApplicationFolder(ApplicationFolder(), {.shareFolder = shareFolder, .withSample = false});
    m_filled = StampsIn(ApplicationFolder());
}

void RunFolder::EmptyApplicationFolder()
{
    const QHash<QString, Stamp> present = StampsIn(ApplicationFolder());
    const QDir folder(ApplicationFolder());
    for (auto file = m_filled.cbegin(); file != m_filled.cend(); ++file) {
        if (!present.contains(file.key()) || present.value(file.key()) != file.value())
            continue;
        QFile::remove(file.key());
        // Folders that hold nothing any more go too.
        for (QString parent = QFileInfo(file.key()).path(); parent.size() > folder.path().size();
             parent = QFileInfo(parent).path())
            if (!folder.rmdir(parent))
                break;
    }
    m_filled.clear();
}
