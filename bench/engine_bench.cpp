#include "bare_dictionary.h"
#include "dictionary_generator.h"

#include "core/pure/dictionary_file.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

/// Rows of the dictionary that is searched; WORDMERE_BENCH_ROWS stands in for it.
uint RowCount()
{
    bool isSet = false;
    const int count = qEnvironmentVariableIntValue("WORDMERE_BENCH_ROWS", &isSet);
    return isSet && count > 0 ? static_cast<uint>(count) : 2'000'000;
}

constexpr uint kLoadedRows = 200'000;

const QTemporaryDir &Folder()
{
    static const QTemporaryDir folder;
    return folder;
}

/// The dictionary that is searched, made at the first call. WORDMERE_BENCH_FILE names one made before.
const QString &SearchedFile()
{
    static const QString path = [] {
        const QString given = qEnvironmentVariable("WORDMERE_BENCH_FILE");
        if (!given.isEmpty() && QFile::exists(given))
            return given;
        const QString made = given.isEmpty() ? Folder().filePath(u"searched.mdb"_s) : given;
        bench::MakeDictionary(made, RowCount(), bench::RowOrder::Sorted);
        return made;
    }();
    return path;
}

/// The words that are typed, one a step.
const std::vector<QString> &TypedWords()
{
    static const std::vector<QString> words = [] {
        const bench::DictionaryGenerator generator(RowCount(), bench::RowOrder::Random);
        std::vector<QString> typed;
        for (uint i = 0; i < 997; ++i)
            typed.push_back(generator.Row(i).word.first(5));
        return typed;
    }();
    return words;
}

std::size_t IncrementalStep(const QString &connectionString, const QString &word)
{
    std::size_t read = 0;
    ADODB::Connection connection;
    connection.Open(connectionString);
    ADODB::Recordset rows;
    OpenTableByIndex(connection, rows);
    const ADODB::Fields fields = rows.Fields();
    read += static_cast<std::size_t>(fields.Item(u"Word"_s).Text().size());
    rows.Seek(word, 0, ADODB::adSeekBeforeEQ);
    if (rows.Eof())
        rows.MoveFirst();
    else
        rows.MoveNext();
    for (int i = 0; i < 50 && !rows.Eof(); ++i) {
        read += static_cast<std::size_t>(fields.Item(u"Word"_s).Text().size());
        read += static_cast<std::size_t>(fields.Item(u"AutoID"_s).Value().toInt());
        if (i < 15)
            for (const QString &column : {u"Pronunciation"_s, u"Description"_s, u"Example"_s})
                read += static_cast<std::size_t>(fields.Item(column).Text().size());
        rows.MoveNext();
    }
    rows.Close();
    connection.Close();
    return read;
}

void IncrementalEngine(benchmark::State &state)
{
    const QString connection = bench::ConnectionTo(SearchedFile());
    const std::vector<QString> &words = TypedWords();
    std::size_t i = 0;
    for ([[maybe_unused]] const auto &step : state)
        benchmark::DoNotOptimize(IncrementalStep(connection, words[i++ % words.size()]));
}

void IncrementalBare(benchmark::State &state)
{
    std::vector<std::string> words;
    for (const QString &word : TypedWords())
        words.push_back(word.toStdString());
    std::size_t i = 0;
    for ([[maybe_unused]] const auto &step : state)
        benchmark::DoNotOptimize(bench::BareIncrementalStep(SearchedFile(), words[i++ % words.size()]));
}

std::vector<bench::GeneratedRow> LoadedRows(bench::RowOrder order)
{
    const bench::DictionaryGenerator generator(kLoadedRows, order);
    std::vector<bench::GeneratedRow> rows;
    for (uint i = 0; i < kLoadedRows; ++i)
        rows.push_back(generator.Row(i));
    return rows;
}

void LoadEngine(benchmark::State &state)
{
    const std::vector<bench::GeneratedRow> loaded = LoadedRows(static_cast<bench::RowOrder>(state.range(0)));
    const QString path = Folder().filePath(u"engine.mdb"_s);
    for ([[maybe_unused]] const auto &step : state) {
        state.PauseTiming();
        QFile::remove(path);
        state.ResumeTiming();
        bench::DictionaryWriter writer(path);
        for (const bench::GeneratedRow &row : loaded)
            writer.Add(row);
        writer.Close();
    }
    state.SetItemsProcessed(state.iterations() * kLoadedRows);
}

void LoadBare(benchmark::State &state)
{
    const std::vector<bench::GeneratedRow> loaded = LoadedRows(static_cast<bench::RowOrder>(state.range(0)));
    const QString path = Folder().filePath(u"bare.mdb"_s);
    for ([[maybe_unused]] const auto &step : state) {
        state.PauseTiming();
        QFile::remove(path);
        state.ResumeTiming();
        bench::BareLoad(path, loaded);
    }
    state.SetItemsProcessed(state.iterations() * kLoadedRows);
}

/// The time to the last row of a search, with no more than the usual limit of rows.
void Search(benchmark::State &state, const QString &condition)
{
    const QString statement = u"SELECT TOP 500 * FROM Dictionary WHERE %1"_s.arg(condition);
    for ([[maybe_unused]] const auto &step : state) {
        ADODB::Connection connection;
        connection.Open(bench::ConnectionTo(SearchedFile()));
        const auto rows = connection.Execute(statement);
        for (; !rows->Eof(); rows->MoveNext())
            benchmark::DoNotOptimize(rows->Fields().Item(u"Word"_s).Text());
    }
}

} // namespace

BENCHMARK(IncrementalEngine)->Unit(benchmark::kMicrosecond);
BENCHMARK(IncrementalBare)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadEngine)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadBare)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Search, Prefix, u"Word Like 'ab%_%' ORDER BY Word ASC"_s)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Search, MiddleAbsent, u"Word Like '%_%qzqzqz%_%' ORDER BY Word ASC"_s)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Search, MeaningAbsent, u"Description Like '%龘龘%'"_s)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
