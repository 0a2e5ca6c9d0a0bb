#pragma once

#include <QKeyEvent>

namespace controls
{

/// The character code of a key: 13 Enter, 27 Esc, 8 Backspace, else the character that it types;
/// -1 for a key that types none.
inline int CharacterOf(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return 13;
    case Qt::Key_Escape: return 27;
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Delete: return -1;
    default: break;
    }
    const QString text = event.text();
    return text.isEmpty() ? -1 : text.front().unicode();
}

} // namespace controls
