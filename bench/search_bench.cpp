// Searches beside their floors: an index scan in SQLite with a function that does nothing, and grep on
// the same texts in a flat file. Each search and its floor are measured in turn, in the same run; the
// table shows medians of the processor's time, which does not count the machine's other work (searches run
// on one thread), and their ratio.

#include "bare_dictionary.h"

#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <sys/resource.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

constexpr int kRepetitions = 7;
constexpr int kAllRows = 32767;
constexpr int kUsualRows = 500;

/// The flat file that holds the texts of all columns, a row a line.
const QString kAllTexts = u"all texts"_s;

using Milliseconds = std::chrono::duration<double, std::milli>;

/// The processor's time of this process and of those that it waited for.
double ProcessorMilliseconds()
{
    double sum = 0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage{};
        getrusage(who, &usage);
        for (const timeval &time : {usage.ru_utime, usage.ru_stime})
            sum += static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    }
    return sum;
}

double TimeOf(const std::function<void()> &work)
{
    const double start = ProcessorMilliseconds();
    work();
    return ProcessorMilliseconds() - start;
}

double MedianOf(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void RunSilently(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() > 1)
        throw std::runtime_error("grep failed");
}

/// What a search is measured by.
struct Floor {
    QString name;
    std::function<void()> work;
};

class SearchBench
{
public:
    explicit SearchBench(QString dictionary) : m_dictionary(std::move(dictionary))
    {
        bench::BareWriteColumn(m_dictionary, "Description", Flat(u"Description"_s));
        bench::BareWriteColumn(m_dictionary, "Example", Flat(u"Example"_s));
        bench::BareWriteColumn(m_dictionary,
                               "Word || coalesce(Pronunciation, '') || Description || coalesce(Example, '')",
                               Flat(kAllTexts));
    }

    Floor IndexScan() const
    {
        return {u"bare index scan"_s, [this] { bench::BareIndexScan(m_dictionary); }};
    }

    Floor Grep(const QString &column, const QString &text, const QStringList &options = {}) const
    {
        const QStringList arguments =
            QStringList{u"-F"_s, u"-c"_s} + options + QStringList{text, Flat(column)};
        return {(QStringList{u"grep -F -c"_s} + options + QStringList{u"of"_s, column}).join(u' '),
                [arguments] { RunSilently(u"grep"_s, arguments); }};
    }

    /// A search read to its end, headword and number of each row; reads are given up between rows as
    /// often as the program turns the event loop, or after each row.
    std::size_t Search(const QString &condition, int top, bool releasesAlways = false) const
    {
        constexpr Milliseconds turn{5};
        ADODB::Connection connection;
        connection.Open(bench::ConnectionTo(m_dictionary));
        const auto rows =
            connection.Execute(u"SELECT TOP %1 * FROM Dictionary WHERE %2"_s.arg(top).arg(condition));
        std::size_t count = 0;
        auto last = std::chrono::steady_clock::now();
        const ADODB::Fields fields = rows->Fields();
        for (; !rows->Eof(); rows->MoveNext(), ++count) {
            fields.Item(u"AutoID"_s).Value();
            fields.Item(u"Word"_s).Text();
            const auto now = std::chrono::steady_clock::now();
            if (!releasesAlways && now - last < turn)
                continue;
            ADODB::ReleaseReads();
            last = now;
        }
        return count;
    }

    void Measure(const char *name, const QString &condition, int top, const Floor &floor = {},
                 bool releasesAlways = false) const
    {
        std::vector<double> times;
        std::vector<double> floors;
        std::size_t hits = 0;
        for (int i = 0; i < kRepetitions; ++i) {
            if (floor.work)
                floors.push_back(TimeOf(floor.work));
            times.push_back(TimeOf([&] { hits = Search(condition, top, releasesAlways); }));
        }
        const double time = MedianOf(times);
        std::printf("%-44s %7zu %9.2f", name, hits, time);
        if (floor.work)
            std::printf(" %9.2f %6.2f  %s", MedianOf(floors), time / MedianOf(floors),
                        qUtf8Printable(floor.name));
        std::printf("\n");
        std::fflush(stdout);
    }

private:
    QString Flat(const QString &column) const { return m_folder.filePath(column); }

    QString m_dictionary;
    QTemporaryDir m_folder;
};

