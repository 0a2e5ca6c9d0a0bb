#pragma once

#include "conversion/pure/source_format.h"
#include "platform/failure/runtime_error.h"

#include <gtest/gtest.h>
#include <string>

/// What the tests of the parsers share.
namespace parsing
{

/// A line that makes an entry.
struct GoodLine {
    const char16_t *line;
    const char16_t *word;
    const char16_t *pronunciation;
    const char16_t *description;
    const char16_t *example;
};

inline std::string Utf8(const QString &text) { return text.toStdString(); }
inline QString Text(const char16_t *text) { return QString::fromUtf16(text); }

inline void ExpectEntry(const std::optional<SourceEntry> &entry, const GoodLine &line)
{
    const std::string what = Utf8(Text(line.line));
    ASSERT_TRUE(entry.has_value()) << what;
    EXPECT_EQ(Utf8(entry->Word), Utf8(Text(line.word))) << what;
    EXPECT_EQ(Utf8(entry->Pronunciation), Utf8(Text(line.pronunciation))) << what;
    EXPECT_EQ(Utf8(entry->Description), Utf8(Text(line.description))) << what;
    EXPECT_EQ(Utf8(entry->Example), Utf8(Text(line.example))) << what;
}

/// Expects the failure of a number from a line.
inline void ExpectFailure(LineParser &parser, const QString &line, qint32 number)
{
    try {
        parser.Parse(line);
        ADD_FAILURE() << "no failure was raised by "
                      << Utf8(line.first(std::min<qsizetype>(line.size(), 80)));
    } catch (const RuntimeError &error) {
        EXPECT_EQ(error.number(), number) << Utf8(line.first(std::min<qsizetype>(line.size(), 80)));
    }
}

} // namespace parsing
