#pragma once

#include <QWebEnginePage>
#include <QWebEngineProfile>

namespace browser
{

/// The page of the engine's pane, and what it may do: a page of the program shows itself and
/// nothing else; a web page keeps its script and links.
class EnginePage : public QWebEnginePage
{
    Q_OBJECT
public:
    EnginePage(QWebEngineProfile *profile, QObject *parent);

    /// The one local page whose links to the web are followed.
    void SetHome(const QUrl &url) { m_home = url; }

    /// Gives up the load in progress; the page shown is treated as what it is again.
    void StopLoading();

Q_SIGNALS:
    /// The page about to be shown, or shown, is one from the web.
    void WebPageChanged(bool isWeb);

protected:
    bool acceptNavigationRequest(const QUrl &target, NavigationType type, bool isMainFrame) override;
    // The boxes of a page's script are the program's own, and a page that shows one after the other can be
    // silenced.
    void javaScriptAlert(const QUrl &origin, const QString &text) override;
    bool javaScriptConfirm(const QUrl &origin, const QString &text) override;
    bool javaScriptPrompt(const QUrl &origin, const QString &text, const QString &given,
                          QString *answer) override;
    /// A page of the program gets no file.
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &former,
                            const QStringList &types) override;

private:
    void NameActions();
    /// Whether one more box of the page is shown; the user may have refused.
    bool MayShowBox(const QUrl &origin);
    void ApplySettings(const QUrl &shown);
    /// No other page is on its way any more.
    void SettleFor(const QUrl &shown);

    QUrl m_home, m_coming;
    bool m_webIsComing = false;
    int m_boxes = 0; ///< that the page has shown since it was opened
    bool m_isSilenced = false;
};

/// A profile that by itself keeps nothing beyond the run, with the fonts of a Japanese desktop.
QWebEngineProfile *MakeProfile(QObject *parent);

} // namespace browser
