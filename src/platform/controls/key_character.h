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

/// Whether a key is a mnemonic that no control took: a text box would type its character.
inline bool IsLostMnemonic(const QKeyEvent &event)
{
    const QString text = event.text();
    return event.modifiers().testFlag(Qt::AltModifier) && !event.modifiers().testFlag(Qt::ControlModifier) &&
           !text.isEmpty() && text.front().isPrint();
}

} // namespace controls
