// Lines of a glossary: cuts and counters fail as they should, and an entry always names its context.

#include "source_lines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto parser = MakeGlossaryParser();
    ParseAll(*parser, SourceLines(data, size), [](const QString &line, const auto &entry) {
        if (!entry)
            return;
        Require(line.count(u',') >= 4 && line.contains(entry->Word) && line.contains(entry->Description));
        const QStringList labels = entry->Example.split(QStringLiteral("\r\n"));
        Require(labels.size() >= 3 && labels.last().startsWith(u"【Application】"));
        Require(entry->Pronunciation.isEmpty());
    });
    return 0;
}
