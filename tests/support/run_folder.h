#pragma once

#include <QHash>
#include <QString>
#include <QTemporaryDir>

/// The fresh folder of one run: the user's home and the desktop's folders, a temporary folder, a
/// folder for the script's own files, and the application folder.
class RunFolder
{
public:
    RunFolder();
    /// Removes everything, what was made read-only included.
    ~RunFolder();
    RunFolder(const RunFolder &) = delete;
    RunFolder &operator=(const RunFolder &) = delete;

    /// Points HOME, the XDG variables, TMPDIR and the language here; before anything reads them.
    void EnterEnvironment() const;

    /// Fills the application folder from the installed files, without the sample.
    void FillApplicationFolder(const QString &shareFolder);
    /// Takes away the installed files that are still as they came.
    void EmptyApplicationFolder();

    QString ApplicationFolder() const { return Inside(QStringLiteral("application")); }
    QString ScriptFolder() const { return Inside(QStringLiteral("files")); }

private:
    struct Stamp {
        qint64 size;
        qint64 changed;
        bool operator==(const Stamp &) const = default;
    };
    QString Inside(const QString &name) const { return m_root.path() + u'/' + name; }
    static QHash<QString, Stamp> StampsIn(const QString &folder);

    QTemporaryDir m_root;
    QHash<QString, Stamp> m_filled;
};
