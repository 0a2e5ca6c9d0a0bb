#pragma once

#include "platform/browser/pane.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QPrinter>
#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <memory>

class QWebEngineProfile;
class QWebEngineView;

namespace browser
{

class CookieFile;
class EnginePage;

/// The real pane, on the web engine.
class EnginePane : public Pane
{
    Q_OBJECT
public:
    explicit EnginePane(QWidget *parent);
    ~EnginePane() override;

    QWidget *View() override;
    void Open(const QUrl &url) override;
    void SetHome(const QUrl &url) override;
    void KeepCookies(const QString &path) override;
    void Back() override;
    void Forward() override;
    void Stop() override;
    void Reload() override;
    QUrl Url() const override;
    QString Title() const override;
    bool IsLoading() const override { return m_loading; }
    QString SelectedText() const override;
    void SelectAll() override;
    QString ShownText() const override;
    void TakeFocus() override;
    void Print() override;
    void PreviewPrint() override;
    void SetUpPage() override;
    void Find(const QString &text, bool backward, const std::function<void(int, int)> &found) override;

    /// Prints the page and waits until it is done: as a PDF where the printer makes one, else, and for
    /// a preview, as pictures of 300 dpi. False when that failed.
    bool PrintTo(QPrinter &printer);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ConnectPage();
    void ReviveAfterCrash();
    /// Asks where a file goes that a web page hands out.
    void TakeDownload(QWebEngineDownloadRequest &request);
    static void TellDownload(QWebEngineDownloadRequest::DownloadState state);
    bool IsFocusStolen(const QEvent &event) const;
    void PutOnKeyboardsWay(QWidget &inner);
    QPrinter &Printer();

    QWebEngineProfile *m_profile;
    EnginePage *m_page;
    QPointer<QWebEngineView> m_view;
    std::unique_ptr<CookieFile> m_cookies;
    std::unique_ptr<QPrinter> m_printer;
    QPointer<QWidget> m_focusElsewhere;
    QElapsedTimer m_sinceCrash;
    QTimer m_startTimeout;
    bool m_awaitsStart = false;
    bool m_loading = false;
    bool m_isAllSelected = false;
    bool m_focusGranted = false;
};

} // namespace browser
