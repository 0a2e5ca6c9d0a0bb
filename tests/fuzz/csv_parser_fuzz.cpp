// Lines of quoted fields: cuts and counters fail as they should, positions that are kept do no more harm.

#include "source_lines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto parser = MakeCsvParser();
    ParseAll(*parser, SourceLines(data, size), [](const QString &line, const auto &entry) {
        if (!entry)
            return;
        const QString trimmed = text::Trim(line);
        Require(trimmed.startsWith(u'"') && trimmed.endsWith(u'"') && trimmed.count(u'"') >= 8);
        for (const QString &piece : {entry->Word, entry->Pronunciation, entry->Description, entry->Example})
            Require(trimmed.contains(piece));
    });
    return 0;
}
