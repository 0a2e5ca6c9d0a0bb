#include "platform/data/indexed_copies.h"

#include "platform/data/dictionary_file.h"
#include "platform/data/operation.h"
#include "platform/files/drive_path.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryDir>

namespace
{

/// A copy stands for one state of its file only.
struct IndexedCopy {
    data::FileState original;
    QString copy;
};

} // namespace

QString data::IndexedCopyOf(const QString &hostPath)
{
    static const QTemporaryDir folder;
    static QHash<QString, IndexedCopy> copies;
    static int made = 0;

    if (!folder.isValid())
        throw RuntimeError(RuntimeError::CannotOpenDatabase);
    const QString original = QFileInfo(hostPath).canonicalFilePath();
    IndexedCopy &known = copies[original];
    if (!known.copy.isEmpty() && known.original == StateOf(original))
        return known.copy;
    if (!known.copy.isEmpty())
        QFile::remove(known.copy);
    known.copy.clear();

    QString copy = folder.filePath(QStringLiteral("%1.mdb").arg(++made));
    const FileState state = CopyDictionary(hostPath, copy, files::DrivePath(copy)).source;
    copies[original] = {state, copy};
    return copy;
}
