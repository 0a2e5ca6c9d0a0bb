#pragma once

#include "arguments.h"
#include "box_queue.h"
#include "program_session.h"
#include "tap.h"
#include "watchdog.h"
#include "yield_counter.h"

#include <QHash>
#include <QJSEngine>
#include <QObject>
#include <functional>
#include <optional>

class Scenario;

/// A function that scripts can call.
using ScriptFunction = std::function<QJSValue(Scenario &, const Arguments &)>;
using FunctionTable = QHash<QString, ScriptFunction>;

/// All functions that scripts have, by name.
const FunctionTable &Functions();

/// The run of one scenario file.
class Scenario : public QObject
{
    Q_OBJECT
public:
    Scenario(RunFolder &folder, const QString &shareFolder, Tap &tap);

    /// Runs the file to its end and ends the program.
    void Run(const QString &file);

    QJSEngine &Engine() { return m_engine; }
    ProgramSession &Program() { return m_program; }
    BoxQueue &Boxes() { return m_boxes; }
    YieldCounter &Yields() { return m_yields; }
    RunFolder &Folder() { return m_folder; }

    /// A point of the script.
    void Check(bool passed, const QString &what, QStringList diagnostics = {});
    /// What makes the file fail beside its checks.
    void Fail(const QString &what, const QStringList &diagnostics = {});
    void Note(const QString &text) { m_tap.Note(text); }

    /// Calls a function of the script from inside the program; a failure in it fails the file, and
    /// nothing is returned.
    std::optional<QJSValue> CallBack(const QJSValue &function, const QJSValueList &arguments,
                                     const QString &what);

    /// A value for the script.
    template <typename T> QJSValue Value(const T &value) { return m_engine.toScriptValue(value); }

    /// What the functions of the script come down to.
    Q_INVOKABLE QJSValue call(const QString &name, const QJSValue &arguments, const QString &stack);

private:
    void InstallFunctions();
    /// False when it was not run to its end.
    bool Evaluate(const QString &file);
    void End();
    void InstallHooks();
    QString CallerIn(const QString &stack) const;

    RunFolder &m_folder;
    Tap &m_tap;
    QJSEngine m_engine;
    ProgramSession m_program;
    BoxQueue m_boxes;
    YieldCounter m_yields;
    std::unique_ptr<Watchdog> m_watchdog;
    QJSValue m_guard;
    QString m_file;
    QString m_caller;
};
