#include "core/pure/settings_formats.h"

#include "core/pure/record_bytes.h"
#include "platform/failure/runtime_error.h"
#include "platform/text/shift_jis.h"
#include "platform/text/trim.h"

namespace
{

constexpr int kFontNameLength = 30;
constexpr qsizetype kListLineLength = 20;
constexpr int kAgentFolderLength = 255;
constexpr int kAgentFileLength = 50;
constexpr qint32 kBlue = 0xFF0000;
constexpr qint32 kRed = 0x0000FF;
constexpr qint16 kYes = -1;

int NumberOf(const QString &field)
{
    bool isNumber = false;
    const int value = text::Trim(field).toInt(&isNumber);
    if (!isNumber)
        throw RuntimeError(RuntimeError::TypeMismatch);
    return value;
}

} // namespace

QString FontFileName() { return QStringLiteral("FontDefi.dat"); }

QString DefaultFontName() { return QStringLiteral("ＭＳ Ｐゴシック"); }

FontRow DefaultFontRow(int slot)
{
    constexpr int headword = 3, example = 6, wordMatch = 7, textMatch = 8;
    FontRow row;
    row.name = DefaultFontName();
    row.size = 9;
    if (slot <= headword)
        row.color = kBlue;
    else if (slot >= wordMatch)
        row.color = kRed;
    if (slot == headword || slot >= wordMatch)
        row.bold = kYes;
    if (slot == example)
        row.italic = kYes;
    if (slot == textMatch)
        row.underline = kYes;
    return row;
}

QByteArray EncodeFontRow(const FontRow &row)
{
    QByteArray record = text::FixedField(row.name, kFontNameLength);
    AppendLittleEndian(record, row.size);
    AppendLittleEndian(record, row.color);
    for (const qint16 flag : {row.bold, row.italic, row.strikeout, row.underline})
        AppendLittleEndian(record, flag);
    return record;
}

FontRow DecodeFontRow(const QByteArray &record)
{
    FontRow row;
    row.name = text::FieldText(text::DecodeRecord(record.first(kFontNameLength)));
    row.size = LittleEndianAt<qint16>(record, 30);
    row.color = LittleEndianAt<qint32>(record, 32);
    row.bold = LittleEndianAt<qint16>(record, 36);
    row.italic = LittleEndianAt<qint16>(record, 38);
    row.strikeout = LittleEndianAt<qint16>(record, 40);
    row.underline = LittleEndianAt<qint16>(record, 42);
    return row;
}

QString DefaultListLine() { return QStringLiteral("05015050005001503000"); }

ListSettings ParseListLine(const QString &line)
{
    const QString &fields = line.size() == kListLineLength ? line : DefaultListLine();
    ListSettings settings;
    settings.IncListCount = CheckedTo<qint16>(NumberOf(fields.sliced(0, 3)));
    settings.IncEntriesPerPage = CheckedTo<qint16>(NumberOf(fields.sliced(3, 2)));
    settings.ListPageSize = CheckedTo<qint16>(NumberOf(fields.sliced(5, 3)));
    settings.MaxListCount = CheckedTo<qint16>(NumberOf(fields.sliced(8, 5)));
    settings.EntriesPerPage = CheckedTo<qint16>(NumberOf(fields.sliced(13, 2)));
    settings.WordBookMax = CheckedTo<qint16>(NumberOf(fields.sliced(15, 4)));
    settings.SearchTarget = CheckedTo<quint8>(NumberOf(fields.sliced(19, 1)));
    return settings;
}

QString ListLine(const ListSettings &settings)
{
    return QStringLiteral("%1%2%3%4%5%6%7")
        .arg(settings.IncListCount, 3, 10, QLatin1Char('0'))
        .arg(settings.IncEntriesPerPage, 2, 10, QLatin1Char('0'))
        .arg(settings.ListPageSize, 3, 10, QLatin1Char('0'))
        .arg(settings.MaxListCount, 5, 10, QLatin1Char('0'))
        .arg(settings.EntriesPerPage, 2, 10, QLatin1Char('0'))
        .arg(settings.WordBookMax, 4, 10, QLatin1Char('0'))
        .arg(settings.SearchTarget);
}

AgentSettings DefaultAgentSettings() { return {0, QStringLiteral("default"), QString()}; }

QByteArray EncodeAgentSettings(const AgentSettings &settings)
{
    return QByteArray(1, static_cast<char>(settings.enabled)) +
           text::FixedField(settings.folder, kAgentFolderLength) +
           text::FixedField(settings.file, kAgentFileLength);
}

AgentSettings DecodeAgentSettings(const QByteArray &record)
{
    AgentSettings settings;
    settings.enabled = static_cast<quint8>(record[0]);
    settings.folder = text::FieldText(text::DecodeRecord(record.sliced(1, kAgentFolderLength)));
    settings.file =
        text::FieldText(text::DecodeRecord(record.sliced(1 + kAgentFolderLength, kAgentFileLength)));
    return settings;
}

QString CharacterIdFromFile(const QString &fileName)
{
    const qsizetype point = fileName.lastIndexOf(u'.');
    return point < 0 ? fileName : fileName.first(point);
}
