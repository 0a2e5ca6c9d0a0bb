// Lines divided by a separator: none fails, and only those without one are rejected.

#include "platform/text/fold.h"
#include "source_lines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto parser = MakeOneLineParser();
    for (const QString &line : SourceLines(data, size)) {
        const std::optional<SourceEntry> entry = parser->Parse(line);
        const qsizetype separator = text::TextFind(line, u" /// ");
        Require(entry.has_value() == (separator > 0));
        if (!entry)
            continue;
        RequireRow(*entry);
        Require(entry->Word == text::Trim(line.first(separator - 1)));
        Require(!entry->Description.contains(QStringLiteral("\\ ")));
    }
    return 0;
}
