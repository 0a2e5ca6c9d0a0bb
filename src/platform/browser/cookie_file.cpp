#include "platform/browser/cookie_file.h"

#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"

#include <QDateTime>
#include <QFile>
#include <QUrl>
#include <QWebEngineCookieStore>

namespace browser
{

namespace
{

/// Where a cookie of one host alone comes from. Cookies of a whole domain name it with a dot in front.
QUrl OriginOf(const QNetworkCookie &cookie)
{
    QUrl origin;
    origin.setScheme(cookie.isSecure() ? QStringLiteral("https") : QStringLiteral("http"));
    origin.setHost(cookie.domain());
    origin.setPath(cookie.path());
    return origin;
}

bool IsOver(const QNetworkCookie &cookie)
{
    return cookie.expirationDate() < QDateTime::currentDateTimeUtc();
}

} // namespace

CookieFile::CookieFile(QWebEngineCookieStore &store, QString path, QObject *parent)
    : QObject(parent), m_path(std::move(path))
{
    constexpr int quietMilliseconds = 1000;
    m_saving.setSingleShot(true);
    m_saving.setInterval(quietMilliseconds);
    connect(&m_saving, &QTimer::timeout, this, &CookieFile::Save);
    Load(store);
    connect(&store, &QWebEngineCookieStore::cookieAdded, this, &CookieFile::Take);
    connect(&store, &QWebEngineCookieStore::cookieRemoved, this, &CookieFile::Drop);
}

CookieFile::~CookieFile()
{
    if (m_saving.isActive())
        Save();
}

void CookieFile::Load(QWebEngineCookieStore &store)
{
    try {
        if (files::Exists(m_path))
            m_cookies = QNetworkCookie::parseCookies(files::ReadAll(m_path));
    } catch (const RuntimeError &) {
        return;
    }
    m_cookies.removeIf(IsOver);
    for (const QNetworkCookie &kept : std::as_const(m_cookies)) {
        QNetworkCookie cookie = kept;
        if (!cookie.domain().startsWith(u'.'))
            cookie.setDomain(QString());
        store.setCookie(cookie, OriginOf(kept));
    }
}

void CookieFile::Take(const QNetworkCookie &cookie)
{
    m_cookies.removeIf([&](const QNetworkCookie &kept) { return kept.hasSameIdentifier(cookie); });
    if (!cookie.isSessionCookie())
        m_cookies.append(cookie);
    m_saving.start();
}

void CookieFile::Drop(const QNetworkCookie &cookie)
{
    m_cookies.removeIf([&](const QNetworkCookie &kept) { return kept.hasSameIdentifier(cookie); });
    m_saving.start();
}

void CookieFile::Save()
{
    m_saving.stop();
    QByteArray content;
    for (const QNetworkCookie &cookie : std::as_const(m_cookies))
        if (!IsOver(cookie))
            content += cookie.toRawForm() + '\n';
    // From its beginning it is nobody else's.
    if (QFile file(files::HostPathOrEmpty(m_path)); !file.exists())
        file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
    try {
        files::Replace(m_path, content);
        QFile::setPermissions(files::HostPath(m_path), QFile::ReadOwner | QFile::WriteOwner);
    } catch (const RuntimeError &) {
        // The cookies hold for this run then.
    }
}

} // namespace browser
