#include "platform/agent/figure.h"

#include <QBitmap>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QRandomGenerator>
#include <QScreen>
#include <QSvgRenderer>

namespace
{

constexpr int kBlinkMilliseconds = 130;
constexpr int kLeastOpenMilliseconds = 2000;
constexpr int kMostOpenMilliseconds = 6000;
constexpr int kGlideMilliseconds = 400;

} // namespace

agent::Figure::Figure(const CharacterFile &file)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint),
      m_drawing(std::make_unique<QSvgRenderer>(file.drawing)), m_glide(this, "pos")
{
    setObjectName(QStringLiteral("Agent1"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowTitle(file.name);
    setAccessibleName(file.name);
    setFixedSize(file.size);
    setCursor(Qt::OpenHandCursor);
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
    m_glide.setDuration(kGlideMilliseconds);
    m_glide.setEasingCurve(QEasingCurve::InOutQuad);
    m_blink.setSingleShot(true);
    connect(&m_blink, &QTimer::timeout, this, &Figure::Blink);
}

agent::Figure::~Figure() = default;

void agent::Figure::SetMouth(Mouth mouth)
{
    if (m_mouth == mouth)
        return;
    m_mouth = mouth;
    update();
}

void agent::Figure::GlideTo(const QPoint &place)
{
    m_glide.stop();
    if (!isVisible()) {
        move(place);
        return;
    }
    m_glide.setStartValue(pos());
    m_glide.setEndValue(place);
    m_glide.start();
}

void agent::Figure::Blink()
{
    m_areEyesOpen = !m_areEyesOpen;
    m_blink.start(m_areEyesOpen
                      ? QRandomGenerator::global()->bounded(kLeastOpenMilliseconds, kMostOpenMilliseconds)
                      : kBlinkMilliseconds);
    update();
}

void agent::Figure::DrawLayer(QPainter &painter, const QString &layer)
{
    QPixmap &picture = m_layers[layer];
    if (picture.isNull()) {
        picture = QPixmap(size() * m_layersRatio);
        picture.setDevicePixelRatio(m_layersRatio);
        picture.fill(Qt::transparent);
        QPainter pen(&picture);
        pen.setRenderHint(QPainter::Antialiasing);
        m_drawing->render(&pen, layer,
                          m_drawing->transformForElement(layer).mapRect(m_drawing->boundsOnElement(layer)));
    }
    painter.drawPixmap(0, 0, picture);
}

void agent::Figure::paintEvent(QPaintEvent *)
{
    if (m_layersRatio != devicePixelRatioF()) {
        m_layersRatio = devicePixelRatioF();
        m_layers.clear();
    }
    QPainter painter(this);
    DrawLayer(painter, BodyLayer());
    DrawLayer(painter, EyesLayer(m_areEyesOpen));
    DrawLayer(painter, MouthLayer(static_cast<int>(m_mouth)));
}

void agent::Figure::CutOut()
{
    // Where nothing composes the screen, the corners around the figure would be black; and a click
    // beside the figure belongs to what lies below.
    QPixmap body(size());
    body.fill(Qt::transparent);
    QPainter painter(&body);
    m_layersRatio = 1;
    m_layers.clear();
    DrawLayer(painter, BodyLayer());
    painter.end();
    setMask(body.mask());
    m_layersRatio = 0;
}

void agent::Figure::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_glide.stop();
    m_isDragged = true;
    m_grip = event->globalPosition().toPoint() - pos();
    setCursor(Qt::ClosedHandCursor);
}

void agent::Figure::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isDragged)
        move(event->globalPosition().toPoint() - m_grip);
}

void agent::Figure::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_isDragged = false;
    setCursor(Qt::OpenHandCursor);
}

void agent::Figure::contextMenuEvent(QContextMenuEvent *event)
{
    auto *menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("AgentMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("読み上げを中止(&S)")), &QAction::triggered, this,
            &Figure::SilenceWanted);
    connect(menu->addAction(QStringLiteral("キャラクタを隠す(&H)")), &QAction::triggered, this,
            &Figure::HideWanted);
    menu->popup(event->globalPos());
}

void agent::Figure::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    Q_EMIT Placed();
}

void agent::Figure::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    CutOut();
    m_areEyesOpen = true;
    m_blink.start(kLeastOpenMilliseconds);
    Q_EMIT Placed();
}

void agent::Figure::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_blink.stop();
    m_isDragged = false;
    Q_EMIT Placed();
}

void agent::Figure::closeEvent(QCloseEvent *event)
{
    event->ignore();
    Q_EMIT HideWanted();
}
