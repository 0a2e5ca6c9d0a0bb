// Pairs of lines: every pair is an entry, and a blank headword line stands for the last headword.

#include "source_lines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QStringList lines = SourceLines(data, size);
    QString lastWord;
    for (qsizetype i = 0; i + 1 < lines.size(); i += 2) {
        const QString before = lastWord;
        const QString headword = text::Trim(lines[i]);
        const SourceEntry entry = ParsePdicPair(lines[i], lines[i + 1], lastWord);
        RequireRow(entry);
        Require(entry.Word == lastWord && lastWord == (headword.isEmpty() ? before : headword));
        Require(entry.Description == text::Trim(lines[i + 1]));
    }
    return 0;
}
