#pragma once

#include "platform/agent/pure/character_file.h"
#include "platform/agent/pure/mouth.h"

#include <QHash>
#include <QPixmap>
#include <QPropertyAnimation>
#include <QTimer>
#include <QWidget>
#include <array>
#include <memory>

class QSvgRenderer;

namespace agent
{

/// The figure: a window of its own without a frame, above all others, which never takes the focus. The
/// user drags it with the mouse, and has it say no more or leave by its menu.
class Figure : public QWidget
{
    Q_OBJECT
public:
    explicit Figure(const CharacterFile &file);
    ~Figure() override;

    void SetMouth(Mouth mouth);
    Mouth CurrentMouth() const { return m_mouth; }
    bool AreEyesOpen() const { return m_areEyesOpen; }
    /// Goes to a place, of its upper left corner in pixels, in a short glide where it can be seen.
    void GlideTo(const QPoint &place);

Q_SIGNALS:
    /// The figure has another place, or has gone from the screen.
    void Placed();
    void HideWanted();
    void SilenceWanted();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void Blink();
    void DrawLayer(QPainter &painter, const QString &layer);
    void CutOut();

    std::unique_ptr<QSvgRenderer> m_drawing;
    QTimer m_blink;
    QPropertyAnimation m_glide;
    Mouth m_mouth = Mouth::Closed;
    bool m_areEyesOpen = true;
    bool m_isDragged = false;
    QPoint m_grip;
    qreal m_layersRatio = 0;
    QHash<QString, QPixmap> m_layers;
};

} // namespace agent
