#include "platform/browser/web_browser.h"

#include "platform/browser/address.h"
#include "platform/browser/engine_pane.h"
#include "platform/browser/find_bar.h"
#include "platform/browser/recording_pane.h"
#include "platform/controls/white_base.h"
#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"
#include "platform/host/host.h"

#include <QFileInfo>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QQuickWidget>
#include <QVBoxLayout>
#include <utility>

namespace browser
{

namespace
{

Backend backend = Backend::Engine;

std::unique_ptr<Pane> MakePane(QWidget *parent)
{
    if (backend == Backend::Recording)
        return std::make_unique<RecordingPane>(parent);
    return std::make_unique<EnginePane>(parent);
}

/// What the engine's view draws on, from the start. A window that gets its first one later is made
/// anew, and loses the keys of that moment.
void ReserveCanvas(QWidget *parent)
{
    auto *canvas = new QQuickWidget(parent);
    canvas->setFocusPolicy(Qt::NoFocus);
    canvas->setAttribute(Qt::WA_TransparentForMouseEvents);
    canvas->setClearColor(Qt::white);
    canvas->resize(1, 1);
}

/// Keeps what was asked of the pane, but not of a whole day.
template <typename Value> void Note(QList<Value> &asked, const Value &value)
{
    constexpr qsizetype mostKept = 1000;
    if (asked.size() == mostKept)
        asked.removeFirst();
    asked.append(value);
}

} // namespace

void SetBackend(Backend newBackend) { backend = newBackend; }

Backend CurrentBackend() { return backend; }

WebBrowser::WebBrowser(QWidget *parent) : QWidget(parent)
{
    controls::UseWhiteBase(*this);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    if (backend == Backend::Engine)
        ReserveCanvas(this);
}

WebBrowser::~WebBrowser() = default;

void WebBrowser::CreateView()
{
    if (m_pane)
        return;
    m_pane = MakePane(this);
    m_findBar = new FindBar(this);
    m_findBar->hide();
    auto *rows = static_cast<QVBoxLayout *>(layout());
    rows->addWidget(m_pane->View(), 1);
    rows->addWidget(m_findBar);
    // The keyboard's way leads to the view itself, then through the bar, and not back to this frame.
    setFocusPolicy(Qt::ClickFocus);
    QWidget *last = this;
    const QList<QWidget *> parts = QList<QWidget *>{m_pane->View()} + m_findBar->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        setTabOrder(last, part);
        last = part;
    }
    connect(m_pane.get(), &Pane::StatusChanged, this, &WebBrowser::StatusTextChange);
    connect(m_pane.get(), &Pane::TitleChanged, this, &WebBrowser::TitleChange);
    connect(m_pane.get(), &Pane::FindAsked, this, &WebBrowser::ShowFindBar);
    connect(m_findBar, &FindBar::FindRequested, this, &WebBrowser::Find);
    connect(m_findBar, &FindBar::CloseRequested, this, &WebBrowser::CloseFindBar);
    m_pane->SetHome(UrlOf(m_home));
    if (!m_cookies.isEmpty())
        m_pane->KeepCookies(m_cookies);
    const QString waiting = std::exchange(m_waiting, {});
    if (!waiting.isEmpty())
        Open(waiting);
}

void WebBrowser::Navigate(const QString &address)
{
    Note(m_navigations, address);
    if (m_pane)
        Open(address);
    else
        m_waiting = address;
}

void WebBrowser::NavigateToKept(const QString &address)
{
    if (QUrl(address.trimmed()).isLocalFile()) {
        Note(m_navigations, address);
        TellNotFound();
        return;
    }
    Navigate(address);
}

void WebBrowser::TellNotFound() { Q_EMIT StatusTextChange(QStringLiteral("ページが見つかりません")); }

void WebBrowser::Open(const QString &address)
{
    const QUrl url = UrlOf(address);
    if (url.isEmpty() || (url.isLocalFile() && !QFileInfo(url.toLocalFile()).isFile())) {
        TellNotFound();
        return;
    }
    m_pane->Open(url);
}

void WebBrowser::GoBack()
{
    if (m_pane)
        m_pane->Back();
}

void WebBrowser::GoForward()
{
    if (m_pane)
        m_pane->Forward();
}

void WebBrowser::SetHomePage(const QString &address)
{
    m_home = address;
    if (m_pane)
        m_pane->SetHome(UrlOf(address));
}

void WebBrowser::KeepCookies(const QString &path)
{
    m_cookies = path;
    if (m_pane)
        m_pane->KeepCookies(path);
}

void WebBrowser::GoHome()
{
    if (m_pane && !m_home.isEmpty())
        Open(m_home);
}

void WebBrowser::Stop()
{
    if (m_pane)
        m_pane->Stop();
}

void WebBrowser::Refresh()
{
    if (m_pane)
        m_pane->Reload();
}

QString WebBrowser::LocationURL() const { return m_pane ? AddressOf(m_pane->Url()) : QString(); }

QString WebBrowser::LocationName() const { return m_pane ? m_pane->Title() : QString(); }

void WebBrowser::ExecWB(int command, int)
{
    Note(m_commands, command);
    faults::Point("ExecWB");
    if (!m_pane)
        throw RuntimeError(RuntimeError::CannotOpenDatabase, RuntimeError::defaultSource(),
                           QStringLiteral("表示されているページがありません。"));
    switch (command) {
    case Print: m_pane->Print(); break;
    case PrintPreview: m_pane->PreviewPrint(); break;
    case PageSetup: m_pane->SetUpPage(); break;
    case Copy:
        if (const QString selected = SelectedText(); !selected.isEmpty())
            host::SetClipboardText(selected);
        break;
    case SelectAll:
        m_pane->TakeFocus();
        m_pane->SelectAll();
        break;
    default: throw RuntimeError(RuntimeError::InvalidCall);
    }
}

QString WebBrowser::SelectedText() const { return m_pane ? m_pane->SelectedText() : QString(); }

void WebBrowser::ShowFindBar()
{
    if (m_findBar)
        m_findBar->Open();
}

void WebBrowser::Find(const QString &text, bool backward)
{
    m_pane->Find(text, backward, [bar = QPointer<FindBar>(m_findBar)](int active, int total) {
        if (bar)
            bar->ShowCount(active, total);
    });
}

void WebBrowser::CloseFindBar()
{
    Find(QString(), false);
    m_pane->TakeFocus();
    m_findBar->hide();
}

QStringList WebBrowser::TakeNavigations() { return std::exchange(m_navigations, {}); }

QList<int> WebBrowser::TakeCommands() { return std::exchange(m_commands, {}); }

QString WebBrowser::ShownText() const { return m_pane ? m_pane->ShownText() : QString(); }

bool WebBrowser::IsLoading() const { return m_pane && m_pane->IsLoading(); }

void WebBrowser::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (m_pane)
        m_pane->TakeFocus();
}

void WebBrowser::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Find))
        ShowFindBar();
    else
        QWidget::keyPressEvent(event);
}

} // namespace browser
