#include "input_events.h"

#include "script_error.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QWidget>
#include <array>

namespace
{

/// Delivers an event as one of the window system: focus by click and shortcuts hang on that.
void Deliver(QWidget *widget, QEvent &event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

void SendMouse(QWidget *widget, QEvent::Type type, QPoint point, Qt::MouseButton button,
               Qt::MouseButtons held)
{
    QMouseEvent event(type, QPointF(point), QPointF(widget->mapToGlobal(point)), button, held,
                      Qt::NoModifier);
    Deliver(widget, event);
}

struct NamedKey {
    const char *name;
    Qt::Key key;
    const char *text;
};
constexpr std::array kNamedKeys{
    NamedKey{"Enter", Qt::Key_Return, "\r"},
    NamedKey{"Return", Qt::Key_Return, "\r"},
    NamedKey{"Esc", Qt::Key_Escape, "\x1b"},
    NamedKey{"Escape", Qt::Key_Escape, "\x1b"},
    NamedKey{"Backspace", Qt::Key_Backspace, "\b"},
    NamedKey{"Delete", Qt::Key_Delete, "\x7f"},
    NamedKey{"Del", Qt::Key_Delete, "\x7f"},
    NamedKey{"Tab", Qt::Key_Tab, "\t"},
    NamedKey{"Space", Qt::Key_Space, " "},
    NamedKey{"Up", Qt::Key_Up, ""},
    NamedKey{"Down", Qt::Key_Down, ""},
    NamedKey{"Left", Qt::Key_Left, ""},
    NamedKey{"Right", Qt::Key_Right, ""},
    NamedKey{"Home", Qt::Key_Home, ""},
    NamedKey{"End", Qt::Key_End, ""},
    NamedKey{"PageUp", Qt::Key_PageUp, ""},
    NamedKey{"PageDown", Qt::Key_PageDown, ""},
    NamedKey{"Insert", Qt::Key_Insert, ""},
};

KeyStroke StrokeOfAscii(char32_t character)
{
    const QChar c(static_cast<char16_t>(character));
    return {.key = c.toUpper().unicode(),
            .modifiers = c.isUpper() ? Qt::ShiftModifier : Qt::NoModifier,
            .text = QString(c)};
}

KeyStroke PlainStrokeOf(const QString &name)
{
    for (const NamedKey &named : kNamedKeys)
        if (name.compare(QLatin1String(named.name), Qt::CaseInsensitive) == 0)
            return {.key = named.key, .modifiers = {}, .text = QString::fromLatin1(named.text)};
    if (name.size() == 1 && name[0].unicode() > 0x20 && name[0].unicode() < 0x7F)
        return StrokeOfAscii(name[0].unicode());
    const QKeySequence sequence = QKeySequence::fromString(name);
    if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown)
        throw ScriptError(QStringLiteral("there is no key \"%1\"").arg(name));
    return {.key = sequence[0].key(), .modifiers = {}, .text = {}};
}

} // namespace

void BringToFront(QWidget *widget)
{
    QWidget *window = widget->window();
    if (window->isActiveWindow() || !window->isVisible())
        return;
    window->activateWindow();
    QCoreApplication::processEvents();
}

void SendMousePress(QWidget *widget, QPoint point)
{
    SendMouse(widget, QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton);
}

void SendMouseRelease(QWidget *widget, QPoint point)
{
    SendMouse(widget, QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton);
}

void SendMouseDoubleClick(QWidget *widget, QPoint point)
{
    SendMouse(widget, QEvent::MouseButtonDblClick, point, Qt::LeftButton, Qt::LeftButton);
}

void SendMouseMove(QWidget *widget, QPoint point, Qt::MouseButtons held)
{
    SendMouse(widget, QEvent::MouseMove, point, Qt::NoButton, held);
}

KeyStroke KeyStrokeOf(const QString &name)
{
    QString rest = name;
    Qt::KeyboardModifiers modifiers;
    constexpr std::array prefixes{std::pair{"Ctrl+", Qt::ControlModifier},
                                  std::pair{"Shift+", Qt::ShiftModifier}, std::pair{"Alt+", Qt::AltModifier}};
    for (bool found = true; found;) {
        found = false;
        for (const auto &[prefix, modifier] : prefixes)
            if (rest.startsWith(QLatin1String(prefix), Qt::CaseInsensitive) &&
                !modifiers.testFlag(modifier)) {
                rest.remove(0, QLatin1String(prefix).size());
                modifiers |= modifier;
                found = true;
            }
    }
    KeyStroke stroke = PlainStrokeOf(rest);
    // "Ctrl+F" means the key F, without Shift.
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier)) {
        stroke.text.clear();
        stroke.modifiers = {};
    }
    if (stroke.key == Qt::Key_Tab && modifiers.testFlag(Qt::ShiftModifier))
        stroke.key = Qt::Key_Backtab;
    stroke.modifiers |= modifiers;
    return stroke;
}

void SendKeyStroke(QWidget *widget, const KeyStroke &stroke)
{
    QKeyEvent press(QEvent::KeyPress, stroke.key, stroke.modifiers, stroke.text);
    const QPointer<QWidget> guard(widget);
    if (!qt_sendShortcutOverrideEvent(widget, press.timestamp(), stroke.key, stroke.modifiers, stroke.text) &&
        guard)
        Deliver(widget, press);
    if (!guard)
        return;
    QKeyEvent release(QEvent::KeyRelease, stroke.key, stroke.modifiers, stroke.text);
    Deliver(widget, release);
}

void SendCharacter(QWidget *widget, char32_t character)
{
    constexpr char32_t blank = 0x20, firstBeyondKeys = 0x7F;
    if (character == U'\r' || character == U'\n') {
        SendKeyStroke(widget, KeyStrokeOf(QStringLiteral("Enter")));
    } else if (character == U'\t') {
        SendKeyStroke(widget, KeyStrokeOf(QStringLiteral("Tab")));
    } else if (character >= blank && character < firstBeyondKeys) {
        SendKeyStroke(widget, StrokeOfAscii(character));
    } else if (widget->testAttribute(Qt::WA_InputMethodEnabled)) {
        QInputMethodEvent commit;
        commit.setCommitString(QString::fromUcs4(&character, 1));
        Deliver(widget, commit);
    } else {
        SendKeyStroke(widget,
                      {.key = Qt::Key_unknown, .modifiers = {}, .text = QString::fromUcs4(&character, 1)});
    }
}
