#include "presentation/help_view.h"

#include "platform/controls/controls.h"
#include "platform/controls/white_base.h"
#include "presentation/pure/help_search.h"

#include <QApplication>
#include <QPrinter>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>
#include <memory>

namespace
{

constexpr int kUsualPoints = 11;
constexpr int kPageMargin = 16;
const QColor kMarkColor(0xFF, 0xF0, 0x90);

QString TopicScheme() { return QStringLiteral("topic"); }

QUrl AddressOf(const HelpTopic &topic)
{
    QUrl address;
    address.setScheme(TopicScheme());
    address.setPath(topic.id);
    return address;
}

} // namespace

HelpView::HelpView(QWidget *parent) : QTextBrowser(parent)
{
    controls::UseWhiteBase(*this);
    document()->setDocumentMargin(kPageMargin);
    setOpenLinks(false);
    setFont(controls::MakeFont(QApplication::font().family(), kUsualPoints, false, false, false, false));
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl &link) {
        const qsizetype topic = m_book.Find(link.fragment());
        if (topic >= 0)
            ShowTopic(topic);
    });
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl &address) {
        m_topic = TopicAt(address);
        setExtraSelections({});
        Q_EMIT TopicShown();
    });
}

void HelpView::SetBook(const HelpBook &book) { m_book = book; }

void HelpView::ShowTopic(qsizetype topic, const QStringList &words)
{
    setSource(AddressOf(m_book.topics.at(topic)));
    Mark(words);
}

qsizetype HelpView::TopicAt(const QUrl &address) const
{
    return address.scheme() == TopicScheme() ? m_book.Find(address.path()) : -1;
}

QVariant HelpView::loadResource(int, const QUrl &name)
{
    const qsizetype topic = TopicAt(name);
    return topic < 0 ? QString() : TopicPage(m_book, topic);
}

void HelpView::Mark(const QStringList &words)
{
    QList<QTextEdit::ExtraSelection> marks;
    const QString shown = document()->toRawText();
    for (const text::Match &match : MatchesOf(words, text::Fold(shown))) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(document());
        mark.cursor.setPosition(static_cast<int>(match.position) - 1);
        mark.cursor.setPosition(static_cast<int>(match.position - 1 + match.length), QTextCursor::KeepAnchor);
        mark.format.setBackground(kMarkColor);
        marks.append(mark);
    }
    setExtraSelections(marks);
    if (marks.isEmpty())
        return;
    // Only as far as needed to see it: a topic that fits stays at its beginning.
    QTextCursor first = marks.constFirst().cursor;
    first.setPosition(first.anchor());
    setTextCursor(first);
    ensureCursorVisible();
}

void HelpView::SetZoom(int percent)
{
    m_zoom = std::clamp(percent, kSmallestZoom, kLargestZoom);
    QFont larger = font();
    larger.setPointSizeF(kUsualPoints * m_zoom / static_cast<double>(kUsualZoom));
    setFont(larger);
}

bool HelpView::PrintTopic(QPrinter &printer) const
{
    const std::unique_ptr<QTextDocument> copy(document()->clone());
    QFont usual = font();
    usual.setPointSize(kUsualPoints);
    copy->setDefaultFont(usual);
    copy->print(&printer);
    return printer.printerState() != QPrinter::Error;
}

void HelpView::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() != 0)
        Q_EMIT ZoomWheel(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}
