#include "scenario.h"

#include "platform/agent/agent.h"
#include "platform/agent/sound_sink.h"
#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "script_error.h"
#include "speech_record.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace
{

/// Makes the global functions, and hands back a call that never throws.
constexpr auto kPrelude =
    u"(function (runner, names, globals) {"
    "    names.forEach(function (name) {"
    "        globals[name] = function () {"
    "            return runner.call(name, Array.prototype.slice.call(arguments), new Error().stack);"
    "        };"
    "    });"
    "    return function (callee, args) {"
    "        try {"
    "            return {value: callee.apply(undefined, args)};"
    "        } catch (error) {"
    "            return {error: String(error), stack: String(error && error.stack)};"
    "        }"
    "    };"
    "})";

} // namespace

Scenario::Scenario(RunFolder &folder, const QString &shareFolder, Tap &tap)
    : m_folder(folder), m_tap(tap), m_program(folder, shareFolder), m_boxes(*this), m_yields(*this)
{
    m_engine.installExtensions(QJSEngine::ConsoleExtension);
    InstallFunctions();
    InstallHooks();
}

void Scenario::InstallFunctions()
{
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    const QJSValue prelude =
        m_engine.evaluate(QString::fromUtf16(kPrelude), QStringLiteral("functions of the runner"));
    const QStringList names = Functions().keys();
    m_guard =
        prelude.call({m_engine.newQObject(this), m_engine.toScriptValue(names), m_engine.globalObject()});
}

void Scenario::InstallHooks()
{
    dialogs::SetPresenter([this](const dialogs::Box &box) { return m_boxes.Present(box); });
    host::SetYieldHook([this] { m_yields.Yield(); });
    agent::SetCallHook([](const QString &call, const QVariantList &arguments) {
        RecordSpeech({call, arguments});
    });
    agent::SetSinkMaker(agent::MakeSilentSink);
    m_program.OnTrouble([this](const QString &what) { Fail(what); });
}

void Scenario::Run(const QString &file)
{
    m_file = file;
    m_watchdog = std::make_unique<Watchdog>(Watchdog::Allowance(), [this] { m_engine.setInterrupted(true); });
    const bool ran = Evaluate(file);
    m_boxes.NoteLeftovers();
    m_yields.NoteLeftovers();
    End();
    if (m_watchdog->Barked())
        Fail(QStringLiteral("takes longer than %1 s, at last in %2")
                 .arg(Watchdog::Allowance())
                 .arg(m_watchdog->Doing()));
    else if (ran)
        m_tap.Point(true, QStringLiteral("runs to its end"));
    m_watchdog.reset();
}

bool Scenario::Evaluate(const QString &file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        Fail(QStringLiteral("cannot be read: ") + source.errorString());
        return false;
    }
    QStringList stack;
    const QJSValue result = m_engine.evaluate(QString::fromUtf8(source.readAll()), file, 1, &stack);
    // The value may be an error that nobody threw; an interruption leaves no stack.
    if (stack.isEmpty() && !m_watchdog->Barked())
        return true;
    QStringList diagnostics{result.toString()};
    if (result.isError())
        diagnostics.append(
            QStringLiteral("line %1").arg(result.property(QStringLiteral("lineNumber")).toInt()));
    for (const QString &frame : std::as_const(stack))
        diagnostics.append(QStringLiteral("in ") + frame);
    Fail(QStringLiteral("JavaScript error: ") + result.toString(), diagnostics);
    return false;
}

void Scenario::End()
{
    // Nothing that the script armed may stand in the way of the end.
    faults::Clear();
    files::ClearReadOnlyMarks();
    files::SetFreeBytes(-1);
    m_yields.Clear();
    m_program.EndEverything();
    host::SetFacts(nullptr);
    host::SetScreenWidth(0);
}

void Scenario::Check(bool passed, const QString &what, QStringList diagnostics)
{
    if (!passed)
        diagnostics.prepend(QStringLiteral("at ") + m_caller);
    m_tap.Point(passed, what.isEmpty() ? m_caller : what, diagnostics);
}

void Scenario::Fail(const QString &what, const QStringList &diagnostics)
{
    m_tap.Point(false, what, diagnostics);
}

std::optional<QJSValue> Scenario::CallBack(const QJSValue &function, const QJSValueList &arguments,
                                           const QString &what)
{
    QJSValue list = m_engine.newArray(static_cast<quint32>(arguments.size()));
    for (qsizetype i = 0; i < arguments.size(); ++i)
        list.setProperty(static_cast<quint32>(i), arguments[i]);
    const QJSValue outcome = m_guard.call({function, list});
    if (outcome.isObject() && outcome.hasOwnProperty(QStringLiteral("value")))
        return outcome.property(QStringLiteral("value"));
    const QJSValue error = outcome.isError() ? outcome : outcome.property(QStringLiteral("error"));
    Fail(QStringLiteral("JavaScript error in %1: %2").arg(what, error.toString()),
         outcome.property(QStringLiteral("stack")).toString().split(u'\n', Qt::SkipEmptyParts));
    return std::nullopt;
}

QString Scenario::CallerIn(const QString &stack) const
{
    for (const QString &frame : stack.split(u'\n')) {
        const qsizetype at = frame.indexOf(m_file);
        if (at >= 0)
            return QFileInfo(m_file).fileName() + frame.mid(at + m_file.size());
    }
    return QFileInfo(m_file).fileName();
}

QJSValue Scenario::call(const QString &name, const QJSValue &arguments, const QString &stack)
{
    m_caller = CallerIn(stack);
    m_watchdog->Tell(QStringLiteral("%1 (%2)").arg(name, m_caller));
    try {
        return Functions().value(name)(*this, Arguments(name, Elements(arguments)));
    } catch (const ScriptError &error) {
        m_engine.throwError(error.Message());
    } catch (const RuntimeError &failure) {
        m_engine.throwError(
            QStringLiteral("%1: failure %2, %3").arg(name).arg(failure.number()).arg(failure.description()));
    }
    return {};
}
