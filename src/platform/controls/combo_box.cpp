#include "platform/controls/controls.h"

#include "platform/controls/key_character.h"
#include "platform/controls/white_base.h"

#include <QAbstractItemView>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

namespace controls
{

ComboBox::ComboBox(QWidget *parent) : QComboBox(parent)
{
    UseWhiteBase(*this);
    UseWhiteBase(*view());
    // The users' colours are chosen against light; a dark theme's button would swallow them.
    QPalette light = palette();
    light.setColor(QPalette::Button, QColor(0xEF, 0xEF, 0xEF));
    setPalette(light);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(20);
    connect(this, &QComboBox::activated, this, &ComboBox::Click);
}

void ComboBox::AddItem(const QString &text)
{
    const int selected = currentIndex();
    addItem(text);
    // The first item of an empty box is not chosen by itself.
    if (selected < 0)
        setCurrentIndex(-1);
}

void ComboBox::Clear()
{
    clear();
    m_freeText.clear();
    update();
}

QString ComboBox::Text() const { return currentIndex() < 0 ? m_freeText : currentText(); }

void ComboBox::SetText(const QString &text)
{
    setCurrentIndex(text.isEmpty() ? -1 : findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    m_freeText = currentIndex() < 0 ? text : QString();
    update();
}

void ComboBox::Choose(int row)
{
    if (row < 0 || row >= count())
        return;
    setCurrentIndex(row);
    Q_EMIT Click();
}

void ComboBox::keyPressEvent(QKeyEvent *event)
{
    const int character = CharacterOf(*event);
    bool swallow = false;
    if (character >= 0)
        Q_EMIT KeyPress(character, &swallow);
    if (swallow)
        event->accept();
    else
        QComboBox::keyPressEvent(event);
}

void ComboBox::wheelEvent(QWheelEvent *event)
{
    // Turned over the closed box it would change the choice unseen; the open list scrolls by itself.
    event->ignore();
}

void ComboBox::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    option->currentText = Text();
}

} // namespace controls
