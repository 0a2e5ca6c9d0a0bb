#include "platform/files/fixed_record_file.h"

#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"
#include "platform/files/host_files.h"

#include <cerrno>
#include <limits>

namespace
{

qint64 OffsetOf(qint64 position, qsizetype recordLength)
{
    if (position < 1 || position > std::numeric_limits<qint64>::max() / recordLength)
        throw RuntimeError(RuntimeError::InvalidCall);
    return (position - 1) * recordLength;
}

/// Seeks only where that moves: a seek gives up the file's buffer, and records come in a row.
void MoveTo(QFile &file, qint64 offset)
{
    file.unsetError();
    errno = 0;
    if (file.pos() != offset && !file.seek(offset))
        files::host::Raise(file, errno, file.fileName());
}

} // namespace

qint64 files::RecordCount(qint64 length, qsizetype recordLength)
{
    const qint64 whole = length / recordLength;
    const qint64 tail = length % recordLength;
    return tail >= recordLength - tail ? whole + 1 : whole;
}

files::FixedRecordFile::FixedRecordFile(const QString &path, qsizetype recordLength)
    : m_recordLength(recordLength)
{
    if (recordLength < 1)
        throw RuntimeError(RuntimeError::InvalidCall);
    const QString name = HostPath(path);
    if (host::IsFile(name) && !IsWritable(path))
        host::Open(m_file, name, QIODevice::ReadOnly);
    else
        host::Open(m_file, name, QIODevice::ReadWrite);
}

qint64 files::FixedRecordFile::Count() const { return RecordCount(m_file.size(), m_recordLength); }

QByteArray files::FixedRecordFile::Read(qint64 position)
{
    faults::Point("read");
    const qint64 offset = OffsetOf(position, m_recordLength);
    MoveTo(m_file, offset);
    errno = 0;
    QByteArray record = m_file.read(m_recordLength);
    if (m_file.error() != QFileDevice::NoError)
        host::Raise(m_file, errno, m_file.fileName());
    return record.leftJustified(m_recordLength, '\0');
}

void files::FixedRecordFile::Write(qint64 position, const QByteArray &record)
{
    faults::Point("write");
    const qint64 offset = OffsetOf(position, m_recordLength);
    if (record.size() != m_recordLength)
        throw RuntimeError(RuntimeError::InvalidCall);
    if (!m_file.isWritable())
        throw RuntimeError(RuntimeError::PermissionDenied);
    MoveTo(m_file, offset);
    errno = 0;
    if (m_file.write(record) != record.size())
        host::Raise(m_file, errno, m_file.fileName());
}

void files::FixedRecordFile::Close()
{
    errno = 0;
    if (m_file.isWritable() && !m_file.flush())
        host::Raise(m_file, errno, m_file.fileName());
    m_file.close();
}
