#include "platform/browser/engine_pane.h"

#include "platform/browser/address.h"
#include "platform/browser/cookie_file.h"
#include "platform/browser/engine_page.h"
#include "platform/controls/handler.h"
#include "platform/dialogs/dialogs.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/host/host.h"

#include <QApplication>
#include <QChildEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPageSetupDialog>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinterInfo>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWebEngineFindTextResult>
#include <QWebEngineHistory>
#include <QWebEngineView>
#include <optional>

namespace browser
{

namespace
{

constexpr int kLongestPrint = 120'000;
constexpr int kLongestWaitForText = 10'000;
constexpr int kLongestWaitForStart = 1'000;
constexpr int kLongestWaitForSelection = 500;
constexpr int kPrintResolution = 300;

/// An answer that comes later, waited for with the event loop running.
template <typename Value> class LateAnswer
{
public:
    /// What takes the answer; it may come after the waiting was given up.
    auto Taker() const
    {
        return [state = m_state](const Value &value) {
            state->value = value;
            if (state->loop)
                state->loop->quit();
        };
    }
    std::optional<Value> Wait(int milliseconds,
                              QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents) const
    {
        if (!m_state->value) {
            QEventLoop loop;
            m_state->loop = &loop;
            QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
            loop.exec(flags);
            m_state->loop = nullptr;
        }
        return m_state->value;
    }

private:
    struct State {
        std::optional<Value> value;
        QEventLoop *loop = nullptr;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

/// Whether what is printed goes to a file that the engine can write by itself. A preview has the
/// printer's file name too, and must not write there.
bool MakesPdf(const QPrinter &printer)
{
    return printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty() &&
           printer.paintEngine()->type() != QPaintEngine::Picture;
}

void RaiseUnless(bool succeeded)
{
    if (!succeeded)
        throw RuntimeError(RuntimeError::CannotOpenDatabase, RuntimeError::defaultSource(),
                           QStringLiteral("印刷できません。"));
}

} // namespace

EnginePane::EnginePane(QWidget *parent)
    : m_profile(MakeProfile(nullptr)), m_page(new EnginePage(m_profile, nullptr)),
      m_view(new QWebEngineView(parent))
{
    m_view->setAcceptDrops(false);
    // What takes no focus at all has no place on the keyboard's way.
    m_view->setFocusPolicy(Qt::ClickFocus);
    m_view->installEventFilter(this);
    m_view->setPage(m_page);
    const QObjectList children = m_view->children();
    for (QObject *child : children)
        child->installEventFilter(this);
    m_startTimeout.setSingleShot(true);
    m_startTimeout.setInterval(kLongestWaitForStart);
    ConnectPage();
}

EnginePane::~EnginePane()
{
    m_cookies.reset();
    // In this order: a view uses its page, a page its profile.
    delete m_view.data();
    delete m_page;
    delete m_profile;
}

void EnginePane::ConnectPage()
{
    m_view->setContextMenuPolicy(Qt::NoContextMenu);
    connect(m_page, &EnginePage::WebPageChanged, m_view, [this](bool isWeb) {
        m_view->setContextMenuPolicy(isWeb ? Qt::DefaultContextMenu : Qt::NoContextMenu);
    });
    connect(m_page, &QWebEnginePage::titleChanged, this, &Pane::TitleChanged);
    connect(m_page, &QWebEnginePage::urlChanged, this, [this] { Q_EMIT TitleChanged(Title()); });
    connect(m_profile, &QWebEngineProfile::downloadRequested, this,
            // One that is not accepted when this returns is given up.
            [this](QWebEngineDownloadRequest *request) {
                controls::RunHandler([this, request] { TakeDownload(*request); });
            });
    connect(m_page, &QWebEnginePage::linkHovered, this, &Pane::StatusChanged);
    connect(m_page, &QWebEnginePage::selectionChanged, this, [this] { m_isAllSelected = false; });
    connect(m_page, &QWebEnginePage::loadStarted, this, [this] {
        m_isAllSelected = false;
        m_awaitsStart = false;
        m_loading = true;
        Q_EMIT StatusChanged(QStringLiteral("ページを開いています..."));
    });
    connect(m_page, &QWebEnginePage::loadFinished, this, [this] {
        // The end of a load that another one has superseded says nothing about that one.
        if (!m_awaitsStart) {
            m_loading = m_page->isLoading();
            // Neither address nor title need have changed: what was half typed in the address box goes.
            if (!m_loading)
                Q_EMIT TitleChanged(Title());
        }
        Q_EMIT StatusChanged(QStringLiteral("ページが表示されました"));
    });
    connect(m_page, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status) {
                if (status != QWebEnginePage::NormalTerminationStatus)
                    QTimer::singleShot(0, this, &EnginePane::ReviveAfterCrash);
            });
    // Some loads never start: to a place in the page that is shown, or stopped at once.
    connect(&m_startTimeout, &QTimer::timeout, this, [this] {
        m_awaitsStart = false;
        m_loading = m_page->isLoading();
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && m_view && now != m_view && !m_view->isAncestorOf(now))
            m_focusElsewhere = now;
    });
}

void EnginePane::TakeDownload(QWebEngineDownloadRequest &request)
{
    // A page of the program hands out nothing. Until it is accepted, nothing is written.
    if (!IsWebPage(request.url()) && !IsWebPage(m_page->url())) {
        request.cancel();
        return;
    }
    const QPointer<QWebEngineDownloadRequest> guard(&request);
    const QString chosen = dialogs::SaveFile(QString(), QStringLiteral("すべてのファイル (*.*)|*.*"), false,
                                             QFileInfo(request.suggestedFileName()).fileName());
    if (!guard)
        return;
    if (chosen.isEmpty()) {
        request.cancel();
        return;
    }
    const QFileInfo target(files::HostPath(chosen));
    if (target.exists() &&
        dialogs::MsgBox(QStringLiteral("%1 は既に存在します。\r\n上書きしますか？").arg(target.fileName()),
                        dialogs::YesNo | dialogs::Question, QStringLiteral("上書きの確認")) != dialogs::Yes) {
        if (guard)
            request.cancel();
        return;
    }
    if (!guard)
        return;
    request.setDownloadDirectory(target.path());
    request.setDownloadFileName(target.fileName());
    connect(&request, &QWebEngineDownloadRequest::stateChanged, this, &EnginePane::TellDownload);
    request.accept();
}

void EnginePane::TellDownload(QWebEngineDownloadRequest::DownloadState state)
{
    if (state == QWebEngineDownloadRequest::DownloadInterrupted)
        dialogs::BeepAndMsgBox(host::BeepExclamation, QStringLiteral("ファイルを保存できませんでした！"),
                               dialogs::Exclamation, QStringLiteral("ダウンロードの中断"));
}

void EnginePane::ReviveAfterCrash()
{
    constexpr qint64 shortestTimeBetweenCrashes = 10'000;
    m_loading = false;
    const bool crashesAgain = m_sinceCrash.isValid() && m_sinceCrash.elapsed() < shortestTimeBetweenCrashes;
    m_sinceCrash.start();
    if (!crashesAgain)
        Reload();
}

QWidget *EnginePane::View() { return m_view; }

void EnginePane::Open(const QUrl &url)
{
    m_awaitsStart = true;
    m_loading = true;
    m_startTimeout.start();
    m_page->load(url);
}

void EnginePane::SetHome(const QUrl &url) { m_page->SetHome(url); }

void EnginePane::KeepCookies(const QString &path)
{
    if (!m_cookies)
        m_cookies = std::make_unique<CookieFile>(*m_profile->cookieStore(), path, nullptr);
}

void EnginePane::Back()
{
    if (m_page->history()->canGoBack())
        m_page->triggerAction(QWebEnginePage::Back);
}

void EnginePane::Forward()
{
    if (m_page->history()->canGoForward())
        m_page->triggerAction(QWebEnginePage::Forward);
}

void EnginePane::Stop() { m_page->StopLoading(); }

void EnginePane::Reload() { m_page->triggerAction(QWebEnginePage::Reload); }

QUrl EnginePane::Url() const { return m_page->url(); }

QString EnginePane::Title() const { return m_page->title(); }

QString EnginePane::SelectedText() const { return m_page->selectedText(); }

void EnginePane::SelectAll()
{
    // It tells nothing of a selection that stays what it was.
    if (m_isAllSelected)
        return;
    // The engine selects in a process of its own; what follows at once wants the selection.
    const LateAnswer<bool> answer;
    QObject receiver;
    connect(m_page, &QWebEnginePage::selectionChanged, &receiver, [taker = answer.Taker()] { taker(true); });
    m_page->triggerAction(QWebEnginePage::SelectAll);
    answer.Wait(kLongestWaitForSelection, QEventLoop::ExcludeUserInputEvents);
    m_isAllSelected = true;
}

QString EnginePane::ShownText() const
{
    const LateAnswer<QString> answer;
    m_page->toPlainText(answer.Taker());
    return answer.Wait(kLongestWaitForText).value_or(QString());
}

void EnginePane::TakeFocus()
{
    const QScopedValueRollback granted(m_focusGranted, true);
    m_view->setFocus(Qt::OtherFocusReason);
}

bool EnginePane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildAdded) {
        QObject *child = static_cast<QChildEvent *>(event)->child();
        child->installEventFilter(this);
        // Later, when it is whole. The dialogs of printing are children too, and windows.
        if (watched == m_view)
            QTimer::singleShot(0, child, [this, child] {
                if (auto *widget = qobject_cast<QWidget *>(child); widget && m_view && !widget->isWindow())
                    PutOnKeyboardsWay(*widget);
            });
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Find)) {
        Q_EMIT FindAsked();
        return true;
    }
    if (event->type() == QEvent::FocusIn && IsFocusStolen(*event)) {
        // This reason leaves the selection of a text box as it was.
        m_focusElsewhere->setFocus(Qt::ActiveWindowFocusReason);
        return true;
    }
    return Pane::eventFilter(watched, event);
}

