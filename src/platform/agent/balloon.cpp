#include "platform/agent/balloon.h"

#include "platform/agent/pure/spoken_text.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <algorithm>
#include <cmath>

namespace
{

constexpr int kTextWidth = 240;
constexpr int kMargin = 12;
constexpr int kRadius = 10;
constexpr int kGap = 6;
constexpr int kLingerMilliseconds = 1500;
constexpr QColor kPaper(0xFF, 0xFF, 0xE6);
constexpr QColor kEdge(0x60, 0x60, 0x60);
constexpr QColor kInk(0x20, 0x20, 0x20);
constexpr QColor kPresentWord(0xFF, 0xD9, 0x66);

} // namespace

agent::Balloon::Balloon()
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput)
{
    setObjectName(QStringLiteral("AgentBalloon"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    m_page.setDocumentMargin(0);
    m_page.setUndoRedoEnabled(false);
    m_end.setSingleShot(true);
    m_end.setInterval(kLingerMilliseconds);
    connect(&m_end, &QTimer::timeout, this, &QWidget::hide);
}

void agent::Balloon::Begin(const QString &text)
{
    m_text = text;
    m_shown.clear();
    m_pageBegin = m_pageEnd = 0;
}

void agent::Balloon::ShowWord(qsizetype position, qsizetype length)
{
    m_end.stop();
    position = std::clamp<qsizetype>(position, 0, m_text.size());
    const qsizetype end = std::clamp<qsizetype>(position + length, position, m_text.size());
    if (position < m_pageBegin || position >= m_pageEnd) {
        m_pageBegin = position;
        m_pageEnd = std::max(PageEnd(m_text, position), end);
        LayOutPage();
    }
    m_shown = m_text.sliced(m_pageBegin, std::min(end, m_pageEnd) - m_pageBegin);
    QTextCursor cursor(&m_page);
    cursor.select(QTextCursor::Document);
    QTextCharFormat format;
    format.setForeground(Qt::transparent);
    cursor.setCharFormat(format);
    const auto at = [this](qsizetype place) {
        return static_cast<int>(std::min(place, m_pageEnd) - m_pageBegin);
    };
    cursor.setPosition(0);
    cursor.setPosition(at(end), QTextCursor::KeepAnchor);
    format.setForeground(kInk);
    cursor.setCharFormat(format);
    cursor.setPosition(at(position));
    cursor.setPosition(at(end), QTextCursor::KeepAnchor);
    format.setBackground(kPresentWord);
    cursor.setCharFormat(format);
    if (!isVisible() && !m_figure.isEmpty())
        show();
    // At once, for a new page has a new shape already.
    repaint();
}

void agent::Balloon::End() { m_end.start(); }

void agent::Balloon::LayOutPage()
{
    // Line ends count one as in the text, and are blanks here.
    QString page = m_text.sliced(m_pageBegin, m_pageEnd - m_pageBegin);
    for (QChar &character : page)
        if (character.category() == QChar::Other_Control || character == QChar::ParagraphSeparator ||
            character == QChar::LineSeparator)
            character = u' ';
    m_page.setDefaultFont(font());
    m_page.setPlainText(page);
    m_page.setTextWidth(kTextWidth);
    if (m_page.idealWidth() < kTextWidth)
        m_page.setTextWidth(std::ceil(m_page.idealWidth()));
    const int around = 2 * kMargin;
    resize(static_cast<int>(std::ceil(m_page.size().width())) + around,
           static_cast<int>(std::ceil(m_page.size().height())) + around);
    QBitmap shape(size());
    shape.clear();
    QPainter painter(&shape);
    painter.setBrush(Qt::color1);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(rect(), kRadius, kRadius);
    painter.end();
    setMask(shape);
    StandBy(m_figure);
}

void agent::Balloon::StandBy(const QRect &figure)
{
    m_figure = figure;
    if (figure.isEmpty()) {
        hide();
        return;
    }
    const QScreen *screen = QGuiApplication::screenAt(figure.center());
    const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->geometry();
    QRect place(QPoint(figure.center().x() - width() / 2, figure.top() - kGap - height()), size());
    if (place.top() < room.top())
        place.moveTop(figure.bottom() + kGap);
    place.moveLeft(std::clamp(place.left(), room.left(), std::max(room.left(), room.right() - width())));
    move(place.topLeft());
}

void agent::Balloon::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(kEdge);
    painter.setBrush(kPaper);
    constexpr qreal halfPixel = 0.5;
    painter.drawRoundedRect(QRectF(rect()).adjusted(halfPixel, halfPixel, -halfPixel, -halfPixel), kRadius,
                            kRadius);
    painter.translate(kMargin, kMargin);
    m_page.drawContents(&painter);
}
