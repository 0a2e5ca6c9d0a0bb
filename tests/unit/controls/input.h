#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QString>
#include <QWidget>
#include <functional>
#include <ostream>

inline std::ostream &operator<<(std::ostream &out, const QString &text) { return out << text.toStdString(); }

/// Input as the platform sends it to one widget.
namespace input
{

inline void Key(QWidget &widget, int key, const QString &text = {}, Qt::KeyboardModifiers modifiers = {})
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(&widget, &release);
}

inline void Mouse(QWidget &widget, QEvent::Type type, const QPointF &where,
                  Qt::MouseButton button = Qt::LeftButton)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    const Qt::MouseButton changed = type == QEvent::MouseMove ? Qt::NoButton : button;
    QMouseEvent event(type, where, widget.mapToGlobal(where), changed, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

inline void Click(QWidget &widget, const QPointF &where, Qt::MouseButton button = Qt::LeftButton)
{
    Mouse(widget, QEvent::MouseButtonPress, where, button);
    Mouse(widget, QEvent::MouseButtonRelease, where, button);
}

/// Turns the event loop until the condition holds; whether it did in time.
inline bool Until(const std::function<bool()> &condition, int milliseconds = 20'000)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < milliseconds)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    return condition();
}

} // namespace input
