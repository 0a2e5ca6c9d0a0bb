#include "platform/controls/controls.h"

#include "platform/controls/white_base.h"

#include <QAbstractItemView>
#include <QWheelEvent>

namespace controls
{

EditableBox::EditableBox(QWidget *parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
}

void EditableBox::wheelEvent(QWheelEvent *event) { event->ignore(); }

AddressBox::AddressBox(QWidget *parent) : EditableBox(parent)
{
    UseWhiteBase(*this);
    UseWhiteBase(*view());
    auto *box = new TextBox(this);
    setLineEdit(box);
    // An address typed in full must not turn into a longer one that is known.
    setCompleter(nullptr);
    // Leaving the box with a known address in it would count as choosing that.
    disconnect(box, &QLineEdit::editingFinished, this, nullptr);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(20);
    connect(box, &TextBox::KeyPress, this, &AddressBox::KeyPress);
    connect(this, &QComboBox::activated, this, &AddressBox::Click);
}

void AddressBox::AddFirst(const QString &text)
{
    const QString shown = currentText();
    insertItem(0, text);
    setEditText(shown);
}

void AddressBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        // Opens the list. Without it each step would be a choice.
        showPopup();
        event->accept();
        break;
    default: EditableBox::keyPressEvent(event);
    }
}

void AddressBox::focusInEvent(QFocusEvent *event)
{
    EditableBox::focusInEvent(event);
    if (event->reason() == Qt::OtherFocusReason)
        lineEdit()->selectAll();
}

} // namespace controls
