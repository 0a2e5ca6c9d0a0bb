#pragma once

#include <QValidator>

class QLineEdit;

/// Lets digits alone into number fields: full-width ones become half-width ones, every other
/// character is discarded and leaves the field and its selection as they were.
class DigitFilter : public QValidator
{
    Q_OBJECT
public:
    explicit DigitFilter(QObject *parent) : QValidator(parent) {}

    /// Guards a field. `receiver` is the control that gets the keys: the field, or the box around it.
    void Guard(QWidget *receiver, QLineEdit *field);

    /// What comes by other ways than keys, from an input method or the clipboard.
    State validate(QString &input, int &position) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;
};
