#include "platform/browser/address.h"

#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"

#include <QRegularExpression>

QUrl browser::UrlOf(const QString &address)
{
    static const QRegularExpression drivePath(QStringLiteral("^[A-Za-z]:[\\\\/]"));
    const QString typed = files::TypedPath(address.trimmed());
    if (drivePath.match(typed).hasMatch()) {
        const QString hostPath = files::HostPathOrEmpty(typed);
        return hostPath.isEmpty() ? QUrl() : QUrl::fromLocalFile(hostPath);
    }
    const QUrl url = QUrl::fromUserInput(typed);
    const bool isShown = url.isLocalFile() || (IsWebPage(url) && !url.host().isEmpty());
    return isShown || typed == QLatin1String("about:blank") ? url : QUrl();
}

QString browser::AddressOf(const QUrl &url)
{
    if (!url.isLocalFile())
        return url.toString();
    try {
        return files::DrivePath(url.toLocalFile());
    } catch (const RuntimeError &) {
        return url.toString();
    }
}

bool browser::IsWebPage(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}
