#pragma once

#include "core/program.h"
#include "run_folder.h"

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

/// How a script starts the program.
struct StartOptions {
    bool splash = false;
    int screenWidth = 0; ///< logical pixels; 0 for the truth
    bool bare = false;
    bool second = false;
};

/// The program under test, from a start to its end, and again.
class ProgramSession
{
public:
    ProgramSession(RunFolder &folder, const QString &shareFolder);
    ~ProgramSession();
    ProgramSession(const ProgramSession &) = delete;
    ProgramSession &operator=(const ProgramSession &) = delete;

    /// Called with what goes wrong outside of any call of the script.
    void OnTrouble(std::function<void(const QString &)> tell) { m_tell = std::move(tell); }

    /// Starts the program, or a second instance beside it. True when the main window stands, false
    /// when the run gave way. Raises ScriptError when it runs already.
    bool Start(const StartOptions &options);
    /// Closes the main window and waits for the end. Inside of a handler it only asks for the end,
    /// which comes when the handlers have returned.
    void Exit();
    void Restart();
    /// Ends whatever still runs or stands, even where a form refuses.
    void EndEverything();

    /// Waits until pane and events are quiet; false when they are not within the time.
    bool Settle(int milliseconds = 15000);
    /// Delivers what an action of the user set off.
    static void DeliverEvents();

    /// The statements executed since the last call.
    QStringList TakeStatements();

private:
    void StartFirst(const StartOptions &options);
    bool StartSecond();
    std::unique_ptr<Program> MakeProgram(const StartOptions &options);
    bool WaitForEnd(int milliseconds);
    void DropProgram();
    static void RecordStatements(std::shared_ptr<QStringList> statements);

    RunFolder &m_folder;
    QString m_shareFolder;
    StartOptions m_last;
    std::function<void(const QString &)> m_tell;
    std::unique_ptr<Program> m_program;
    bool m_ended = false;
    std::shared_ptr<QStringList> m_statements = std::make_shared<QStringList>();
};
