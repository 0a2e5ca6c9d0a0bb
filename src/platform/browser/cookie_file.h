#pragma once

#include <QNetworkCookie>
#include <QObject>
#include <QString>
#include <QTimer>

class QWebEngineCookieStore;

namespace browser
{

/// Keeps the cookies that are to outlive the run in a file, one a line, which its owner alone can read.
/// A file that cannot be read or written costs nothing but the cookies.
class CookieFile : public QObject
{
    Q_OBJECT
public:
    /// Gives the store what the file (a drive path) has, and follows the store from then on.
    CookieFile(QWebEngineCookieStore &store, QString path, QObject *parent);
    ~CookieFile() override;

private:
    void Load(QWebEngineCookieStore &store);
    void Take(const QNetworkCookie &cookie);
    void Drop(const QNetworkCookie &cookie);
    void Save();

    QString m_path;
    QList<QNetworkCookie> m_cookies;
    QTimer m_saving;
};

} // namespace browser
