/// make_sample BASE TARGET: fills the dictionary file TARGET with the entries of the dictd dictionary
/// BASE.index, BASE.dict.dz. The target is written whole or not at all.

#include "core/pure/dictionary_file.h"
#include "dictd_entry.h"
#include "dictd_file.h"
#include "platform/data/adodb.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QTextStream>

namespace
{

/// The records of a dictionary, one a headword, in the order of the headwords' first entries.
QList<sample::Record> ReadRecords(const QString &base)
{
    QList<QList<sample::Entry>> groups;
    QHash<QString, qsizetype> groupOf;
    for (const QByteArray &text : sample::ReadDictd(base)) {
        const sample::Entry entry = sample::ParseEntry(QString::fromUtf8(text));
        const auto known = groupOf.constFind(entry.headword);
        if (known == groupOf.cend()) {
            groupOf.insert(entry.headword, groups.size());
            groups.append({entry});
        } else {
            groups[*known].append(entry);
        }
    }
    QList<sample::Record> records;
    for (const QList<sample::Entry> &group : groups)
        if (const std::optional<sample::Record> record = sample::MakeRecord(group))
            records.append(*record);
    return records;
}

void Fill(const QString &path, const QList<sample::Record> &records)
{
    CreateDictionaryFile(path);
    ADODB::Connection connection;
    connection.Open(ViewConnectionString(path));
    ADODB::Recordset rows;
    rows.Open(QStringLiteral("Dictionary"), connection, ADODB::adOpenDynamic, ADODB::adLockOptimistic,
              ADODB::adCmdTable);
    for (const sample::Record &record : records) {
        rows.AddNew();
        rows.Fields().Item(QStringLiteral("Word")).SetValue(record.word);
        rows.Fields().Item(QStringLiteral("Pronunciation")).SetValue(record.pronunciation);
        rows.Fields().Item(QStringLiteral("WordPhrase")).SetValue(record.wordPhrase);
        rows.Fields().Item(QStringLiteral("Description")).SetValue(record.description);
        rows.Fields().Item(QStringLiteral("Example")).SetValue(QString());
        rows.Update();
    }
    rows.Close();
    connection.Close();
}

void MakeSample(const QString &base, const QString &target)
{
    const QString path = files::DrivePath(QFileInfo(target).absoluteFilePath());
    const QString half = path + QStringLiteral(".part");
    const QList<sample::Record> records = ReadRecords(base);
    files::DeleteIfThere(half);
    Fill(half, records);
    files::ReplaceByFile(path, half);
    QTextStream(stdout) << records.size() << " headwords\n";
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "Usage: make_sample BASE TARGET\n";
        return 2;
    }
    try {
        MakeSample(arguments[1], arguments[2]);
        return 0;
    } catch (const RuntimeError &error) {
        QTextStream(stderr) << error.what() << '\n';
        return 1;
    }
}
