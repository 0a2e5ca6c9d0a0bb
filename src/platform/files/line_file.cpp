#include "platform/files/line_file.h"

#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/host_files.h"
#include "platform/text/shift_jis.h"

#include <QStringDecoder>
#include <algorithm>
#include <cerrno>

namespace
{

using files::Encoding;

struct ByteOrderMark {
    QByteArrayView bytes;
    Encoding encoding;
};

constexpr ByteOrderMark kByteOrderMarks[] = {
    {"\xEF\xBB\xBF", Encoding::Utf8},
    {"\xFF\xFE", Encoding::Utf16LittleEndian},
    {"\xFE\xFF", Encoding::Utf16BigEndian},
};

bool IsUtf16(Encoding encoding)
{
    return encoding == Encoding::Utf16LittleEndian || encoding == Encoding::Utf16BigEndian;
}

qsizetype UnitSize(Encoding encoding) { return IsUtf16(encoding) ? 2 : 1; }

/// The code unit at a position that holds a whole one.
char16_t UnitAt(QByteArrayView bytes, qsizetype position, Encoding encoding)
{
    const auto byteAt = [&](qsizetype at) {
        return static_cast<char16_t>(static_cast<unsigned char>(bytes[at]));
    };
    switch (encoding) {
    case Encoding::Utf16LittleEndian:
        return static_cast<char16_t>(byteAt(position + 1) << 8 | byteAt(position));
    case Encoding::Utf16BigEndian: return static_cast<char16_t>(byteAt(position) << 8 | byteAt(position + 1));
    default: return byteAt(position);
    }
}

/// The first line end at or behind `from`; the length of the bytes (less half a code unit) for none.
qsizetype FindLineEnd(QByteArrayView bytes, qsizetype from, Encoding encoding)
{
    if (!IsUtf16(encoding)) {
        const auto *begin = bytes.begin() + from;
        return std::find_if(begin, bytes.end(), [](char c) { return c == '\n' || c == '\r'; }) -
               bytes.begin();
    }
    const qsizetype end = bytes.size() - bytes.size() % 2;
    while (from < end) {
        const char16_t unit = UnitAt(bytes, from, encoding);
        if (unit == u'\n' || unit == u'\r')
            return from;
        from += 2;
    }
    return end;
}

QString DecodeUnicode(const QByteArray &bytes, QStringConverter::Encoding encoding)
{
    // The file's byte order mark is gone; the same code at the head of a later line is text.
    QStringDecoder decoder(encoding, QStringConverter::Flag::ConvertInitialBom);
    return decoder(bytes);
}

QString DecodeLine(const QByteArray &bytes, Encoding encoding)
{
    switch (encoding) {
    case Encoding::Utf8: return DecodeUnicode(bytes, QStringConverter::Utf8);
    case Encoding::Utf16LittleEndian: return DecodeUnicode(bytes, QStringConverter::Utf16LE);
    case Encoding::Utf16BigEndian: return DecodeUnicode(bytes, QStringConverter::Utf16BE);
    case Encoding::ShiftJis: break;
    }
    return text::Decode(bytes);
}

} // namespace

files::LineWriter::LineWriter(const QString &path, Mode mode)
{
    host::Open(m_file, HostPath(path),
               mode == Mode::Append ? QIODevice::WriteOnly | QIODevice::Append
                                    : QIODevice::WriteOnly | QIODevice::Truncate);
}

files::LineWriter::~LineWriter() = default;

void files::LineWriter::WriteLine(const QByteArray &bytes)
{
    faults::Point("write");
    errno = 0;
    if (m_file.write(bytes) != bytes.size() || m_file.write("\r\n", 2) != 2)
        host::Raise(m_file, errno, m_file.fileName());
}

void files::LineWriter::Close()
{
    errno = 0;
    if (m_file.isOpen() && !m_file.flush())
        host::Raise(m_file, errno, m_file.fileName());
    m_file.close();
}

files::LineReader::LineReader(const QString &path)
{
    host::Open(m_file, HostPath(path), QIODevice::ReadOnly | QIODevice::Unbuffered);
    Fill();
    for (const ByteOrderMark &mark : kByteOrderMarks) {
        if (!m_buffer.startsWith(mark.bytes))
            continue;
        m_encoding = mark.encoding;
        m_position = mark.bytes.size();
        break;
    }
}

bool files::LineReader::Fill()
{
    constexpr qint64 kChunk = qint64{1} << 16;
    errno = 0;
    const QByteArray bytes = m_file.read(kChunk);
    if (m_file.error() != QFileDevice::NoError)
        host::Raise(m_file, errno, m_file.fileName());
    if (bytes.isEmpty())
        return false;
    m_buffer.remove(0, m_position);
    m_position = 0;
    m_buffer.append(bytes);
    return true;
}

bool files::LineReader::AtEnd() { return m_position >= m_buffer.size() && !Fill(); }

QByteArray files::LineReader::ReadRawLine()
{
    faults::Point("read");
    if (AtEnd())
        throw RuntimeError(RuntimeError::InputPastEnd);
    const qsizetype unit = UnitSize(m_encoding);
    // Positions count from the line's beginning, which Fill moves to the front of the buffer.
    qsizetype length = 0;
    const auto rest = [this] { return QByteArrayView(m_buffer).sliced(m_position); };
    while ((length = FindLineEnd(rest(), length, m_encoding)) + unit > rest().size())
        if (!Fill())
            break;
    if (length + unit > rest().size()) {
        QByteArray line = rest().toByteArray();
        m_position = m_buffer.size();
        return line;
    }
    QByteArray line = rest().first(length).toByteArray();
    const bool isReturn = UnitAt(rest(), length, m_encoding) == u'\r';
    m_position += length + unit;
    if (isReturn && (m_position + unit <= m_buffer.size() || Fill()) &&
        m_position + unit <= m_buffer.size() && UnitAt(rest(), 0, m_encoding) == u'\n')
        m_position += unit;
    return line;
}

QString files::LineReader::ReadLine() { return DecodeLine(ReadRawLine(), m_encoding); }

QStringList files::ReadSettingsLines(const QString &path)
{
    LineReader reader(path);
    QStringList lines;
    while (!reader.AtEnd())
        lines.append(reader.FileEncoding() == Encoding::ShiftJis ? text::DecodeRecord(reader.ReadRawLine())
                                                                 : reader.ReadLine());
    return lines;
}
