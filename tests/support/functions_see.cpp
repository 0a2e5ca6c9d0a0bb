#include "control_reading.h"
#include "functions.h"
#include "platform/controls/controls.h"
#include "platform/controls/form.h"
#include "platform/controls/progress_bar.h"
#include "platform/host/host.h"
#include "presentation/frmFind.h"
#include "script_error.h"
#include "state_table.h"

#include <QApplication>
#include <QProgressBar>

namespace
{

/// A function that shows something of the control or menu entry that its first argument names.
template <typename Read> ScriptFunction See(Read read)
{
    return [read](Scenario &scenario, const Arguments &arguments) {
        return scenario.Value(read(FindTarget(arguments.Text(0))));
    };
}

/// The same of a control alone.
template <typename Read> ScriptFunction SeeControl(Read read)
{
    return [read](Scenario &scenario, const Arguments &arguments) {
        return scenario.Value(read(FindControl(arguments.Text(0))));
    };
}

QJSValue Bounds(Scenario &scenario, const Arguments &arguments)
{
    const controls::TwipRect rect = BoundsOf(FindControl(arguments.Text(0)));
    QJSValue value = scenario.Engine().newObject();
    value.setProperty(QStringLiteral("left"), rect.left);
    value.setProperty(QStringLiteral("top"), rect.top);
    value.setProperty(QStringLiteral("width"), rect.width);
    value.setProperty(QStringLiteral("height"), rect.height);
    return value;
}

QJSValue Progress(Scenario &scenario, const Arguments &arguments)
{
    const auto *bar = qobject_cast<QProgressBar *>(FindControl(arguments.Text(0)));
    if (!bar)
        throw ScriptError(QStringLiteral("progress: %1 is no progress bar").arg(arguments.Text(0)));
    const auto *own = qobject_cast<const controls::ProgressBar *>(bar);
    QJSValue value = scenario.Engine().newObject();
    value.setProperty(QStringLiteral("min"), bar->minimum());
    value.setProperty(QStringLiteral("max"), bar->maximum());
    value.setProperty(QStringLiteral("value"), own ? own->Value() : bar->value());
    return value;
}

QStringList OpenForms()
{
    QStringList names;
    for (const controls::Form *form : controls::Form::Loaded())
        if (form->isVisible())
            names.append(form->objectName());
    return names;
}

/// The control that has the focus; while no window of the program is active, the one that gets it
/// back with the window opened last.
const QWidget *FocusedWidget()
{
    if (const QWidget *focused = QApplication::focusWidget())
        return focused;
    const QList<controls::Form *> forms = controls::Form::Loaded();
    for (auto form = forms.crbegin(); form != forms.crend(); ++form)
        if ((*form)->isVisible() && (*form)->focusWidget())
            return (*form)->focusWidget();
    return nullptr;
}

QString StatusText()
{
    const frmFind *window = MainWindow();
    return window ? window->StatusBar1->SimpleText() : QString();
}

} // namespace

void AddSeeFunctions(FunctionTable &table)
{
    table[QStringLiteral("text")] = See(ShownTextOf);
    table[QStringLiteral("selectedText")] = SeeControl(SelectedTextOf);
    table[QStringLiteral("caption")] = See(CaptionOf);
    table[QStringLiteral("items")] = SeeControl(ItemsOf);
    table[QStringLiteral("selectedRow")] = SeeControl(SelectedRowOf);
    table[QStringLiteral("checked")] = See(IsChecked);
    table[QStringLiteral("enabled")] = See(IsEnabled);
    table[QStringLiteral("visible")] = See(IsVisible);
    table[QStringLiteral("toolTip")] = See(ToolTipOf);
    table[QStringLiteral("colorOf")] = SeeControl(ColorOf);
    table[QStringLiteral("fontOf")] = [](Scenario &scenario, const Arguments &arguments) {
        return FontValue(scenario, FontOf(FindControl(arguments.Text(0))));
    };
    table[QStringLiteral("bounds")] = Bounds;
    table[QStringLiteral("progress")] = Progress;
    table[QStringLiteral("focused")] = [](Scenario &, const Arguments &) {
        return QJSValue(AddressOf(FocusedWidget()));
    };
    table[QStringLiteral("isOpen")] = [](Scenario &, const Arguments &arguments) {
        return QJSValue(OpenForms().contains(arguments.Text(0)));
    };
    table[QStringLiteral("openForms")] = [](Scenario &scenario, const Arguments &) {
        return scenario.Value(OpenForms());
    };
    table[QStringLiteral("status")] = [](Scenario &, const Arguments &) { return QJSValue(StatusText()); };
    table[QStringLiteral("pointer")] = [](Scenario &, const Arguments &) {
        return QJSValue(host::MousePointer());
    };
    table[QStringLiteral("state")] = [](Scenario &scenario, const Arguments &arguments) {
        return StateValue(scenario.Engine(), arguments.Text(0));
    };
}
