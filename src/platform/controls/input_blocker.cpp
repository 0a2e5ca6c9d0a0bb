#include "platform/controls/input_blocker.h"

#include "platform/controls/form.h"

#include <QApplication>
#include <QEvent>
#include <QInputMethod>
#include <QWindow>

namespace controls
{

namespace
{

bool IsInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::NativeGesture:
    case QEvent::Gesture:
    case QEvent::GestureOverride: return true;
    default: return false;
    }
}

/// The widget that an object of the event delivery belongs to.
QWidget *WidgetOf(QObject *object)
{
    if (auto *window = qobject_cast<QWindow *>(object)) {
        while (window->parent())
            window = window->parent();
        return window->handle() ? QWidget::find(window->winId()) : nullptr;
    }
    for (; object; object = object->parent())
        if (auto *widget = qobject_cast<QWidget *>(object))
            return widget;
    return nullptr;
}

/// The form that an input would reach; menus and lists that drop down belong to the form below.
const Form *FormOf(QObject *object)
{
    QWidget *widget = WidgetOf(object);
    while (widget) {
        widget = widget->window();
        if (widget->windowType() != Qt::Popup)
            break;
        widget = widget->parentWidget();
    }
    return qobject_cast<const Form *>(widget);
}

} // namespace

InputBlocker &InputBlocker::Instance()
{
    static InputBlocker blocker;
    return blocker;
}

void InputBlocker::Block(Form &form)
{
    InputBlocker &blocker = Instance();
    if (blocker.m_blocked++ == 0)
        qApp->installEventFilter(&blocker);
    if (form.isActiveWindow())
        QGuiApplication::inputMethod()->reset();
    QWidget *popup = QApplication::activePopupWidget();
    if (popup && FormOf(popup) == &form)
        popup->close();
}

void InputBlocker::Release()
{
    InputBlocker &blocker = Instance();
    if (--blocker.m_blocked == 0 && qApp)
        qApp->removeEventFilter(&blocker);
}

bool InputBlocker::eventFilter(QObject *watched, QEvent *event)
{
    if (!IsInput(event->type()))
        return false;
    // The window must see the release of a button that was pressed before, or it keeps sending mouse
    // moves to the control that was under it; the control itself does not get it.
    if (event->type() == QEvent::MouseButtonRelease && watched->isWindowType())
        return false;
    const Form *form = FormOf(watched);
    if (!form || form->TakesInput())
        return false;
    // An override that is accepted keeps the key from the shortcuts; what comes then as a plain key
    // is swallowed like the others.
    event->setAccepted(event->type() == QEvent::ShortcutOverride);
    return true;
}

} // namespace controls
