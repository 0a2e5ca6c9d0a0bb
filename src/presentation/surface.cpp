#include "presentation/surface.h"

#include "platform/browser/web_browser.h"
#include "presentation/frmFind.h"

#include <QPainter>

namespace
{

const QColor kLight(Qt::white);
const QColor kShade(0x80, 0x80, 0x80);

void DrawFrame(QPainter &painter, const QRect &inner, const QColor &upperLeft, const QColor &lowerRight)
{
    const QRect frame = inner.adjusted(-1, -1, 0, 0);
    painter.setPen(lowerRight);
    painter.drawLine(frame.topRight(), frame.bottomRight());
    painter.drawLine(frame.bottomLeft(), frame.bottomRight());
    painter.setPen(upperLeft);
    painter.drawLine(frame.topLeft(), frame.topRight());
    painter.drawLine(frame.topLeft(), frame.bottomLeft());
}

void DrawFrameOf(QPainter &painter, const controls::Picture &picture)
{
    if (picture.isHidden() || picture.CurrentFrame() == controls::Picture::Frame::Flat)
        return;
    const bool raised = picture.CurrentFrame() == controls::Picture::Frame::Raised;
    DrawFrame(painter, picture.geometry(), raised ? kLight : kShade, raised ? kShade : kLight);
}

} // namespace

Surface::Surface(frmFind &window) : QWidget(&window), m_window(window)
{
    setObjectName(QStringLiteral("Surface"));
    setMouseTracking(true);
}

void Surface::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    for (int number = 1; number <= 28; ++number)
        DrawFrameOf(painter, *m_window.PictureOf(number));
    for (const controls::Picture *picture : {m_window.Picture0, m_window.Picture00})
        DrawFrameOf(painter, *picture);
    const QRect pane = m_window.PaneFrame();
    painter.fillRect(pane, Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(pane.adjusted(0, 0, -1, -1));
}

void Surface::mouseMoveEvent(QMouseEvent *)
{
    for (int number = 1; number <= 28; ++number)
        m_window.FlatPicture(number);
}
