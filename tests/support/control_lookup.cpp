#include "control_lookup.h"

#include "platform/browser/web_browser.h"
#include "platform/controls/form.h"
#include "presentation/frmFind.h"
#include "script_error.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QWindow>

using controls::Form;

namespace
{

QAction *ActionNamed(const QObject *parent, const QString &name)
{
    if (auto *action = parent->findChild<QAction *>(name))
        return action;
    const auto *menu = parent->findChild<QMenu *>(name);
    return menu ? menu->menuAction() : nullptr;
}

QAction *ActionNamed(const Form *form, const QString &name)
{
    if (QAction *action = ActionNamed(static_cast<const QObject *>(form), name))
        return action;
    const auto *window = qobject_cast<const frmFind *>(form);
    return window ? window->Menu(name) : nullptr;
}

/// Whether a window belongs to the modal window, which then does not block it.
bool StandsBeside(const QWidget &modal, const QWidget &window)
{
    const QWindow *front = modal.windowHandle();
    const QWindow *own = window.windowHandle();
    return modal.isAncestorOf(&window) ||
           (front && own && front->isAncestorOf(own, QWindow::IncludeTransients));
}

} // namespace

bool Target::IsForm() const { return widget && widget == static_cast<QWidget *>(form); }

Form *FindForm(const QString &name)
{
    Form *form = Form::Named(name);
    if (!form)
        throw ScriptError(QStringLiteral("the form %1 is not loaded").arg(name));
    return form;
}

Target FindTarget(const QString &address)
{
    const qsizetype dot = address.indexOf(u'.');
    if (dot < 0) {
        if (Form *form = Form::Named(address))
            return {.form = form, .widget = form};
        for (Form *form : Form::Loaded())
            if (QAction *action = ActionNamed(form, address))
                return {.form = form, .action = action};
        throw ScriptError(QStringLiteral("there is no loaded form and no menu entry \"%1\"").arg(address));
    }
    Form *form = FindForm(address.left(dot));
    const QString name = address.mid(dot + 1);
    for (QWidget *widget : form->findChildren<QWidget *>(name))
        if (!qobject_cast<QMenu *>(widget) && widget->window() == form)
            return {.form = form, .widget = widget};
    if (QAction *action = ActionNamed(form, name))
        return {.form = form, .action = action};
    throw ScriptError(QStringLiteral("the form %1 has no control \"%2\"").arg(form->objectName(), name));
}

QWidget *FindControl(const QString &address)
{
    const Target target = FindTarget(address);
    if (!target.widget)
        throw ScriptError(QStringLiteral("\"%1\" is a menu entry, not a control").arg(address));
    return target.widget;
}

QString AddressOf(const QWidget *widget)
{
    if (!widget)
        return {};
    const QWidget *window = widget->window();
    // Of the pane the user sees one control, whatever of its view or find bar has the keys.
    for (const QWidget *w = widget; w != window; w = w->parentWidget())
        if (qobject_cast<const browser::WebBrowser *>(w))
            widget = w;
    for (const QWidget *w = widget; w != window; w = w->parentWidget())
        if (!w->objectName().isEmpty() && !w->objectName().startsWith(QLatin1String("qt_")) &&
            !w->objectName().startsWith(QLatin1String("m_")))
            return window->objectName() + u'.' + w->objectName();
    return window->objectName();
}

QString WhyOutOfReach(const QWidget *widget)
{
    const QWidget *window = widget->window();
    const auto *form = qobject_cast<const Form *>(window);
    if (form && !form->TakesInput())
        return QStringLiteral("its form takes no input");
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && modal != window && !StandsBeside(*modal, *window))
        return QStringLiteral("the modal form %1 is open").arg(modal->objectName());
    if (!widget->isVisible())
        return QStringLiteral("it is not visible");
    if (!widget->isEnabled())
        return QStringLiteral("it is disabled");
    return {};
}

QString WhyOutOfReach(const Target &target)
{
    if (!target.action)
        return WhyOutOfReach(target.widget);
    const QString form = WhyOutOfReach(target.form);
    if (!form.isEmpty())
        return form;
    return target.action->isEnabled() ? QString() : QStringLiteral("it is disabled");
}