void MeasureHeadwords(const SearchBench &bench)
{
    const auto word = [](const char16_t *pattern) {
        return u"Word Like '%1' ORDER BY Word ASC"_s.arg(QStringView(pattern));
    };
    bench.Measure("prefix, 500 rows", word(u"ab%_%"), kUsualRows);
    bench.Measure("prefix with a pattern, 500 rows", word(u"ab%e%_%"), kUsualRows);
    bench.Measure("prefix, 30,000 rows", word(u"a%_%"), 30000);
    bench.Measure("prefix, 30,000 rows, released at each", word(u"a%_%"), 30000, {}, true);
    bench.Measure("middle, nothing found", word(u"%_%qzqzqz%_%"), kUsualRows, bench.IndexScan());
    bench.Measure("middle, Japanese, nothing found", word(u"%_%龘龘%_%"), kUsualRows, bench.IndexScan());
    bench.Measure("suffix, nothing found", word(u"%_%qzqz"), kUsualRows, bench.IndexScan());
    bench.Measure("wildcard, nothing found", word(u"%qz[qz]qz_z%"), kUsualRows, bench.IndexScan());
    bench.Measure("wildcard of classes, nothing found", word(u"[qz][qz][qz][qz][qz]%"), kUsualRows,
                  bench.IndexScan());
}

void MeasureTexts(const SearchBench &bench)
{
    struct Case {
        const char *name;
        const char16_t *text;
        int top;
        QStringList options;
    };
    const QStringList anyCase{u"-i"_s};
    const std::vector<Case> cases{
        {"1 character, common, all rows", u"剪", kAllRows, {}},
        {"1 character, absent", u"龘", kUsualRows, {}},
        {"2 characters, common, 500 rows", u"剪ひ", kUsualRows, {}},
        {"2 characters, common, all rows", u"剪ひ", kAllRows, {}},
        {"2 characters, common, released at each", u"剪ひ", kAllRows, {}},
        {"2 characters, absent", u"龘龘", kUsualRows, {}},
        {"2 characters of kana, absent", u"をヴ", kUsualRows, {}},
        {"5 characters, absent", u"龘龘龘龘龘", kUsualRows, {}},
        {"English, 1 character, absent", u"~", kUsualRows, anyCase},
        {"English, 2 characters, absent", u"qz", kUsualRows, anyCase},
        {"English, 5 characters, absent", u"qzqzq", kUsualRows, anyCase},
    };
    for (const Case &c : cases) {
        const QString text = QString::fromUtf16(c.text);
        bench.Measure(c.name, u"Description Like '%%1%'"_s.arg(text), c.top,
                      bench.Grep(u"Description"_s, text, c.options),
                      QLatin1String(c.name).contains("each"_L1));
    }
    // Examples lie between the other texts in the same pages: these have to be read too.
    for (const QString &column : {u"Example"_s, kAllTexts})
        bench.Measure("example, 2 characters, absent", u"Example Like '%龘龘%'"_s, kUsualRows,
                      bench.Grep(column, u"龘龘"_s));
}

void MeasureComposites(const SearchBench &bench)
{
    const auto both = [](const char16_t *word, const QString &texts) {
        return u"Word Like '%1' AND %2 ORDER BY Word ASC"_s.arg(QStringView(word), texts);
    };
    const QString rare = u"Description Like '%龘龘%'"_s;
    const QString common = u"Description Like '%剪ひ%'"_s;
    bench.Measure("narrow headword, absent meaning", both(u"abc%_%", rare), kUsualRows);
    bench.Measure("narrow headword, common meaning", both(u"abc%_%", common), kUsualRows);
    bench.Measure("wide headword, absent meaning", both(u"a%_%", rare), kUsualRows);
    bench.Measure("wide headword, common meaning", both(u"a%_%", common), kUsualRows);
    bench.Measure("middle, absent meaning", both(u"%_%a%_%", rare), kUsualRows);
    bench.Measure("middle, common meaning", both(u"%_%a%_%", common), kUsualRows);
    bench.Measure("middle, common meaning, absent example",
                  both(u"%_%a%_%", common + u" AND Example Like '%龘龘%'"_s), kUsualRows);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s DICTIONARY\n", argv[0]);
        return 2;
    }
    const SearchBench bench(QString::fromLocal8Bit(argv[1]));
    std::printf("%-44s %7s %9s %9s %6s  %s\n", "search", "rows", "ms", "floor ms", "ratio", "floor");
    MeasureHeadwords(bench);
    MeasureTexts(bench);
    MeasureComposites(bench);
    return 0;
}