void EnginePane::PutOnKeyboardsWay(QWidget &inner)
{
    // The engine's widget comes late and would stand last, before the view that hands its focus on to
    // it. With that hand-over in place the order cannot be set.
    QWidget *proxy = m_view->focusProxy();
    m_view->setFocusProxy(nullptr);
    QWidget::setTabOrder(m_view->parentWidget(), m_view);
    QWidget::setTabOrder(m_view, &inner);
    m_view->setFocusProxy(proxy);
}

bool EnginePane::IsFocusStolen(const QEvent &event) const
{
    // The user's ways to the pane bear other reasons; what is left is a page that asks for the focus.
    const bool isUnexplained = static_cast<const QFocusEvent &>(event).reason() == Qt::OtherFocusReason;
    return isUnexplained && !m_focusGranted && m_focusElsewhere && m_focusElsewhere->isVisible() &&
           m_focusElsewhere->window() == m_view->window();
}

void EnginePane::Find(const QString &text, bool backward, const std::function<void(int, int)> &found)
{
    m_page->findText(text, backward ? QWebEnginePage::FindBackward : QWebEnginePage::FindFlags(),
                     [found](const QWebEngineFindTextResult &result) {
                         found(result.activeMatch(), result.numberOfMatches());
                     });
}

QPrinter &EnginePane::Printer()
{
    if (!m_printer) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        if (QPrinterInfo::availablePrinterNames().isEmpty())
            m_printer->setOutputFormat(QPrinter::PdfFormat);
        m_printer->setResolution(kPrintResolution);
        m_printer->setPageSize(QPageSize(QPageSize::A4));
        constexpr qreal margin = 15;
        m_printer->setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
        m_printer->setDocName(QStringLiteral("Wordmere"));
    }
    return *m_printer;
}

