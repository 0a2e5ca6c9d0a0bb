#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/fixed_record_file.h"
#include "platform/files/line_file.h"
#include "require.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>

namespace
{

void ReadRecords(const QString &path, qsizetype length)
{
    constexpr qsizetype kRecordLengths[] = {1, 44, 255, 306, 309, 383, 512, 520};
    for (const qsizetype recordLength : kRecordLengths) {
        files::FixedRecordFile file(path, recordLength);
        const qint64 count = file.Count();
        Require(count == files::RecordCount(length, recordLength));
        for (qint64 position = 1; position <= count; ++position)
            Require(file.Read(position).size() == recordLength);
        file.Close();
    }
}

void ReadLines(const QString &path, qsizetype length)
{
    files::LineReader raw(path);
    files::LineReader decoded(path);
    qsizetype bytes = 0;
    while (!raw.AtEnd()) {
        Require(!decoded.AtEnd());
        bytes += raw.ReadRawLine().size();
        decoded.ReadLine();
    }
    Require(decoded.AtEnd() && bytes <= length);
    files::ReadSettingsLines(path);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/wordmere-fuzz-XXXXXX"));
    const QString name = folder.filePath(QStringLiteral("file"));
    const auto length = static_cast<qsizetype>(size);
    QFile file(name);
    Require(file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
            file.write(reinterpret_cast<const char *>(data), length) == length);
    file.close();
    const QString path = files::DrivePath(name);
    ReadRecords(path, length);
    ReadLines(path, length);
    return 0;
}
