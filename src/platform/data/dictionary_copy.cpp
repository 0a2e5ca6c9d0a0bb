#include "platform/data/dictionary_file.h"
#include "platform/data/file_flush.h"
#include "platform/data/long_work.h"
#include "platform/data/operation.h"
#include "platform/data/page_appender.h"
#include "platform/data/schema.h"
#include "platform/data/structure_check.h"
#include "platform/data/tree_copy.h"
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
bool HasIndex(Session &source)
{
    const FileContent content = Examine(source);
    if (content.table != TableState::Whole)
        RaiseCode(SQLITE_NOTADB);
    return content.hasIndex;
}

quint32 RootOf(const Session &session, const char *name)
{
    return static_cast<quint32>(session.NumberOf(
        std::string("SELECT rootpage FROM main.sqlite_schema WHERE name = '").append(name).append("'")));
}

/// The trees that were copied page by page; one that is not here went through SQLite.
struct CopiedTrees {
    std::optional<TreeDigest> table, index;
};

/// Copies table and index by their pages; nothing where the source's cannot be walked.
CopiedTrees CopyPages(Session &source, Session &session, bool withIndex)
{
    using Tree = TreeWalk::Tree;
    CopiedTrees copied;
    PageAppender pages(session);
    copied.table = CopyTree(source, Tree::Table, pages, RootOf(session, kTableName));
    if (!copied.table)
        return copied;
    if (withIndex) {
        copied.index = CopyTree(source, Tree::Index, pages, RootOf(session, kIndexName));
        if (!copied.index)
            RaiseCode(SQLITE_CORRUPT);
    }
    pages.Finish();
    return copied;
}

CopiedTrees CopyRows(Session &source, Session &session, bool withIndex)
{
    session.Write([&] {
        CreateTable(session, true);
        if (withIndex)
            CreateIndexObject(session);
    });
    const CopiedTrees copied = CopyPages(source, session, withIndex);
    session.Write([&] {
        // A plain copy between like tables moves whole records, and the index's entries with them.
        if (!copied.table)
            session.Run("INSERT INTO main.Dictionary SELECT * FROM source.Dictionary");
        if (!withIndex)
            CreateIndexObject(session);
        session.Run("DELETE FROM main.sqlite_sequence");
        session.Run("INSERT INTO main.sqlite_sequence SELECT * FROM source.sqlite_sequence "
                    "WHERE name = 'Dictionary'");
    });
    return copied;
}

[[noreturn]] void RaiseBadCopy()
{
    throw RuntimeError(RuntimeError::CannotOpenDatabase, RuntimeError::defaultSource(),
                       QStringLiteral("辞書データベースの複写が元のファイルと一致しません。"));
}

template <typename Result> bool IsReady(const std::future<Result> &result)
{
    return result.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
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

/// Whether the trees that were copied page by page hold what was read.
bool HoldsCopied(Session &session, const CopiedTrees &copied)
{
    using Tree = TreeWalk::Tree;
    return (!copied.table || DigestTree(session, Tree::Table) == copied.table) &&
           (!copied.index || DigestTree(session, Tree::Index) == copied.index);
}

void Verify(Session &session, const CopiedTrees &copied, std::optional<qint64> sourceRows)
{
    // On threads of their own, while this one counts. The file is nobody else's: that closing it elsewhere
    // gives up the locks of the process does not matter.
    std::future<bool> isSound = CheckStructure(session.HostPath());
    FileFlush flush(session.HostPath());
    const qint64 expected =
        sourceRows ? *sourceRows : session.NumberOf("SELECT count(*) FROM source.Dictionary NOT INDEXED");
    if (session.NumberOf("SELECT count(*) FROM main.Dictionary NOT INDEXED") != expected ||
        CountInOrder(session) != expected || !HoldsCopied(session, copied))
        RaiseBadCopy();
    AwaitLongWork([&] { return IsReady(isSound) && flush.IsDone(); });
    flush.Finish();
    if (!isSound.get())
        RaiseBadCopy();
}

void CopyInto(Session &session, Session &source, bool withIndex)
{
    SetPageSize(session);
    // Until the marks are written the file is nothing that anyone opens, so it needs no journal
    // on the disk, and no flush but that of the verification and the last one, which has little left.
    session.Run("PRAGMA journal_mode = MEMORY");
    session.Run("PRAGMA synchronous = OFF");
    Attach(session, source.HostPath());
    // Counted while it is copied.
    std::future<std::optional<qint64>> sourceRows = CountRows(source.HostPath());
    DoLongWork(session, [&] {
        const CopiedTrees copied = CopyRows(source, session, withIndex);
        AwaitLongWork([&] { return IsReady(sourceRows); });
        Verify(session, copied, sourceRows.get());
    });
    session.ReleaseRead();
    session.Run("DETACH source");
    session.Run("PRAGMA synchronous = FULL");
    session.Write([&] { WriteMarks(session); });
}

} // namespace

CopyStates CopyDictionary(const QString &sourcePath, const QString &targetPath,
                          const QString &targetDrivePath)
{
    RequireNothingAt(targetPath);
    // Opened as any other dictionary, so that a write that a crash cut short is taken back first.
    Session source(sourcePath, files::DrivePath(sourcePath), Session::Access::Existing);
    // Nobody gets to write to it before the copy is whole.
    source.BeginRead();
    source.SetInLongWork(true);
    const bool withIndex = HasIndex(source);
    const FileState sourceState = StateOf(sourcePath);
    Session session(targetPath, targetDrivePath, Session::Access::Create);
    const FileState created = StateOf(targetPath);
    try {
        CopyInto(session, source, withIndex);
        session.Close();
    } catch (...) {
        session.Close();
        if (StateOf(targetPath).IsSameFile(created))
            QFile::remove(targetPath);
        throw;
    }
    // The rows were written to the file that was made; what bears its name is to be that one.
    const FileState copyState = StateOf(targetPath);
    if (!copyState.IsSameFile(created))
        RaiseBadCopy();
    return {sourceState, copyState};
}

void EndLog(const QString &hostPath)
{
    Session session(hostPath, files::DrivePath(hostPath), Session::Access::Existing);
    Examine(session);
    const auto isLogged = [&session](std::string_view pragma) {
        Prepared mode = session.Prepare(pragma);
        return mode.Step() && mode.Text(0) == "wal";
    };
    if (isLogged("PRAGMA journal_mode") && isLogged("PRAGMA journal_mode = DELETE"))
        RaiseCode(SQLITE_BUSY);
}

} // namespace data
