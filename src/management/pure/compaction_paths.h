#pragma once

#include <QString>
#include <QStringList>
#include <optional>

struct Lexicon;

/// How many entries of the catalogue the compaction offers at most.
inline constexpr qsizetype kMostCompactionEntries = 255;

/// The paths that are offered: those of all slots but the spare one, free slots included, so that a row is
/// the number of its slot.
QStringList CompactionPaths(const QList<Lexicon> &lexicons);

/// The backup that is proposed for a dictionary: beside it, with "BKUP_" before its name.
QString DefaultBackupPath(const QString &dictionaryPath);

/// A message: text, title and style of its box, code of its beep.
struct CompactionMessage {
    QString text;
    QString title;
    int style = 0;
    int beep = 0;
};

/// What is wrong with the form of a backup path that is not empty: no period, no backslash, no drive or no
/// name; none when nothing is.
std::optional<CompactionMessage> FindBackupPathFault(const QString &backupPath);

CompactionMessage NoDictionaryChosen();
CompactionMessage DictionaryMissing(const QString &dictionaryPath);
CompactionMessage NoBackupPath();
/// Asks whether the extension that is missing is to be put behind the path.
CompactionMessage ExtensionMissing();
/// Asks whether an extension, in capitals, is to give way to the usual one.
CompactionMessage OtherExtension(const QString &extension);
CompactionMessage BackupExists(const QString &backupPath);
CompactionMessage BadDrive();
CompactionMessage SameFiles();
/// Asks whether the work may go on without a backup.
CompactionMessage WithoutBackup();
CompactionMessage TooLittleSpace(qint64 needed, qint64 available);
CompactionMessage CompactionDone(qint64 oldLength, qint64 newLength);
/// The window frame was pressed while the work goes on; no beep.
CompactionMessage NotWhileWorking();

/// The path with the usual extension behind it: a period too unless it ends with one.
QString WithExtensionAdded(const QString &path);
/// The path with the usual extension in the place of its own.
QString WithExtensionReplaced(const QString &path);
