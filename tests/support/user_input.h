#pragma once

#include "control_lookup.h"

#include <QString>

/// What a user does with keyboard and mouse: real events to the real controls. Each returns why
/// nothing happened (the control is disabled, hidden, its form blocked), empty when it was done.
/// ScriptError is raised for what no user could try: a row that is not there, a key without a name.

/// Types a text key by key; characters that no key bears come as an input method commits them.
QString TypeText(const Target &target, const QString &text);
/// Puts a text in the place of the content, as by a paste over everything.
QString ReplaceText(const Target &target, const QString &text);
/// Presses and releases a key: "Enter", "Esc", "Down", "Ctrl+F", "a".
QString PressKey(const Target &target, const QString &key);

QString ClickControl(const Target &target);
QString PressMouse(const Target &target);
/// A row of -1 is the middle of the control.
QString DoubleClickControl(const Target &target, int row);
QString ClickRow(const Target &target, int row);
/// Moves the pointer over the control, or over a row of it.
QString HoverControl(const Target &target, int row);

/// Chooses an item of a drop-down box or a row of a list.
QString ChooseRow(const Target &target, int row);
QString ChooseItem(const Target &target, const QString &item);
/// Chooses a menu entry.
QString TriggerMenu(const Target &target);

QString FocusOn(const Target &target);
/// Gives a form another size, in twips.
QString ResizeForm(const Target &target, int width, int height);
/// Closes a form by its window frame.
QString CloseByFrame(const Target &target);
/// Drags the right edge of a list with a sizing frame until it is as wide as told, in twips.
QString DragRightEdge(const Target &target, int width);
