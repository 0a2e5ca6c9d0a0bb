#include "functions.h"
#include "platform/controls/form.h"
#include "user_input.h"

#include "script_error.h"

namespace
{

/// Wraps an action of the user: finds what the first argument names, does it, delivers what it set
/// off, and notes why where nothing happened.
ScriptFunction Action(QString (*act)(const Target &, const Arguments &))
{
    return [act](Scenario &scenario, const Arguments &arguments) {
        const QString address = arguments.Text(0);
        const QString why = act(FindTarget(address), arguments);
        if (!why.isEmpty())
            scenario.Note(QStringLiteral("%1: nothing happens, for %2").arg(address, why));
        ProgramSession::DeliverEvents();
        return QJSValue();
    };
}

/// The same for what only controls and forms take.
template <QString (*act)(const Target &, const Arguments &)>
QString OnControl(const Target &target, const Arguments &arguments)
{
    if (!target.widget)
        throw ScriptError(QStringLiteral("\"%1\" is a menu entry, not a control").arg(arguments.Text(0)));
    return act(target, arguments);
}

QString Type(const Target &target, const Arguments &arguments) { return TypeText(target, arguments.Text(1)); }
QString SetText(const Target &target, const Arguments &arguments)
{
    return ReplaceText(target, arguments.Text(1, QString()));
}
QString Press(const Target &target, const Arguments &arguments)
{
    return PressKey(target, arguments.Text(1));
}
QString Click(const Target &target, const Arguments &) { return ClickControl(target); }
QString MouseDown(const Target &target, const Arguments &) { return PressMouse(target); }
QString DoubleClick(const Target &target, const Arguments &arguments)
{
    return DoubleClickControl(target, arguments.Integer(1, -1));
}
QString ClickOnRow(const Target &target, const Arguments &arguments)
{
    return ClickRow(target, arguments.Integer(1));
}
QString Choose(const Target &target, const Arguments &arguments)
{
    return arguments.Value(1).isNumber() ? ChooseRow(target, arguments.Integer(1))
                                         : ChooseItem(target, arguments.Text(1));
}
QString Trigger(const Target &target, const Arguments &) { return TriggerMenu(target); }
QString Hover(const Target &target, const Arguments &arguments)
{
    return HoverControl(target, arguments.Integer(1, -1));
}
QString Focus(const Target &target, const Arguments &) { return FocusOn(target); }
QString Resize(const Target &target, const Arguments &arguments)
{
    return ResizeForm(target, arguments.Integer(1), arguments.Integer(2));
}

} // namespace

void AddUserFunctions(FunctionTable &table)
{
    table[QStringLiteral("typeText")] = Action(OnControl<Type>);
    table[QStringLiteral("setText")] = Action(OnControl<SetText>);
    table[QStringLiteral("press")] = Action(OnControl<Press>);
    table[QStringLiteral("click")] = Action(Click);
    table[QStringLiteral("mouseDown")] = Action(OnControl<MouseDown>);
    table[QStringLiteral("doubleClick")] = Action(OnControl<DoubleClick>);
    table[QStringLiteral("clickRow")] = Action(OnControl<ClickOnRow>);
    table[QStringLiteral("choose")] = Action(OnControl<Choose>);
    table[QStringLiteral("menu")] = Action(Trigger);
    table[QStringLiteral("hover")] = Action(OnControl<Hover>);
    table[QStringLiteral("focusOn")] = Action(OnControl<Focus>);
    table[QStringLiteral("resize")] = Action(OnControl<Resize>);
    table[QStringLiteral("dragListEdge")] = [](Scenario &scenario, const Arguments &arguments) {
        const QString why = DragRightEdge(FindTarget(QStringLiteral("frmFind.List1")), arguments.Integer(0));
        if (!why.isEmpty())
            scenario.Note(QStringLiteral("dragListEdge: nothing happens, for %1").arg(why));
        ProgramSession::DeliverEvents();
        return QJSValue();
    };
    table[QStringLiteral("settle")] = [](Scenario &scenario, const Arguments &) {
        const bool quiet = scenario.Program().Settle();
        if (!quiet)
            scenario.Note(QStringLiteral("settle: pane and events do not get quiet"));
        return QJSValue(quiet);
    };
}
