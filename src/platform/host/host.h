#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <functional>
#include <memory>

/// What the program asks of the machine and of the desktop.
namespace host
{

/// One turn of the event loop: delivers what waits, painting included.
void DoEvents();

/// The same, but the user's input waits: for work within which none can be taken.
void DoEventsWithoutInput();

/// A yield of a row loop: as DoEvents, but the turn may be skipped when less than 5 ms have passed
/// since the last one. Hooks run all the same.
void YieldRow();

/// Called at every yield of both kinds, before the turn. Tests count yields with it. Empty: none.
void SetYieldHook(std::function<void()> hook);
/// Called before every turn of the event loop that this module makes (not at a skipped one), so
/// that the data engine can give up its locks.
void SetBeforeTurnHook(std::function<void()> hook);

/// Has the event loop call `end` when the system asks the process to end (SIGTERM, SIGHUP, SIGINT), the
/// first time; another time the process ends at once. Once in a process.
void OnEndSignal(QObject *context, const std::function<void()> &end);

/// Waits that long with the event loop running, milliseconds.
void Sleep(int milliseconds);

/// Sounds of MessageBeep by their codes.
enum Beep : int {
    BeepNone = 0,
    BeepCritical = 16,
    BeepQuestion = 32,
    BeepExclamation = 48,
    BeepInformation = 64
};
/// Plays the desktop's sound of that code, silently nothing where there is none. Returns at once.
void MessageBeep(int code);
/// The code of the last beep since the last call of this function, 0 for none: the beep that
/// belongs to the box about to be shown.
int TakePendingBeep();

/// The mouse pointer of the whole program: 0 default, 11 hourglass.
enum Pointer : int { PointerDefault = 0, PointerHourglass = 11 };
void SetMousePointer(int pointer);
int MousePointer();
/// Shows the default pointer while it lives, over a box. MousePointer keeps telling the program's.
class PointerAside
{
public:
    PointerAside();
    ~PointerAside();
    PointerAside(const PointerAside &) = delete;
    PointerAside &operator=(const PointerAside &) = delete;
};

/// Plain text of the clipboard; empty when it holds none. HasText tells the two apart.
QString ClipboardText();
bool ClipboardHasText();
void SetClipboardText(const QString &text);

/// Width and height of the screen that the program starts on, in logical pixels.
int ScreenWidth();
int ScreenHeight();
/// A width that stands in for the screen's, 0 for the truth.
void SetScreenWidth(int pixels);

/// A lock held by one instance for one application folder; gone with the process, however it ends.
class InstanceLock
{
public:
    /// Takes the lock of the folder (host path) if it is free.
    explicit InstanceLock(const QString &folder);
    ~InstanceLock();
    InstanceLock(const InstanceLock &) = delete;
    InstanceLock &operator=(const InstanceLock &) = delete;
    /// Whether another instance has it.
    bool HeldElsewhere() const;

private:
    int m_file = -1;
    bool m_heldElsewhere = false;
};

/// Whether the desktop's own dialogs, those for printers, can be answered by nobody, for the windows
/// are on no screen.
bool NobodyIsThere();

/// Facts of the machine for the version dialog.
struct SystemFacts {
    QString version;   ///< kernel or system version "major.minor"
    QString build;     ///< build or release text
    QString platform;  ///< platform id
    int processor = 0; ///< processor type (8664 for x86-64)
    qint64 memory = 0; ///< physical memory in bytes
    int load = 0;      ///< memory in use, percent
};
SystemFacts Facts();
/// Facts that stand in for the machine's; nullptr for the truth.
void SetFacts(const SystemFacts *facts);

/// The help viewer: WinHelp's commands. HelpContext shows a topic.
enum HelpCommand : int { HelpContext = 1, HelpQuit = 2, HelpFinder = 11 };
using HelpViewer = std::function<void(const QString &helpFile, int command, const QString &topic)>;
/// Set by the part of the program that shows help; called by WinHelp. Empty: nothing happens.
void SetHelpViewer(HelpViewer viewer);
/// The help file is a drive path. The topic goes with HelpContext alone.
void WinHelp(const QString &helpFile, int command, const QString &topic = {});

} // namespace host
