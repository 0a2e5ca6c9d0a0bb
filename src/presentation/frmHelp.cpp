#include "presentation/frmHelp.h"

#include "core/failure_handling.h"
#include "platform/controls/handler.h"
#include "platform/controls/white_base.h"
#include "platform/host/host.h"
#include "presentation/help_view.h"
#include "ui_frmHelp.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>
#include <QTabBar>
#include <QWindow>

using controls::RunHandler;

namespace
{

constexpr int kSideWidth = 260;
constexpr int kEnter = 13;
constexpr double kShareOfScreen = 0.92;

// Kept for the run: the next help window looks as the user left this one.
int lastZoom = HelpView::kUsualZoom;
QByteArray lastGeometry;

/// Where a box of a tab leads: Enter and Down go on to the list.
void LeadToList(controls::TextBox *box, controls::ListBox *list, const std::function<void()> &enter)
{
    QObject::connect(box, &controls::TextBox::KeyPress, list, [enter](int character, bool *swallow) {
        *swallow = character == kEnter;
        if (*swallow)
            RunHandler(enter);
    });
    QObject::connect(box, &controls::TextBox::DownPressed, list, [list] {
        if (list->ListCount() == 0)
            return;
        list->setFocus(Qt::ShortcutFocusReason);
        RunHandler([list] { list->SetListIndex(qMax(0, list->ListIndex())); });
    });
}

} // namespace

frmHelp::frmHelp(const HelpBook &book)
    : Form(QStringLiteral("frmHelp")), m_ui(std::make_unique<Ui::frmHelp>()), m_book(book),
      m_index(HelpIndex(book))
{
    m_ui->setupUi(this);
    m_ui->Splitter1->setStretchFactor(1, 1);
    m_ui->Splitter1->setSizes({kSideWidth, width() - kSideWidth});
    m_ui->TopicView->SetBook(m_book);
    controls::UseWhiteBase(*m_ui->ContentsTree);
    FillContents();
    FillIndex();
    ConnectHandlers();
    AddShortcuts();
}

frmHelp::~frmHelp() = default;

void frmHelp::FillContents()
{
    QTreeWidgetItem *chapter = nullptr;
    const QIcon book(QStringLiteral(":/icons/help_chapter.svg")),
        page(QStringLiteral(":/icons/help_topic.svg"));
    for (qsizetype i = 0; i < m_book.topics.size(); ++i) {
        const HelpTopic &topic = m_book.topics[i];
        auto *item = new QTreeWidgetItem({topic.title});
        item->setData(0, Qt::UserRole, i);
        item->setIcon(0, topic.isChapter ? book : page);
        if (topic.isChapter || !chapter)
            m_ui->ContentsTree->addTopLevelItem(item);
        else
            chapter->addChild(item);
        if (topic.isChapter)
            chapter = item;
        m_contents.insert(i, item);
    }
    m_ui->ContentsTree->expandAll();
}

void frmHelp::FillIndex()
{
    m_ui->IndexList->BeginFill();
    for (const HelpIndexEntry &entry : std::as_const(m_index))
        m_ui->IndexList->AddItem(entry.label);
    m_ui->IndexList->EndFill();
}

