#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace files
{

/// A file of equal records without a header, numbered from 1. Created when it does not exist.
/// Written in place. Closed by the destructor.
class FixedRecordFile
{
public:
    /// Opens the drive path for reading and, where that is allowed, writing; creates it.
    /// Raises 52, 70, 76.
    FixedRecordFile(const QString &path, qsizetype recordLength);

    /// Length divided by the record length, rounded to the nearest whole (half away from zero).
    qint64 Count() const;

    /// The record's bytes, always the record length: what lies behind the file's end reads as NUL.
    /// Raises 5 for a position below 1, 57 when the device fails.
    QByteArray Read(qint64 position);

    /// Writes a record of exactly the record length; raises 5, 61, 70.
    void Write(qint64 position, const QByteArray &record);

    /// Writes what is buffered and closes; raises 61.
    void Close();

private:
    QFile m_file;
    qsizetype m_recordLength;
};

/// The number of records in a file of `length` bytes.
qint64 RecordCount(qint64 length, qsizetype recordLength);

} // namespace files