bool EnginePane::PrintTo(QPrinter &printer)
{
    const LateAnswer<bool> answer;
    QObject receiver;
    const auto waited = qScopeGuard([before = host::MousePointer()] { host::SetMousePointer(before); });
    host::SetMousePointer(host::PointerHourglass);
    if (MakesPdf(printer)) {
        connect(m_page, &QWebEnginePage::pdfPrintingFinished, &receiver,
                [taker = answer.Taker()](const QString &, bool succeeded) { taker(succeeded); });
        m_page->printToPdf(printer.outputFileName(), printer.pageLayout());
    } else {
        connect(m_view, &QWebEngineView::printFinished, &receiver, answer.Taker());
        m_view->print(&printer);
    }
    return answer.Wait(kLongestPrint, QEventLoop::ExcludeUserInputEvents).value_or(false);
}

void EnginePane::Print()
{
    if (host::NobodyIsThere())
        return;
    QPrintDialog dialog(&Printer(), m_view);
    dialog.setWindowTitle(QStringLiteral("印刷"));
    if (dialog.exec() == QDialog::Accepted)
        RaiseUnless(PrintTo(Printer()));
}

void EnginePane::PreviewPrint()
{
    if (host::NobodyIsThere())
        return;
    bool succeeded = true;
    QPrintPreviewDialog dialog(&Printer(), m_view);
    dialog.setWindowTitle(QStringLiteral("印刷プレビュー"));
    // Wide enough for its buttons, and high enough to see a page.
    constexpr QSize comfortable(900, 680);
    dialog.resize(comfortable.boundedTo(m_view->screen()->availableSize()));
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this,
            [this, &succeeded](QPrinter *printer) { succeeded = PrintTo(*printer) && succeeded; });
    dialog.exec();
    RaiseUnless(succeeded);
}

void EnginePane::SetUpPage()
{
    if (host::NobodyIsThere())
        return;
    QPageSetupDialog dialog(&Printer(), m_view);
    dialog.setWindowTitle(QStringLiteral("ページ設定"));
    dialog.exec();
}

} // namespace browser
