#include "aids/pure/wildcard_history.h"

#include "platform/text/one_line.h"
#include "platform/text/shift_jis.h"
#include "platform/text/trim.h"

QByteArray EncodeWildcardHistory(const WildcardFields &fields)
{
    QByteArray content;
    for (const QString &field : {fields.start, fields.middle, fields.end, fields.firstGap, fields.secondGap})
        // A line end that was pasted into a field must not move the fields behind it.
        content += text::EncodeRecord(text::Trim(text::OneLine(field))) + "\r\n";
    return content;
}

WildcardFields DecodeWildcardHistory(const QStringList &lines)
{
    const auto field = [&](qsizetype line) { return text::Trim(lines.value(line)); };
    return {field(0), field(1), field(2), field(3), field(4)};
}
