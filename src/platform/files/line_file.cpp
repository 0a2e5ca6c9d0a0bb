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

QString DecodeUnicode(QByteArrayView bytes, QStringConverter::Encoding encoding)
{
    // The file's byte order mark is gone; the same code at the head of a later line is text.
    QStringDecoder decoder(encoding, QStringConverter::Flag::ConvertInitialBom);
    return decoder(bytes);
}

QString DecodeLine(QByteArrayView bytes, Encoding encoding)
{
    switch (encoding) {
    case Encoding::Utf8: return DecodeUnicode(bytes, QStringConverter::Utf8);
    case Encoding::Utf16LittleEndian: return DecodeUnicode(bytes, QStringConverter::Utf16LE);
    case Encoding::Utf16BigEndian: return DecodeUnicode(bytes, QStringConverter::Utf16BE);
    case Encoding::ShiftJis: break;
    }
    return text::Decode(bytes);
}

QByteArrayView LineEndIn(Encoding encoding)
{
    switch (encoding) {
    case Encoding::Utf16LittleEndian: return {"\r\0\n\0", 4};
    case Encoding::Utf16BigEndian: return {"\0\r\0\n", 4};
    default: return {"\r\n", 2};
    }
}

/// Bytes that the blanks in front of a text take, the text read from `begin` to `end`.
template <typename Iterator> qsizetype BlankBytes(Iterator begin, Iterator end, Encoding encoding)
{
    constexpr QChar kBlank(u' ');
    constexpr QChar kWideBlank(u'\u3000');
    qsizetype bytes = 0;
    for (Iterator at = begin; at != end && (*at == kBlank || *at == kWideBlank); ++at) {
        if (IsUtf16(encoding))
            bytes += 2;
        else if (*at == kBlank)
            bytes += 1;
        else
            bytes += encoding == Encoding::Utf8 ? 3 : 2;
    }
    return bytes;
}

} // namespace

files::LineWriter::LineWriter(const QString &path, Mode mode, Encoding encoding)
    : m_lineEnd(LineEndIn(encoding))
{
    host::Open(m_file, HostPath(path),
               mode == Mode::Append ? QIODevice::WriteOnly | QIODevice::Append
                                    : QIODevice::WriteOnly | QIODevice::Truncate);
}

files::LineWriter::~LineWriter() = default;

void files::LineWriter::WriteLine(QByteArrayView bytes)
{
    faults::Point("write");
    errno = 0;
    if (m_file.write(bytes.data(), bytes.size()) != bytes.size() ||
        m_file.write(m_lineEnd.data(), m_lineEnd.size()) != m_lineEnd.size())
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

void files::LineReader::SkipLineFeed()
{
    m_behindReturn = false;
    const qsizetype unit = UnitSize(m_encoding);
    while (m_position + unit > m_buffer.size())
        if (!Fill())
            return;
    if (UnitAt(m_buffer, m_position, m_encoding) == u'\n')
        m_position += unit;
}

bool files::LineReader::AtEnd()
{
    if (m_behindReturn)
        SkipLineFeed();
    return m_position >= m_buffer.size() && !Fill();
}

QByteArrayView files::LineReader::NextLine()
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
        m_line = rest();
        m_position = m_buffer.size();
        return m_line;
    }
    m_line = rest().first(length);
    m_behindReturn = UnitAt(rest(), length, m_encoding) == u'\r';
    m_position += length + unit;
    return m_line;
}

QString files::LineReader::ReadLine() { return DecodeLine(NextLine(), m_encoding); }

QByteArrayView files::TrimmedRaw(QByteArrayView bytes, QStringView line, Encoding encoding)
{
    const qsizetype front = BlankBytes(line.begin(), line.end(), encoding);
    // A text of blanks alone has no other end, and half a code unit at the end is no blank.
    if (front >= bytes.size() || (IsUtf16(encoding) && bytes.size() % 2 != 0))
        return bytes.sliced(std::min(front, bytes.size()));
    return bytes.sliced(front).chopped(BlankBytes(line.rbegin(), line.rend(), encoding));
}

QStringList files::ReadSettingsLines(const QString &path)
{
    LineReader reader(path);
    QStringList lines;
    while (!reader.AtEnd())
        lines.append(reader.FileEncoding() == Encoding::ShiftJis ? text::DecodeRecord(reader.ReadRawLine())
                                                                 : reader.ReadLine());
    return lines;
}
