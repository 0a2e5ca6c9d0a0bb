#pragma once

#include <QString>
#include <QUrl>

namespace browser
{

/// The page that an address means: a drive path, a web address, or one typed without its scheme
/// ("example.com"). Empty for what the pane does not show.
QUrl UrlOf(const QString &address);

/// The address of a page, as UrlOf takes it.
QString AddressOf(const QUrl &url);

/// Whether a page comes from the web, and not from the program.
bool IsWebPage(const QUrl &url);

} // namespace browser
