#pragma once

#include <QObject>
#include <QUrl>
#include <functional>

namespace browser
{

/// What shows the pages of a WebBrowser.
class Pane : public QObject
{
    Q_OBJECT
public:
    /// The widget; it belongs to the WebBrowser that it is put into.
    virtual QWidget *View() = 0;

    /// Shows a page. Local files are there when this is called.
    virtual void Open(const QUrl &url) = 0;
    /// The one local page whose links to the web are followed.
    virtual void SetHome(const QUrl &url) = 0;
    virtual void KeepCookies(const QString &path) = 0;
    virtual void Back() = 0;
    virtual void Forward() = 0;
    virtual void Stop() = 0;
    virtual void Reload() = 0;
    virtual QUrl Url() const = 0;
    virtual QString Title() const = 0;
    virtual bool IsLoading() const = 0;

    virtual QString SelectedText() const = 0;
    virtual void SelectAll() = 0;
    /// The page's text as shown; waits for it.
    virtual QString ShownText() const = 0;
    /// Gives the view the focus, for the program wants it there.
    virtual void TakeFocus() = 0;

    /// Printing with its dialogs; raises -2147467259 when it cannot be done.
    virtual void Print() = 0;
    virtual void PreviewPrint() = 0;
    virtual void SetUpPage() = 0;

    /// Marks the matches and moves to the next one, or the previous one; an empty text takes the
    /// marks away. `found` gets the number of the match reached and of all.
    virtual void Find(const QString &text, bool backward, const std::function<void(int, int)> &found) = 0;

Q_SIGNALS:
    void StatusChanged(const QString &text);
    void TitleChanged(const QString &text);
    /// The keys that open the find bar were pressed in the view.
    void FindAsked();
};

} // namespace browser