void frmHelp::ConnectHandlers()
{
    connect(m_ui->ContentsTree, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem *item) { RunHandler([=, this] { ContentsTree_Select(item); }); });
    // A click on the row that is current already brings its topic back.
    connect(m_ui->ContentsTree, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem *item) { RunHandler([=, this] { ContentsTree_Select(item); }); });
    connect(m_ui->IndexText, &controls::TextBox::Change, this,
            [this] { RunHandler([this] { IndexText_Change(); }); });
    connect(m_ui->SearchText, &controls::TextBox::Change, this,
            [this] { RunHandler([this] { SearchText_Change(); }); });
    connect(m_ui->IndexList, &controls::ListBox::Click, this,
            [this] { RunHandler([this] { IndexList_Click(); }); });
    connect(m_ui->SearchList, &controls::ListBox::Click, this,
            [this] { RunHandler([this] { SearchList_Click(); }); });
    LeadToList(m_ui->IndexText, m_ui->IndexList, [this] { IndexList_Click(); });
    LeadToList(m_ui->SearchText, m_ui->SearchList, [this] {
        if (m_ui->SearchList->ListCount() > 0)
            m_ui->SearchList->SetListIndex(0);
    });
    connect(m_ui->ButtonBack, &QToolButton::clicked, m_ui->TopicView, &QTextBrowser::backward);
    connect(m_ui->ButtonForward, &QToolButton::clicked, m_ui->TopicView, &QTextBrowser::forward);
    connect(m_ui->ButtonPrint, &QToolButton::clicked, this,
            [this] { RunHandler([this] { ButtonPrint_Click(); }); });
    connect(m_ui->ButtonSmaller, &QToolButton::clicked, this,
            [this] { Zoom(m_ui->TopicView->Zoom() - HelpView::kZoomStep); });
    connect(m_ui->ButtonLarger, &QToolButton::clicked, this,
            [this] { Zoom(m_ui->TopicView->Zoom() + HelpView::kZoomStep); });
    connect(m_ui->TopicView, &HelpView::ZoomWheel, this,
            [this](int direction) { Zoom(m_ui->TopicView->Zoom() + direction * HelpView::kZoomStep); });
    connect(m_ui->TopicView, &HelpView::TopicShown, this, [this] { TopicView_TopicShown(); });
    connect(m_ui->TopicView, &QTextBrowser::backwardAvailable, m_ui->ButtonBack, &QWidget::setEnabled);
    connect(m_ui->TopicView, &QTextBrowser::forwardAvailable, m_ui->ButtonForward, &QWidget::setEnabled);
    m_ui->HelpTabs->tabBar()->installEventFilter(this);
    m_ui->ButtonBack->setEnabled(false);
    m_ui->ButtonForward->setEnabled(false);
}

void frmHelp::AddShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(Qt::Key_Escape, [this] { Unload(); });
    add(Qt::ALT | Qt::Key_Left, [this] { m_ui->TopicView->backward(); });
    add(Qt::ALT | Qt::Key_Right, [this] { m_ui->TopicView->forward(); });
    add(Qt::CTRL | Qt::Key_P, [this] { RunHandler([this] { ButtonPrint_Click(); }); });
    add(Qt::CTRL | Qt::Key_F, [this] { ShowTab(m_ui->SearchPage); });
    for (const auto &larger :
         {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal, Qt::CTRL | Qt::Key_Semicolon})
        add(larger, [this] { Zoom(m_ui->TopicView->Zoom() + HelpView::kZoomStep); });
    add(Qt::CTRL | Qt::Key_Minus, [this] { Zoom(m_ui->TopicView->Zoom() - HelpView::kZoomStep); });
    add(Qt::CTRL | Qt::Key_0, [this] { Zoom(HelpView::kUsualZoom); });
}

void frmHelp::Form_Load()
{
    Zoom(lastZoom);
    if (restoreGeometry(lastGeometry))
        return;
    resize(size().boundedTo(screen()->availableSize() * kShareOfScreen));
    Centre();
}

void frmHelp::Form_Unload(controls::UnloadReason)
{
    lastZoom = m_ui->TopicView->Zoom();
    lastGeometry = saveGeometry();
}

void frmHelp::Come()
{
    Load();
    // The window exists before it is shown, so that it never stands blocked.
    create();
    StandBesideModal();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    ShowForm();
}

void frmHelp::ShowTopic(const QString &id)
{
    Come();
    m_ui->TopicView->ShowTopic(qMax<qsizetype>(0, m_book.Find(id)));
    m_ui->TopicView->setFocus();
}

void frmHelp::ShowContents()
{
    Come();
    if (m_ui->TopicView->Topic() < 0)
        m_ui->TopicView->ShowTopic(0);
    ShowTab(m_ui->ContentsPage);
}

void frmHelp::ShowTab(QWidget *page)
{
    m_ui->HelpTabs->setCurrentWidget(page);
    EnterTab();
}

void frmHelp::EnterTab()
{
    QWidget *page = m_ui->HelpTabs->currentWidget();
    QWidget *control = m_ui->ContentsTree;
    if (page == m_ui->IndexPage)
        control = m_ui->IndexText;
    else if (page == m_ui->SearchPage)
        control = m_ui->SearchText;
    control->setFocus(Qt::ShortcutFocusReason);
}

void frmHelp::ContentsTree_Select(const QTreeWidgetItem *item)
{
    if (item && !m_follows)
        m_ui->TopicView->ShowTopic(item->data(0, Qt::UserRole).toLongLong());
}

