#include "platform/data/dictionary_file.h"
#include "platform/data/file_flush.h"
#include "platform/data/long_work.h"
#include "platform/data/operation.h"
#include "platform/data/schema.h"
#include "platform/data/structure_check.h"
#include "platform/files/drive_path.h"
#include "platform/text/fold.h"

#include <QFile>
#include <QUrl>
#include <chrono>
#include <limits>
#include <optional>
#include <sqlite3.h>
#include <string>

namespace data
{

namespace
{

/// The address under which SQLite attaches a file read-only.
std::string ReadOnlyAddress(const QString &hostPath)
{
    const QByteArray path = QUrl::toPercentEncoding(hostPath, "/:");
    const QByteArray root = path.startsWith('/') ? QByteArray("file:") : QByteArray("file:///");
    return (root + path + "?mode=ro").toStdString();
}

void Attach(Session &session, const QString &sourcePath)
{
    Prepared attach = session.Prepare("ATTACH ?1 AS source");
    const std::string address = ReadOnlyAddress(sourcePath);
    attach.BindText(1, address);
    attach.Step();
}

/// Whether the source's index can be taken over as it stands.
bool SourceHasIndex(const QString &sourcePath)
{
    // Opened as any other dictionary, so that a write that a crash cut short is taken back first.
    Session source(sourcePath, files::DrivePath(sourcePath), Session::Access::Existing);
    source.BeginRead();
    const FileContent content = Examine(source);
    if (content.table != TableState::Whole)
        RaiseCode(SQLITE_NOTADB);
    return content.hasIndex;
}

void CopyRows(Session &session, bool withIndex)
{
    // A plain copy between like tables moves whole records, and the index's entries with them.
    CreateTable(session, true);
    if (withIndex)
        CreateIndexObject(session);
    session.Run("INSERT INTO main.Dictionary SELECT * FROM source.Dictionary");
    if (!withIndex)
        CreateIndexObject(session);
    session.Run("DELETE FROM main.sqlite_sequence");
    session.Run("INSERT INTO main.sqlite_sequence SELECT * FROM source.sqlite_sequence "
                "WHERE name = 'Dictionary'");
}

[[noreturn]] void RaiseBadCopy()
{
    throw RuntimeError(RuntimeError::CannotOpenDatabase, RuntimeError::defaultSource(),
                       QStringLiteral("辞書データベースの複写が元のファイルと一致しません。"));
}

/// Walks the whole index; raises unless each key lies behind the one before. The number of rows.
qint64 CountInOrder(Session &session)
{
    Prepared query = session.Prepare("SELECT Word, AutoID FROM main.Dictionary INDEXED BY WordID "
                                     "ORDER BY Word, AutoID");
    std::string last;
    qint64 lastID = std::numeric_limits<qint64>::min();
    qint64 count = 0;
    while (query.Step()) {
        const std::string_view word = query.Text(0);
        const qint64 autoID = query.Number(1);
        const int order = text::CompareUtf8(last, word);
        if (order > 0 || (order == 0 && lastID >= autoID))
            RaiseBadCopy();
        last.assign(word);
        lastID = autoID;
        ++count;
    }
    return count;
}

void Verify(Session &session, std::optional<qint64> sourceRows)
{
    // On threads of their own, while this one counts. The file is nobody else's: that closing it elsewhere
    // gives up the locks of the process does not matter.
    std::future<bool> isSound = CheckStructure(session.HostPath());
    FileFlush flush(session.HostPath());
    const qint64 expected =
        sourceRows ? *sourceRows : session.NumberOf("SELECT count(*) FROM source.Dictionary NOT INDEXED");
    if (session.NumberOf("SELECT count(*) FROM main.Dictionary NOT INDEXED") != expected ||
        CountInOrder(session) != expected)
        RaiseBadCopy();
    AwaitLongWork([&] {
        return isSound.wait_for(std::chrono::seconds(0)) == std::future_status::ready && flush.IsDone();
    });
    flush.Finish();
    if (!isSound.get())
        RaiseBadCopy();
}

void CopyInto(Session &session, const QString &sourcePath, bool withIndex)
{
    SetPageSize(session);
    // Until the marks are written the file is nothing that anyone opens, so it needs no journal
    // on the disk, and no flush but that of the verification and the last one, which has little left.
    session.Run("PRAGMA journal_mode = MEMORY");
    session.Run("PRAGMA synchronous = OFF");
    Attach(session, sourcePath);
    // Counted while it is copied.
    std::future<std::optional<qint64>> sourceRows = CountRows(sourcePath);
    session.Write([&] { DoLongWork(session, [&] { CopyRows(session, withIndex); }); });
    DoLongWork(session, [&] { Verify(session, sourceRows.get()); });
    session.Run("DETACH source");
    session.Run("PRAGMA synchronous = FULL");
    session.Write([&] { WriteMarks(session); });
}

} // namespace

FileState CopyDictionary(const QString &sourcePath, const QString &targetPath, const QString &targetDrivePath)
{
    RequireNothingAt(targetPath);
    const bool withIndex = SourceHasIndex(sourcePath);
    const FileState sourceState = StateOf(sourcePath);
    Session session(targetPath, targetDrivePath, Session::Access::Create);
    try {
        CopyInto(session, sourcePath, withIndex);
        session.Close();
    } catch (...) {
        session.Close();
        QFile::remove(targetPath);
        throw;
    }
    return sourceState;
}

} // namespace data
