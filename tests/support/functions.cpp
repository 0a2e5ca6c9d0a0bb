#include "functions.h"

#include "comparison.h"

const FunctionTable &Functions()
{
    static const FunctionTable table = [] {
        FunctionTable all;
        AddLifeFunctions(all);
        AddFolderFunctions(all);
        AddDataFunctions(all);
        AddUserFunctions(all);
        AddSeeFunctions(all);
        AddBoxFunctions(all);
        AddPaneFunctions(all);
        AddMachineFunctions(all);
        AddCheckFunctions(all);
        return all;
    }();
    return table;
}

void AddCheckFunctions(FunctionTable &table)
{
    table[QStringLiteral("check")] = [](Scenario &scenario, const Arguments &arguments) {
        const QStringList differences = Differences(arguments.Value(0), arguments.Value(1));
        scenario.Check(differences.isEmpty(), arguments.Text(2, QString()), differences);
        return QJSValue(differences.isEmpty());
    };
    table[QStringLiteral("ok")] = [](Scenario &scenario, const Arguments &arguments) {
        const bool holds = arguments.Value(0).toBool();
        scenario.Check(holds, arguments.Text(1, QString()), {});
        return QJSValue(holds);
    };
    table[QStringLiteral("note")] = [](Scenario &scenario, const Arguments &arguments) {
        const QJSValue value = arguments.Value(0);
        scenario.Note(value.isString() ? value.toString() : Literal(value));
        return QJSValue();
    };
}