void frmHelp::IndexText_Change()
{
    // The row is only pointed at: topics that fly past would fill the way back.
    const QScopedValueRollback quiet(m_follows, true);
    m_ui->IndexList->SetListIndex(static_cast<int>(IndexRowFor(m_index, m_ui->IndexText->Text())));
}

void frmHelp::IndexList_Click()
{
    const int row = m_ui->IndexList->ListIndex();
    if (row >= 0 && !m_follows)
        m_ui->TopicView->ShowTopic(m_index[row].topic);
}

void frmHelp::SearchText_Change()
{
    const QStringList words = SearchWords(m_ui->SearchText->Text());
    m_hits = SearchHelp(m_book, words);
    m_ui->SearchList->BeginFill();
    m_ui->SearchList->Clear();
    for (const HelpHit &hit : std::as_const(m_hits))
        m_ui->SearchList->AddItem(
            QStringLiteral("%1（%2）").arg(m_book.topics[hit.topic].title).arg(hit.count));
    m_ui->SearchList->EndFill();
    if (words.isEmpty())
        m_ui->CountLabel->clear();
    else
        m_ui->CountLabel->setText(m_hits.isEmpty()
                                      ? QStringLiteral("見つかりません")
                                      : QStringLiteral("%1 件のトピックが見つかりました").arg(m_hits.size()));
}

void frmHelp::SearchList_Click()
{
    const int row = m_ui->SearchList->ListIndex();
    if (row >= 0)
        m_ui->TopicView->ShowTopic(m_hits[row].topic, SearchWords(m_ui->SearchText->Text()));
}

void frmHelp::ButtonPrint_Click()
{
    if (host::NobodyIsThere())
        return;
    QPrinter printer(QPrinter::HighResolution);
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        printer.setOutputFormat(QPrinter::PdfFormat);
    QPrintDialog dialog(&printer, this);
    dialog.setWindowTitle(QStringLiteral("印刷"));
    if (dialog.exec() == QDialog::Accepted && !m_ui->TopicView->PrintTopic(printer))
        ShowPrintingUnsupported();
}

void frmHelp::TopicView_TopicShown()
{
    const qsizetype topic = m_ui->TopicView->Topic();
    if (topic < 0)
        return;
    setWindowTitle(m_book.topics[topic].title + QStringLiteral(" - ") +
                   (m_book.title.isEmpty() ? QStringLiteral("Wordmere ヘルプ") : m_book.title));
    const QScopedValueRollback quiet(m_follows, true);
    m_ui->ContentsTree->setCurrentItem(m_contents.value(topic));
}

void frmHelp::Zoom(int percent)
{
    HelpView *view = m_ui->TopicView;
    view->SetZoom(percent);
    m_ui->ButtonSmaller->setEnabled(view->Zoom() > HelpView::kSmallestZoom);
    m_ui->ButtonLarger->setEnabled(view->Zoom() < HelpView::kLargestZoom);
}

bool frmHelp::event(QEvent *event)
{
    const bool handled = Form::event(event);
    // Queued, because the modal window is only about to appear.
    if (event->type() == QEvent::WindowBlocked)
        QMetaObject::invokeMethod(this, &frmHelp::StandBesideModal, Qt::QueuedConnection);
    return handled;
}

/// A tab chosen by its key or by the mouse takes the focus along, also when it was in front already.
bool frmHelp::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Shortcut || event->type() == QEvent::MouseButtonPress)
        QMetaObject::invokeMethod(this, &frmHelp::EnterTab, Qt::QueuedConnection);
    return Form::eventFilter(watched, event);
}

/// A modal window blocks every window but its own. So this one becomes the modal window's for as long
/// as that stands, and then that of the one beneath.
void frmHelp::StandBesideModal()
{
    QObject::disconnect(m_modalGone);
    QWindow *own = windowHandle();
    if (!own)
        return;
    const QWidget *modal = QApplication::activeModalWidget();
    QWindow *front = modal ? modal->windowHandle() : nullptr;
    // A box of this window's own blocks it rightly.
    if (front && own->isAncestorOf(front, QWindow::IncludeTransients))
        return;
    own->setTransientParent(front);
    if (front)
        m_modalGone =
            connect(front, &QWindow::visibleChanged, this, &frmHelp::StandBesideModal, Qt::QueuedConnection);
}
