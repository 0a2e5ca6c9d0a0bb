#include "platform/host/host.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

bool IsPrivateFolder(const QString &path)
{
    struct stat facts = {};
    if (lstat(QFile::encodeName(path).constData(), &facts) != 0)
        return false;
    return S_ISDIR(facts.st_mode) && facts.st_uid == geteuid() && (facts.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

// The same folder for every session of a user, whatever its environment says: two instances must
// meet at one file.
QString LockFolder()
{
    const QString user = QString::number(geteuid());
    QString session = QStringLiteral("/run/user/") + user;
    if (IsPrivateFolder(session) && access(QFile::encodeName(session).constData(), W_OK) == 0)
        return session;
    const QString own = QStringLiteral("/tmp/wordmere-") + user;
    mkdir(QFile::encodeName(own).constData(), S_IRWXU);
    return IsPrivateFolder(own) ? own : QString();
}

/// The folder without symbolic links on the way, though it may not be there yet.
QString RealPath(const QString &folder)
{
    QString there = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    QString rest;
    while (!QFileInfo::exists(there) && there.size() > 1) {
        const QFileInfo info(there);
        rest.prepend(QLatin1Char('/') + info.fileName());
        there = info.path();
    }
    return QFileInfo(there).canonicalFilePath() + rest;
}

QString LockFile(const QString &folder)
{
    const QString place = LockFolder();
    if (place.isEmpty())
        return {};
    const QByteArray name =
        QCryptographicHash::hash(RealPath(folder).toUtf8(), QCryptographicHash::Sha256).toHex();
    return place + QStringLiteral("/wordmere-") + QString::fromLatin1(name) + QStringLiteral(".lock");
}

} // namespace

host::InstanceLock::InstanceLock(const QString &folder)
{
    // Without a place for the lock the program starts all the same: a user locked out of it would be
    // worse off than one with two windows.
    const QString path = LockFile(folder);
    if (path.isEmpty())
        return;
    m_file = open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                  S_IRUSR | S_IWUSR);
    if (m_file < 0)
        return;
    int result = -1;
    do
        result = flock(m_file, LOCK_EX | LOCK_NB);
    while (result != 0 && errno == EINTR);
    m_heldElsewhere = result != 0 && errno == EWOULDBLOCK;
}

host::InstanceLock::~InstanceLock()
{
    if (m_file >= 0)
        close(m_file);
}

bool host::InstanceLock::HeldElsewhere() const { return m_heldElsewhere; }
