#pragma once

#include <QObject>

namespace controls
{

class Form;

/// Keeps every input from the forms that take none: an application-wide filter, installed only
/// while there is such a form.
class InputBlocker : public QObject
{
    Q_OBJECT
public:
    /// Counts a form in or out.
    static void Block(Form &form);
    static void Release();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    InputBlocker() = default;
    static InputBlocker &Instance();

    int m_blocked = 0;
};

} // namespace controls
