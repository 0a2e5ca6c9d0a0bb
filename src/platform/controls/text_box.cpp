#include "platform/controls/controls.h"

#include "platform/controls/key_character.h"
#include "platform/controls/white_base.h"
#include "platform/text/one_line.h"

#include <QInputMethodEvent>
#include <QScopedValueRollback>
#include <QValidator>
#include <algorithm>

namespace controls
{

/// Joins the lines of what the user puts into the box.
class TextBox::LineJoiner : public QValidator
{
public:
    explicit LineJoiner(TextBox *box) : QValidator(box), m_box(*box) {}

    State validate(QString &input, int &caret) const override
    {
        // A text of the program's is shown as it is.
        if (!m_box.m_isSetting) {
            caret = static_cast<int>(text::OneLine(input.first(caret)).size());
            input = text::OneLine(input);
            caret = std::min(caret, static_cast<int>(input.size()));
        }
        return Acceptable;
    }

private:
    const TextBox &m_box;
};

TextBox::TextBox(QWidget *parent) : QLineEdit(parent)
{
    UseWhiteBase(*this);
    setValidator(new LineJoiner(this));
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!DropHalfCharacter())
            Q_EMIT Change();
    });
}

bool TextBox::DropHalfCharacter()
{
    const qsizetype caret = cursorPosition();
    const QString shown = text();
    if (caret == 0 || shown.size() != maxLength() || !shown.at(caret - 1).isHighSurrogate() ||
        (caret < shown.size() && shown.at(caret).isLowSurrogate()))
        return false;
    backspace();
    return true;
}

void TextBox::SetText(const QString &value)
{
    if (value == text())
        return;
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    setText(value);
}

void TextBox::CaretToEnd()
{
    deselect();
    end(false);
}

void TextBox::keyPressEvent(QKeyEvent *event)
{
    if (IsLostMnemonic(*event)) {
        event->ignore();
        return;
    }
    const int key = event->key();
    const int character = CharacterOf(*event);
    if (m_composing) {
        // These are the input method's, also where it hands them on.
        if (character != 13 && character != 27 && key != Qt::Key_Down)
            QLineEdit::keyPressEvent(event);
        return;
    }
    if (character >= 0) {
        bool swallow = false;
        Q_EMIT KeyPress(character, &swallow);
        if (swallow) {
            event->accept();
            return;
        }
    }
    if (key == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier) == false) {
        Q_EMIT DownPressed();
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void TextBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    switch (event->reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
    case Qt::OtherFocusReason: selectAll(); break;
    default: break;
    }
}

void TextBox::inputMethodEvent(QInputMethodEvent *event)
{
    m_composing = !event->preeditString().isEmpty();
    QLineEdit::inputMethodEvent(event);
}

} // namespace controls
