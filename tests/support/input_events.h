#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

/// Events of mouse and keyboard, as the window system would send them.

/// Makes the widget's window the active one.
void BringToFront(QWidget *widget);

void SendMousePress(QWidget *widget, QPoint point);
void SendMouseRelease(QWidget *widget, QPoint point);
void SendMouseDoubleClick(QWidget *widget, QPoint point);
void SendMouseMove(QWidget *widget, QPoint point, Qt::MouseButtons held = Qt::NoButton);

/// A key with what is held down beside it and the text that it gives.
struct KeyStroke {
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    QString text;
};
/// The stroke of a name ("Enter", "Ctrl+F", "a"); raises ScriptError for a name without a key.
KeyStroke KeyStrokeOf(const QString &name);
void SendKeyStroke(QWidget *widget, const KeyStroke &stroke);
/// The key of a character, or what an input method commits for one that no key bears.
void SendCharacter(QWidget *widget, char32_t character);
