#include "platform/controls/multi_line_box.h"

#include "platform/controls/key_character.h"
#include "platform/controls/white_base.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>

namespace controls
{

MultiLineBox::MultiLineBox(QWidget *parent) : QPlainTextEdit(parent)
{
    UseWhiteBase(*this);
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_onlyComposing)
            Q_EMIT Change();
    });
}

QString MultiLineBox::Text() const
{
    // Block by block, for the document's own plain text turns hard blanks into others.
    QString text;
    text.reserve(document()->characterCount() + document()->blockCount());
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockNumber() > 0)
            text += QStringLiteral("\r\n");
        text += block.text();
    }
    return text;
}

void MultiLineBox::SetText(const QString &value)
{
    if (value != Text())
        setPlainText(value);
}

void MultiLineBox::keyPressEvent(QKeyEvent *event)
{
    if (IsLostMnemonic(*event)) {
        event->ignore();
        return;
    }
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || event->modifiers() == Qt::NoModifier)
        return QPlainTextEdit::keyPressEvent(event);
    // With Shift the toolkit would put in a line separator, which is no end of a line.
    QKeyEvent plain(event->type(), event->key(), Qt::NoModifier, event->text(), event->isAutoRepeat());
    QPlainTextEdit::keyPressEvent(&plain);
    event->setAccepted(plain.isAccepted());
}

void MultiLineBox::inputMethodEvent(QInputMethodEvent *event)
{
    m_onlyComposing =
        event->commitString().isEmpty() && event->replacementLength() == 0 && !textCursor().hasSelection();
    QPlainTextEdit::inputMethodEvent(event);
    m_onlyComposing = false;
}

QMimeData *MultiLineBox::createMimeDataFromSelection() const
{
    auto *copy = new QMimeData;
    copy->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'));
    return copy;
}

} // namespace controls
