// Any bytes under the name of a dictionary are refused with a failure, or can be read and written, and a
// compact copy of them holds the same rows.

#include "platform/data/adodb.h"
#include "platform/data/jro.h"
#include "platform/data/prepared.h"
#include "platform/data/session.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "require.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace
{

constexpr int kLongestWalk = 2000;

QString ConnectionTo(const QString &hostPath) { return u"Data Source=%1;"_s.arg(files::DrivePath(hostPath)); }

void ReadAll(ADODB::Recordset &rows)
{
    for (int i = 0; i < kLongestWalk && !rows.Eof(); ++i) {
        for (const QString &column :
             {u"Word"_s, u"Pronunciation"_s, u"WordPhrase"_s, u"Description"_s, u"Example"_s, u"AutoID"_s})
            rows.Fields().Item(column).Text();
        rows.MoveNext();
    }
}

void Use(const QString &path)
{
    ADODB::Connection connection;
    connection.Open(ConnectionTo(path));
    ADODB::Recordset rows;
    rows.Open(u"Dictionary"_s, connection, ADODB::adOpenKeyset, ADODB::adLockOptimistic,
              ADODB::adCmdTableDirect);
    rows.SetIndex(u"WordID"_s);
    ReadAll(rows);
    rows.Seek(u"word"_s, 0, ADODB::adSeekBeforeEQ);
    ReadAll(rows);
    ReadAll(
        *connection.Execute(u"SELECT TOP 50 * FROM Dictionary WHERE Word Like '%o%' ORDER BY Word ASC"_s));
    ReadAll(
        *connection.Execute(u"SELECT TOP 50 * FROM Dictionary WHERE Word Like '%' AND Description Like '%a%' "
                            "ORDER BY Word ASC"_s));
    ReadAll(*connection.Execute(u"SELECT TOP 50 * FROM Dictionary WHERE Description Like '%a%'"_s));
    ReadAll(*connection.Execute(u"SELECT TOP 50 * FROM Dictionary WHERE Example Like '%qzqz%'"_s));
    rows.AddNew();
    rows.Fields().Item(u"Word"_s).SetValue(u"new"_s);
    rows.Update();
    Require(rows.Fields().Item(u"Word"_s).Text() == u"new"_s);
    rows.Delete();
    rows.Close();
}

/// By SQLite's own reading.
void RequireSameRows(const QString &path, const QString &copy)
{
    constexpr std::string_view sql =
        "SELECT quote(Word), quote(Pronunciation), quote(WordPhrase), quote(Description), quote(Example), "
        "AutoID FROM Dictionary NOT INDEXED ORDER BY AutoID";
    constexpr int columns = 6;
    const data::Session source(path, files::DrivePath(path), data::Session::Access::ReadOnly);
    const data::Session target(copy, files::DrivePath(copy), data::Session::Access::ReadOnly);
    data::Prepared rows = source.Prepare(sql);
    data::Prepared copies = target.Prepare(sql);
    while (rows.Step()) {
        Require(copies.Step());
        for (int column = 0; column < columns; ++column)
            Require(rows.Text(column) == copies.Text(column));
    }
    Require(!copies.Step());
}

/// Where nothing has to be flushed to a disk, if the host has such a place.
QString Folder()
{
    const QString memory = u"/dev/shm"_s;
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + u"/mdb-fuzz-XXXXXX"_s;
}

/// Only failures of the engine may come of foreign bytes.
template <typename Call> void OnlyFails(Call call)
{
    try {
        call();
    } catch (const RuntimeError &failure) {
        Require(failure.number() != RuntimeError::InvalidStatement);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder(Folder());
    const QString path = folder.filePath(u"a.mdb"_s);
    const QString copy = folder.filePath(u"b.mdb"_s);
    QFile file(path);
    Require(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    Require(file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size)) ==
            static_cast<qint64>(size));
    file.close();
    OnlyFails([&] { Use(path); });
    OnlyFails([&] {
        JRO::JetEngine().CompactDatabase(ConnectionTo(path), ConnectionTo(copy));
        RequireSameRows(path, copy);
    });
    for (const QString &name : QDir(folder.path()).entryList(QDir::Files | QDir::Hidden))
        QFile::remove(folder.filePath(name));
    return 0;
}
