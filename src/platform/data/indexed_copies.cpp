#include "platform/data/indexed_copies.h"

#include "platform/data/dictionary_file.h"
#include "platform/data/operation.h"
#include "platform/files/drive_path.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryDir>

namespace
{

/// A state of a file: a copy stands for one of them only.
struct FileState {
    qint64 size = 0;
    QDateTime modified;
    QString copy;
};

} // namespace

QString data::IndexedCopyOf(const QString &hostPath)
{
    static const QTemporaryDir folder;
    static QHash<QString, FileState> copies;
    static int made = 0;

    if (!folder.isValid())
        throw RuntimeError(RuntimeError::CannotOpenDatabase);
    const QFileInfo info(hostPath);
    FileState &known = copies[info.canonicalFilePath()];
    if (!known.copy.isEmpty() && known.size == info.size() && known.modified == info.lastModified())
        return known.copy;
    if (!known.copy.isEmpty())
        QFile::remove(known.copy);
    known.copy.clear();

    QString copy = folder.filePath(QStringLiteral("%1.mdb").arg(++made));
    const FileState state{info.size(), info.lastModified(), copy};
    CopyDictionary(hostPath, copy, files::DrivePath(copy));
    copies[info.canonicalFilePath()] = state;
    return copy;
}
