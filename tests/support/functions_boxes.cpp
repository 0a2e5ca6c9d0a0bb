#include "functions.h"

void AddBoxFunctions(FunctionTable &table)
{
    using Kind = dialogs::Box::Kind;
    const auto answers = [](Kind kind) -> ScriptFunction {
        return [kind](Scenario &scenario, const Arguments &arguments) {
            scenario.Boxes().Answer(kind, arguments.Value(0));
            return QJSValue();
        };
    };
    table[QStringLiteral("answer")] = answers(Kind::Message);
    table[QStringLiteral("answerInput")] = answers(Kind::Input);
    table[QStringLiteral("answerFile")] = answers(Kind::File);
    table[QStringLiteral("answerFolder")] = answers(Kind::Folder);
    table[QStringLiteral("answerFont")] = answers(Kind::Font);
    table[QStringLiteral("answerColor")] = answers(Kind::Color);
    table[QStringLiteral("boxes")] = [](Scenario &scenario, const Arguments &) {
        return scenario.Boxes().Drain();
    };
}
