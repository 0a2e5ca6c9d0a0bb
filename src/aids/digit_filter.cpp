#include "aids/digit_filter.h"

#include "aids/pure/list_sizes.h"
#include "platform/controls/key_character.h"

#include <QKeyEvent>
#include <QLineEdit>

void DigitFilter::Guard(QWidget *receiver, QLineEdit *field)
{
    receiver->installEventFilter(this);
    field->setValidator(this);
}

QValidator::State DigitFilter::validate(QString &input, int &position) const
{
    const std::optional<QString> digits = FilteredText(input);
    if (!digits)
        return Invalid;
    if (*digits != input) {
        input = *digits;
        position = std::min(position, static_cast<int>(input.size()));
    }
    return Acceptable;
}

bool DigitFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        constexpr int firstTyped = 0x20;
        const int character = controls::CharacterOf(*static_cast<QKeyEvent *>(event));
        if (character >= firstTyped && !FilteredKey(QChar(static_cast<char16_t>(character))))
            return true;
    }
    return QValidator::eventFilter(watched, event);
}
