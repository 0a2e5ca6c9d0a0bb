#include "platform/controls/controls.h"

#include "platform/controls/white_base.h"
#include "platform/host/looks.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace controls
{

namespace
{

constexpr int kStatusIndent = 3;

bool IsPressingKey(const QKeyEvent &event)
{
    const int key = event.key();
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

void PaintFocus(QWidget &control)
{
    if (!control.hasFocus())
        return;
    QPainter painter(&control);
    QStyleOptionFocusRect option;
    option.initFrom(&control);
    option.backgroundColor = control.palette().color(QPalette::Window);
    control.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &control);
}

} // namespace

ClickLabel::ClickLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void ClickLabel::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT Click();
}

void ClickLabel::keyPressEvent(QKeyEvent *event)
{
    if (IsPressingKey(*event))
        Q_EMIT Click();
    else
        QLabel::keyPressEvent(event);
}

void ClickLabel::paintEvent(QPaintEvent *event)
{
    PaintLightGround(*this);
    QLabel::paintEvent(event);
    PaintFocus(*this);
}

Picture::Picture(const QIcon &icon, QWidget *parent) : QWidget(parent), m_icon(icon)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Picture::sizeHint() const { return {17, 19}; }

void Picture::SetFrame(Frame frame)
{
    if (frame == m_frame)
        return;
    m_frame = frame;
    constexpr int frameRoom = 3;
    if (QWidget *surface = parentWidget())
        surface->update(geometry().marginsAdded({frameRoom, frameRoom, frameRoom, frameRoom}));
}

void Picture::SetIcon(const QIcon &icon)
{
    m_icon = icon;
    update();
}

void Picture::paintEvent(QPaintEvent *)
{
    // Sixteen logical pixels are the size that the icons are drawn for.
    constexpr int iconSize = 16;
    QRect place(0, 0, qMin(iconSize, width()), qMin(iconSize, height()));
    place.moveCenter(rect().center());
    PaintLightGround(*this);
    {
        QPainter painter(this);
        m_icon.paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }
    PaintFocus(*this);
}

void Picture::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT MouseDown();
}

void Picture::mouseMoveEvent(QMouseEvent *) { Q_EMIT MouseMove(); }

void Picture::keyPressEvent(QKeyEvent *event)
{
    if (IsPressingKey(*event) && !event->isAutoRepeat())
        Q_EMIT MouseDown();
    else
        QWidget::keyPressEvent(event);
}

bool Picture::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTipChange)
        setAccessibleName(toolTip());
    return QWidget::event(event);
}

StatusBar::StatusBar(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setIndent(kStatusIndent);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(QStringLiteral("ステータス バー"));
    Elide();
}

QSize StatusBar::sizeHint() const
{
    constexpr int roomAroundText = 8;
    return {0, fontMetrics().height() + roomAroundText};
}

void StatusBar::SetSimpleText(const QString &text)
{
    m_text = text;
    Elide();
}

void StatusBar::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    Elide();
}

void StatusBar::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        Elide();
}

void StatusBar::Elide()
{
    const int room =
        contentsRect().width() - 2 * kStatusIndent - fontMetrics().horizontalAdvance(QLatin1Char('x'));
    const QString line =
        QString(m_text).replace(QLatin1Char('\n'), QLatin1Char(' ')).remove(QLatin1Char('\r'));
    const QString shown = fontMetrics().elidedText(line, Qt::ElideRight, qMax(0, room));
    if (shown != text())
        setText(shown);
    setToolTip(shown == line ? QString() : m_text);
    setAccessibleDescription(m_text);
}

QFont MakeFont(const QString &name, int points, bool bold, bool italic, bool strikeout, bool underline)
{
    return host::FontOf(name, points, bold, italic, strikeout, underline);
}

QColor MakeColor(qint32 bgr) { return host::ColorOf(bgr); }

} // namespace controls
