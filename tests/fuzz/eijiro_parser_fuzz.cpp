// Lines that begin with the head mark: none fails, and what is stored stood in the line.

#include "source_lines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto parser = MakeEijiroParser();
    for (const QString &line : SourceLines(data, size)) {
        const std::optional<SourceEntry> entry = parser->Parse(line);
        if (!entry)
            continue;
        RequireRow(*entry);
        const QString replaced =
            QString(line).replace(QStringLiteral("【発音！】"), QStringLiteral("【発音】"));
        Require(line.startsWith(u'■') && line.contains(entry->Word));
        for (const QString &piece : {entry->Pronunciation, entry->Description, entry->Example})
            Require(replaced.contains(piece));
    }
    return 0;
}
