#include "control_lookup.h"
#include "functions.h"
#include "user_input.h"

namespace
{

StartOptions OptionsOf(const Arguments &arguments)
{
    return {.splash = arguments.Flag(0, QStringLiteral("splash"), false),
            .screenWidth = arguments.Option(0, QStringLiteral("screenWidth")).toInt(),
            .bare = arguments.Flag(0, QStringLiteral("bare"), false),
            .second = arguments.Flag(0, QStringLiteral("second"), false)};
}

} // namespace

void AddLifeFunctions(FunctionTable &table)
{
    table[QStringLiteral("start")] = [](Scenario &scenario, const Arguments &arguments) {
        return QJSValue(scenario.Program().Start(OptionsOf(arguments)));
    };
    table[QStringLiteral("closeForm")] = [](Scenario &scenario, const Arguments &arguments) {
        const QString why = CloseByFrame({.form = FindForm(arguments.Text(0))});
        if (!why.isEmpty())
            scenario.Note(QStringLiteral("closeForm %1: %2").arg(arguments.Text(0), why));
        ProgramSession::DeliverEvents();
        return QJSValue();
    };
    table[QStringLiteral("exit")] = [](Scenario &scenario, const Arguments &) {
        scenario.Program().Exit();
        return QJSValue();
    };
    table[QStringLiteral("restart")] = [](Scenario &scenario, const Arguments &) {
        scenario.Program().Restart();
        return QJSValue();
    };
}
