#pragma once

#include "platform/host/host.h"

#include <QObject>
#include <QString>
#include <memory>

/// One run of the program, from the splash to the end of the main window.
class Program : public QObject
{
    Q_OBJECT
public:
    struct Options {
        /// How long the splash stands, milliseconds.
        int splashMilliseconds = 3000;
        /// Host path of the installed files; where they are is told by ShareFolder.
        QString shareFolder;
        /// Host path of the application folder; empty chooses the user's.
        QString applicationFolder;
        /// Whether a new application folder is filled, and with the sample dictionary too.
        bool fillFolder = true;
        bool withSample = true;
    };

    explicit Program(Options options);
    ~Program() override;

    /// Goes through the splash; returns when the main window stands, or when the run has ended
    /// because another instance has the folder.
    void Start();
    /// Ends the run, whatever is open: every form is unloaded as at the program's end, the main window last.
    void End();
    /// Whether this run gave way to another instance.
    bool GaveWay() const { return m_gaveWay; }

    /// Before the application object is made: fonts and flags of the pane.
    static void PrepareProcess(const QString &shareFolder);
    /// After it was made: style, fonts, words of the toolkit's buttons, handling of failures.
    static void PrepareApplication();
    /// Where the installed files are, for a program at this host path; where it was not installed,
    /// `fallback`.
    static QString ShareFolder(const QString &executable, const QString &fallback);

    // What the splash asks for.
    int SplashMilliseconds() const { return m_options.splashMilliseconds; }
    /// Takes the application folder for this run and makes it ready; false when another instance
    /// has it: then the run gives way.
    bool TakeFolder();
    /// The splash has gone: the main window comes, or the run ends.
    void LeaveSplash();

Q_SIGNALS:
    /// The main window has gone, or the run gave way.
    void Ended();

private:
    Options m_options;
    std::unique_ptr<host::InstanceLock> m_lock;
    bool m_gaveWay = false;
};
