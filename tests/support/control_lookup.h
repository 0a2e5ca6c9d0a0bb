#pragma once

#include <QList>
#include <QString>

class QAction;
class QWidget;
namespace controls
{
class Form;
}

/// What an address of a script ("frmFind.txtFind", "frmColorSelect.Label0(3)", "frmFind",
/// "mnuCopy") names: a control or a form, or a menu entry.
struct Target {
    controls::Form *form = nullptr;
    QWidget *widget = nullptr; ///< the form itself where it is addressed alone
    QAction *action = nullptr;
    bool IsForm() const;
};

/// Raises ScriptError where there is no such form or control.
Target FindTarget(const QString &address);
/// The same for a control or form only.
QWidget *FindControl(const QString &address);
/// The loaded form of that name; raises ScriptError.
controls::Form *FindForm(const QString &name);

/// "form.control" of a widget or of the nearest named control around it; the form's name alone
/// where there is none.
QString AddressOf(const QWidget *widget);

/// Why the user cannot reach the control at present; empty when he can.
QString WhyOutOfReach(const QWidget *widget);
QString WhyOutOfReach(const Target &target);
