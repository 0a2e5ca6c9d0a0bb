#include "core/program.h"

#include "core/StartupForm.h"
#include "core/failure_handling.h"
#include "core/shared_state.h"
#include "platform/browser/web_browser.h"
#include "platform/controls/handler.h"
#include "platform/data/adodb.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/application_folder.h"
#include "platform/host/plain_texts.h"
#include "presentation/frmFind.h"
#include "presentation/help_viewer.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QStyleFactory>
#include <QTranslator>
#include <utility>
#include <vector>

/// The pictures lie in a static library, which the linker would leave without them. (The macro wants
/// the global namespace.)
static void TakePictures() { Q_INIT_RESOURCE(wordmere); }

Program::Program(Options options) : m_options(std::move(options))
{
    if (m_options.applicationFolder.isEmpty())
        m_options.applicationFolder = files::ChooseApplicationFolder(QApplication::applicationDirPath());
}

Program::~Program()
{
    // A failed operation leaves its objects open; the engine must not outlive its own end.
    if (m_lock && !m_gaveWay)
        ReleaseDataObjects();
}

void Program::Start()
{
    auto *splash = new StartupForm(*this);
    splash->Load();
    splash->Unload();
}

bool Program::TakeFolder()
{
    m_lock = std::make_unique<host::InstanceLock>(m_options.applicationFolder);
    m_gaveWay = m_lock->HeldElsewhere();
    if (m_gaveWay)
        return false;
    Shared = SharedState{};
    files::SetApplicationFolder(m_options.applicationFolder);
    if (m_options.fillFolder)
        GuardStep([this] {
            files::FillApplicationFolder(m_options.applicationFolder,
                                         {m_options.shareFolder, m_options.withSample});
        });
    return true;
}

void Program::LeaveSplash()
{
    if (m_gaveWay) {
        Q_EMIT Ended();
        return;
    }
    auto *window = new frmFind;
    connect(window, &frmFind::Gone, this, &Program::Ended);
    window->ShowForm();
}

void Program::End()
{
    // The end of one may take others with it.
    QList<QPointer<controls::Form>> forms;
    for (controls::Form *form : controls::Form::Loaded())
        if (form != MainWindow())
            forms.prepend(form);
    for (const QPointer<controls::Form> &form : std::as_const(forms))
        if (form)
            form->Unload(controls::UnloadReason::Exit);
    if (frmFind *window = MainWindow())
        window->Unload(controls::UnloadReason::Exit);
    else
        Q_EMIT Ended();
}

void Program::PrepareProcess(const QString &shareFolder)
{
    const QString fonts = shareFolder + QStringLiteral("/fonts.conf");
    if (QFileInfo::exists(fonts) && !qEnvironmentVariableIsSet("FONTCONFIG_FILE"))
        qputenv("FONTCONFIG_FILE", fonts.toLocal8Bit());
    browser::PrepareProcess();
}

void Program::PrepareApplication()
{
    TakePictures();
    QApplication::setApplicationName(QStringLiteral("Wordmere"));
    QApplication::setDesktopFileName(QStringLiteral("io.github.wordmere.Wordmere"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/wordmere.svg")));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    constexpr int interfacePoints = 9;
    QApplication::setFont(controls::MakeFont(DefaultFontName(), interfacePoints, false, false, false, false));
    QLocale::setDefault(QLocale(QLocale::Japanese, QLocale::Japan));
    auto *words = new QTranslator(qApp);
    if (words->load(QStringLiteral("qtbase_ja"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(words);

    host::ShowPlainToolTips();
    InstallHelpViewer();
    controls::SetFailureHandler(HandleByDefault);
    host::SetBeforeTurnHook(ADODB::ReleaseReads);
    dialogs::SetBeforeBoxHook(ADODB::CommitGroups);
    ADODB::EngineHooks().progress = host::DoEvents;
    // A key or a choice waits until the one before it has been answered.
    ADODB::EngineHooks().opening = host::DoEventsWithoutInput;
    // Behind the work the pointer is what it was: a search may run under the hourglass, and the work of
    // one file may begin in a turn of the event loop that the work of another lets through.
    ADODB::EngineHooks().busy = [before = std::vector<int>()](bool busy) mutable {
        if (busy) {
            before.push_back(host::MousePointer());
            host::SetMousePointer(host::PointerHourglass);
        } else {
            host::SetMousePointer(before.back());
            before.pop_back();
        }
    };
}

QString Program::ShareFolder(const QString &executable, const QString &fallback)
{
    const QString installed = QFileInfo(executable).absolutePath() + QStringLiteral("/../share/wordmere");
    return QFileInfo(installed).isDir() ? QFileInfo(installed).canonicalFilePath() : fallback;
}
