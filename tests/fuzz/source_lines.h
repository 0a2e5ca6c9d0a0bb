#pragma once

#include "conversion/pure/stored_row.h"
#include "core/pure/record_rules.h"
#include "platform/failure/runtime_error.h"
#include "platform/text/shift_jis.h"
#include "platform/text/trim.h"
#include "require.h"

#include <QStringList>

/// The lines of a source file of those bytes.
inline QStringList SourceLines(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    return text::Decode(bytes).split(u'\n');
}

/// Whatever an entry holds, its row fits the columns.
inline void RequireRow(const SourceEntry &entry)
{
    Require(entry.Word == text::Trim(entry.Word));
    const auto requireCut = [](const QString &text, const QString &column, qsizetype length) {
        Require(column.size() <= length && column == text.first(column.size()));
    };
    const StoredRow row = RowOf(entry);
    requireCut(entry.Word, row.Word, kWordLength);
    requireCut(text::Trim(entry.Pronunciation), row.Pronunciation, kPronunciationLength);
    requireCut(entry.Description, row.Description, kDescriptionLength);
    requireCut(entry.Example, row.Example, kExampleLength);
    Require(row.WordPhrase == WordPhraseRule(entry.Word));
}

/// Gives all lines to a parser, and each entry with its line to `test`; a failure other than the two
/// that cuts and counters raise ends the run.
template <typename Test> void ParseAll(LineParser &parser, const QStringList &lines, Test test)
{
    for (const QString &line : lines) {
        try {
            const std::optional<SourceEntry> entry = parser.Parse(line);
            if (entry)
                RequireRow(*entry);
            test(line, entry);
        } catch (const RuntimeError &error) {
            Require(error.number() == RuntimeError::InvalidCall || error.number() == RuntimeError::Overflow);
        }
    }
}
