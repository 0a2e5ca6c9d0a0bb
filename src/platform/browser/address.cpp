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

namespace
{

/// The address as people read it, but for characters that nobody sees: at its end they would be lost, and
/// those that turn the direction would disguise it.
QString Readable(const QUrl &url)
{
    QString address;
    for (const QChar character : url.toString()) {
        if (character.isSpace() || character.category() == QChar::Other_Format)
            address += QString::fromLatin1(QUrl::toPercentEncoding(character));
        else
            address += character;
    }
    return address;
}

} // namespace

QString browser::AddressOf(const QUrl &url)
{
    if (!url.isLocalFile())
        return Readable(url);
    try {
        return files::DrivePath(url.toLocalFile());
    } catch (const RuntimeError &) {
        return Readable(url);
    }
}

bool browser::IsWebPage(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}
