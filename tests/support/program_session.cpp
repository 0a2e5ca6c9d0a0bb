#include "program_session.h"

#include "core/shared_state.h"
#include "platform/browser/web_browser.h"
#include "platform/controls/form.h"
#include "platform/controls/handler.h"
#include "platform/data/adodb.h"
#include "platform/host/host.h"
#include "presentation/frmFind.h"
#include "script_error.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>

namespace
{

constexpr int kSplashMilliseconds = 3000;
constexpr int kEndMilliseconds = 20000;

/// Stands before the program's own hook for statements.
struct StatementRecorder {
    std::shared_ptr<QStringList> statements;
    std::function<void(const QString &)> next;

    void operator()(const QString &statement) const
    {
        statements->append(statement);
        if (next)
            next(statement);
    }
};

/// Runs the event loop until the condition holds; false when it does not within the time.
bool RunEventsUntil(const std::function<bool()> &condition, int milliseconds)
{
    constexpr int slice = 10;
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > milliseconds)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, slice);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        host::Sleep(1);
    }
    return true;
}

} // namespace

ProgramSession::ProgramSession(RunFolder &folder, const QString &shareFolder)
    : m_folder(folder), m_shareFolder(shareFolder)
{
}

ProgramSession::~ProgramSession() = default;

void ProgramSession::RecordStatements(std::shared_ptr<QStringList> statements)
{
    std::function<void(const QString &)> &hook = ADODB::EngineHooks().statement;
    if (!hook.target<StatementRecorder>())
        hook = StatementRecorder{std::move(statements), hook};
}

QStringList ProgramSession::TakeStatements() { return std::exchange(*m_statements, {}); }

bool ProgramSession::Start(const StartOptions &options)
{
    if (options.second)
        return StartSecond();
    if (m_program && !m_ended)
        throw ScriptError(QStringLiteral("start: the program runs already"));
    DropProgram();
    StartFirst(options);
    return !m_program->GaveWay();
}

std::unique_ptr<Program> ProgramSession::MakeProgram(const StartOptions &options)
{
    return std::make_unique<Program>(Program::Options{
        .splashMilliseconds = options.splash ? kSplashMilliseconds : 0,
        .shareFolder = m_shareFolder,
        .applicationFolder = m_folder.ApplicationFolder(),
        .fillFolder = !options.bare,
        .withSample = false,
    });
}

void ProgramSession::StartFirst(const StartOptions &options)
{
    m_last = options;
    if (options.bare)
        m_folder.EmptyApplicationFolder();
    host::SetScreenWidth(options.screenWidth);
    host::SetMousePointer(host::PointerDefault);
    Shared = SharedState{};
    RecordStatements(m_statements);
    m_program = MakeProgram(options);
    m_ended = false;
    QObject::connect(m_program.get(), &Program::Ended, m_program.get(), [this] { m_ended = true; });
    m_program->Start();
    DeliverEvents();
}

bool ProgramSession::StartSecond()
{
    const std::unique_ptr<Program> second = MakeProgram(m_last);
    second->Start();
    DeliverEvents();
    return !second->GaveWay();
}

void ProgramSession::Exit()
{
    if (frmFind *window = MainWindow())
        window->Unload();
    if (controls::RunningHandlers() > 0)
        return;
    if (m_program && !WaitForEnd(kEndMilliseconds))
        m_tell(QStringLiteral("exit: the main window does not close"));
    if (m_ended)
        DropProgram();
}

void ProgramSession::Restart()
{
    Exit();
    Start(m_last);
}

bool ProgramSession::WaitForEnd(int milliseconds)
{
    return RunEventsUntil(
        [this] { return m_ended && controls::Form::Named(QStringLiteral("frmFind")) == nullptr; },
        milliseconds);
}

void ProgramSession::DropProgram()
{
    // The process would be gone with all its windows.
    for (controls::Form *form : controls::Form::Loaded()) {
        const QPointer<controls::Form> guard(form);
        form->Unload(controls::UnloadReason::Exit);
        DeliverEvents();
        delete guard.data();
    }
    m_program.reset();
    m_ended = false;
    DeliverEvents();
}

void ProgramSession::EndEverything()
{
    if (m_program && !m_ended) {
        if (frmFind *window = MainWindow())
            window->Unload();
        constexpr int patience = 5000;
        WaitForEnd(patience);
    }
    DropProgram();
}

void ProgramSession::DeliverEvents()
{
    constexpr int rounds = 3;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

bool ProgramSession::Settle(int milliseconds)
{
    constexpr int quietRounds = 5;
    const int handlersBelow = controls::RunningHandlers();
    int quiet = 0;
    return RunEventsUntil(
        [&] {
            const frmFind *window = MainWindow();
            const bool loading = window && window->WebBrowser1 && window->WebBrowser1->IsLoading();
            quiet = loading || controls::RunningHandlers() > handlersBelow ? 0 : quiet + 1;
            return quiet > quietRounds;
        },
        milliseconds);
}
