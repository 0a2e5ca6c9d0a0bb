// What a conversion does before it stores a row: reading lines, decoding them, taking them apart. The
// floor is iconv on the same file. WORDMERE_BENCH_ROWS stands for the lines of the file (2,000,000).

#include "dictionary_generator.h"

#include "conversion/pure/stored_row.h"
#include "platform/files/drive_path.h"
#include "platform/files/line_file.h"
#include "platform/text/needle.h"
#include "platform/text/shift_jis.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

constexpr uint kParsedLines = 200'000;

uint LineCount()
{
    bool isSet = false;
    const int count = qEnvironmentVariableIntValue("WORDMERE_BENCH_ROWS", &isSet);
    return isSet && count > 0 ? static_cast<uint>(count) : 2'000'000;
}

using LineOf = QString (*)(const bench::GeneratedRow &row);

QString EijiroLine(const bench::GeneratedRow &row)
{
    QString line = u"■"_s + row.word + u"  {名} : "_s;
    if (!row.pronunciation.isEmpty())
        line += u"【発音】"_s + row.pronunciation + u"、"_s;
    line += row.description;
    if (!row.example.isEmpty())
        line += u" / 【用例】 "_s + row.example;
    return line;
}

QString OneLine(const bench::GeneratedRow &row) { return row.word + u" /// "_s + row.description; }

QString CsvLine(const bench::GeneratedRow &row)
{
    return u"\"%1\",\"%2\",\"%3\",\"%4\""_s.arg(row.word, row.pronunciation, row.description, row.example);
}

QString GlossaryLine(const bench::GeneratedRow &row)
{
    return row.word + u",0,"_s + row.description + u",0,MNU,Windows,Word"_s;
}

QString HeadwordLine(const bench::GeneratedRow &row) { return row.word; }

std::vector<QString> Lines(LineOf lineOf)
{
    const bench::DictionaryGenerator generator(kParsedLines, bench::RowOrder::Sorted);
    std::vector<QString> lines;
    for (uint i = 0; i < kParsedLines; ++i)
        lines.push_back(lineOf(generator.Row(i)));
    return lines;
}

using MakeParser = std::unique_ptr<LineParser> (*)();

/// Lines taken apart and cut to their columns.
void Parse(benchmark::State &state, MakeParser make, LineOf lineOf)
{
    const std::vector<QString> lines = Lines(lineOf);
    for ([[maybe_unused]] const auto &step : state) {
        const auto parser = make();
        for (const QString &line : lines)
            benchmark::DoNotOptimize(RowOf(parser->Parse(line).value()));
    }
    state.SetItemsProcessed(state.iterations() * kParsedLines);
}

void ParsePairs(benchmark::State &state)
{
    const std::vector<QString> words = Lines(&HeadwordLine);
    const std::vector<QString> lines = Lines(&OneLine);
    for ([[maybe_unused]] const auto &step : state) {
        QString lastWord;
        for (size_t i = 0; i < words.size(); ++i)
            benchmark::DoNotOptimize(RowOf(ParsePdicPair(words[i], lines[i], lastWord)));
    }
    state.SetItemsProcessed(state.iterations() * kParsedLines);
}

/// A marker that stands in no line.
constexpr QStringView kAbsent = u" / 【用例";

void FindByNeedle(benchmark::State &state)
{
    const std::vector<QString> lines = Lines(&OneLine);
    const text::Needle needle(kAbsent);
    for ([[maybe_unused]] const auto &step : state)
        for (const QString &line : lines)
            benchmark::DoNotOptimize(needle.Find(line));
    state.SetItemsProcessed(state.iterations() * kParsedLines);
}

void FindByText(benchmark::State &state)
{
    const std::vector<QString> lines = Lines(&OneLine);
    for ([[maybe_unused]] const auto &step : state)
        for (const QString &line : lines)
            benchmark::DoNotOptimize(text::TextFind(line, kAbsent));
    state.SetItemsProcessed(state.iterations() * kParsedLines);
}

/// The host path of a source file of LineCount lines.
const QString &SourceFile()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        QString made = folder.filePath(u"source.txt"_s);
        QFile file(made);
        if (!file.open(QIODevice::WriteOnly))
            throw std::runtime_error("no source file");
        const std::vector<QString> lines = Lines(&EijiroLine);
        for (uint i = 0; i < LineCount(); ++i)
            file.write(text::EncodePlain(lines[i % kParsedLines]) + "\r\n");
        return made;
    }();
    return path;
}

void SetFileProcessed(benchmark::State &state)
{
    state.SetItemsProcessed(state.iterations() * LineCount());
    state.SetBytesProcessed(state.iterations() * QFile(SourceFile()).size());
}

template <typename Read> void ReadFile(benchmark::State &state, Read read)
{
    const QString path = files::DrivePath(SourceFile());
    for ([[maybe_unused]] const auto &step : state) {
        files::LineReader reader(path);
        while (!reader.AtEnd())
            benchmark::DoNotOptimize(read(reader));
    }
    SetFileProcessed(state);
}

void ReadLines(benchmark::State &state)
{
    ReadFile(state, [](files::LineReader &reader) { return reader.ReadLine(); });
}

void ReadRawLines(benchmark::State &state)
{
    ReadFile(state, [](files::LineReader &reader) { return reader.ReadRawLine(); });
}

void ReadAndParse(benchmark::State &state)
{
    const auto parser = MakeEijiroParser();
    ReadFile(state, [&parser](files::LineReader &reader) {
        return RowOf(parser->Parse(reader.ReadLine()).value());
    });
}

void Iconv(benchmark::State &state)
{
    for ([[maybe_unused]] const auto &step : state) {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(u"iconv"_s, {u"-f"_s, u"CP932"_s, u"-t"_s, u"UTF-16LE"_s, SourceFile()});
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            throw std::runtime_error("iconv failed");
    }
    SetFileProcessed(state);
}

} // namespace

BENCHMARK_CAPTURE(Parse, Eijiro, &MakeEijiroParser, &EijiroLine)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Parse, OneLine, &MakeOneLineParser, &OneLine)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Parse, Csv, &MakeCsvParser, &CsvLine)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Parse, Glossary, &MakeGlossaryParser, &GlossaryLine)->Unit(benchmark::kMillisecond);
BENCHMARK(ParsePairs)->Unit(benchmark::kMillisecond);
BENCHMARK(FindByNeedle)->Unit(benchmark::kMillisecond);
BENCHMARK(FindByText)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadRawLines)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ReadLines)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ReadAndParse)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Iconv)->Unit(benchmark::kMillisecond)->UseRealTime();

BENCHMARK_MAIN();
