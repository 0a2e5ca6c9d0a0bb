#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>
#include <QStringList>

namespace files
{

/// The encodings of source text.
enum class Encoding { ShiftJis, Utf8, Utf16LittleEndian, Utf16BigEndian };

/// A text file that is written in place, line by line, each ended by CR LF, and not flushed to the
/// disk: a working file.
class LineWriter
{
public:
    enum class Mode { Output, Append };

    /// Opens the drive path, emptied in the mode Output; raises 52, 70, 76. The encoding is that of the
    /// line ends alone.
    LineWriter(const QString &path, Mode mode, Encoding encoding = Encoding::ShiftJis);
    ~LineWriter();
    LineWriter(const LineWriter &) = delete;
    LineWriter &operator=(const LineWriter &) = delete;

    /// Writes the bytes and CR LF; raises 61 when the disk is full, 57 when the device fails.
    void WriteLine(QByteArrayView bytes);
    /// Closes; raises as WriteLine, for what was buffered.
    void Close();

private:
    QFile m_file;
    QByteArrayView m_lineEnd;
};

/// Reads a text file line by line in bounded memory. Shift_JIS unless a byte order mark says
/// otherwise. Lines end with CR LF, LF or CR; NUL ends nothing; a last line needs no end.
class LineReader
{
public:
    /// Opens the drive path; raises 53, 70, 76.
    explicit LineReader(const QString &path);

    Encoding FileEncoding() const { return m_encoding; }
    /// Whether no line is left.
    bool AtEnd();
    /// The next line without its end; raises 62 at the end, 57 when the device fails.
    QString ReadLine();
    /// The same as the bytes stood in the file.
    QByteArray ReadRawLine() { return NextLine().toByteArray(); }
    /// Passes over the next line, as ReadLine.
    void SkipLine() { NextLine(); }
    /// The bytes of the line that was read last; valid until the reader is asked for anything else.
    QByteArrayView RawLine() const { return m_line; }

private:
    QByteArrayView NextLine();
    void SkipLineFeed();
    bool Fill();

    QFile m_file;
    Encoding m_encoding = Encoding::ShiftJis;
    QByteArray m_buffer;
    qsizetype m_position = 0;
    QByteArrayView m_line;
    bool m_behindReturn = false; ///< a line feed that comes next belongs to the line before
};

/// The bytes of a line without the blanks at the ends of its text, as text::Trim takes them; bytes that
/// cannot be decoded stay as they are. `line` is the text of `bytes`.
QByteArrayView TrimmedRaw(QByteArrayView bytes, QStringView line, Encoding encoding);

/// All lines of a small text file in the form of the settings: Shift_JIS with `&#xHEX;` references.
QStringList ReadSettingsLines(const QString &path);

} // namespace files
