#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>

namespace browser
{

/// Commands of ExecWB.
enum Command : int { Print = 6, PrintPreview = 7, PageSetup = 8, Copy = 12, SelectAll = 17 };

/// Which pane new WebBrowsers have: the real one, or one that records and shows text only (the
/// engine of the real one does not survive sanitizers).
enum class Backend { Engine, Recording };
void SetBackend(Backend backend);
Backend CurrentBackend();

/// To be called before the application object is made: sandbox, backend and flags of the engine.
void PrepareProcess();

class FindBar;
class Pane;

/// The pane. Pages of the application folder are shown without script and without any access
/// beyond the page itself; web pages keep theirs.
class WebBrowser : public QWidget
{
    Q_OBJECT
public:
    explicit WebBrowser(QWidget *parent = nullptr);
    ~WebBrowser() override;

    /// Makes the engine's view; to be called once the window is on the screen. Until then
    /// navigations wait.
    void CreateView();

    /// Shows the page at a drive path or a web address. Returns at once.
    void Navigate(const QString &address);
    /// The same for an address that a file has kept. What is shown of files is for the user to type: one
    /// with the scheme `file:` is not shown.
    void NavigateToKept(const QString &address);
    /// Back and forward do nothing where there is no page in that direction.
    void GoBack();
    void GoForward();
    /// The page that GoHome shows. It is the one local page whose links lead to the web.
    void SetHomePage(const QString &address);
    /// Keeps the cookies that are to outlive the run in a file, a drive path, from now on. Nothing else of
    /// what web pages leave is kept.
    void KeepCookies(const QString &path);
    /// Shows the home page; does nothing where there is none.
    void GoHome();
    void Stop();
    void Refresh();
    /// Where the pane is: a drive path or a web address, as Navigate takes it; empty before the
    /// first page.
    QString LocationURL() const;
    QString LocationName() const;

    /// Runs a command; raises what stands in the way (-2147467259 when it cannot be done).
    void ExecWB(int command, int option = 0);

    /// What is selected in the page.
    QString SelectedText() const;
    /// Opens the find bar, as Ctrl+F in the pane does.
    void ShowFindBar();

    /// For tests: addresses as they were given and commands run since the last call, the latest thousand; the
    /// page's text as shown; whether a load is still in progress.
    QStringList TakeNavigations();
    QList<int> TakeCommands();
    QString ShownText() const;
    bool IsLoading() const;

Q_SIGNALS:
    void StatusTextChange(const QString &text);
    void TitleChange(const QString &text);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Open(const QString &address);
    void TellNotFound();
    void Find(const QString &text, bool backward);
    void CloseFindBar();

    std::unique_ptr<Pane> m_pane;
    QStringList m_navigations;
    QList<int> m_commands;
    QString m_waiting;
    QString m_home;
    QString m_cookies;
    FindBar *m_findBar = nullptr;
};

} // namespace browser
