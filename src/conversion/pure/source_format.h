#pragma once

#include <QString>
#include <memory>
#include <optional>

/// What one entry of a source text gives; the stored lengths are not yet applied.
struct SourceEntry {
    QString Word; ///< trimmed
    QString Pronunciation;
    QString Description;
    QString Example;
};

/// The parser of a format whose entries are one line each. It keeps what survives from line to line, so a
/// run has one of its own.
class LineParser
{
public:
    virtual ~LineParser() = default;
    /// The entry of a source line; none for a line that the format rejects. Raises what the format's
    /// counters and cuts raise: 5 for a length below zero or the code of nothing, 6 for a counter that
    /// overflows.
    virtual std::optional<SourceEntry> Parse(const QString &line) = 0;
};

std::unique_ptr<LineParser> MakeEijiroParser();
std::unique_ptr<LineParser> MakeOneLineParser();
std::unique_ptr<LineParser> MakeCsvParser();
std::unique_ptr<LineParser> MakeGlossaryParser();

/// The entry of a headword line and its translation line; a blank headword line stands for `lastWord`,
/// which a line that is not blank replaces.
SourceEntry ParsePdicPair(const QString &headwordLine, const QString &translationLine, QString &lastWord);
