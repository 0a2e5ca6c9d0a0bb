#include "bare_dictionary.h"
#include "conversion/pure/source_format.h"
#include "conversion/pure/stored_row.h"
#include "core/program.h"
#include "dictionary_generator.h"
#include "platform/controls/controls.h"
#include "platform/data/adodb.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/application_folder.h"
#include "platform/files/drive_path.h"
#include "platform/files/line_file.h"
#include "platform/host/host.h"
#include "presentation/frmFind.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <vector>

/// Converts a source of many lines in the real window, and beside it measures what the run stands on: the
/// bare C API storing the same rows, the counting of the lines, and the decoding by iconv.
namespace
{

using namespace Qt::StringLiterals;

double Milliseconds(const QElapsedTimer &timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

/// A figure of the process in KiB ("VmRSS", "VmHWM").
qint64 MemoryFigure(const QByteArray &name)
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toLongLong();
    return 0;
}

void ForgetMemoryPeak()
{
    QFile references(u"/proc/self/clear_refs"_s);
    if (references.open(QIODevice::WriteOnly))
        references.write("5");
}

/// Answers each box with its first button; notes when the report came.
class Answers
{
public:
    Answers()
    {
        m_clock.start();
        dialogs::SetPresenter([this](const dialogs::Box &box) {
            m_lastText = box.text;
            m_lastAt = Milliseconds(m_clock);
            dialogs::Reply reply;
            reply.accepted = true;
            reply.answer = dialogs::AnswerOf(box.buttons.value(0));
            reply.text = m_file;
            return reply;
        });
    }
    void UseFile(const QString &path) { m_file = path; }
    double LastAt() const { return m_lastAt; }
    double Now() const { return Milliseconds(m_clock); }
    const QString &LastText() const { return m_lastText; }

private:
    QElapsedTimer m_clock;
    QString m_file;
    QString m_lastText;
    double m_lastAt = 0;
};

/// The longest time between two turns of the event loop: how long a click may wait.
class TurnWatch
{
public:
    TurnWatch()
    {
        m_clock.start();
        host::SetBeforeTurnHook([this] {
            ADODB::ReleaseReads();
            const double now = Milliseconds(m_clock);
            m_longest = std::max(m_longest, now - m_last);
            m_last = now;
        });
    }
    ~TurnWatch() { host::SetBeforeTurnHook(ADODB::ReleaseReads); }
    TurnWatch(const TurnWatch &) = delete;
    TurnWatch &operator=(const TurnWatch &) = delete;
    double Longest() const { return m_longest; }

private:
    QElapsedTimer m_clock;
    double m_last = 0;
    double m_longest = 0;
};

template <typename Control> Control *ControlOf(const char *name)
{
    return controls::Form::Named(u"frmDataConv"_s)->findChild<Control *>(QLatin1String(name));
}

struct Run {
    double milliseconds = 0;
    double longestTurn = 0;
};

/// A whole run through the dialog, from the start to the report.
Run Convert(Answers &answers, const QString &source, const QString &target)
{
    QMetaObject::invokeMethod(MainWindow()->Menu(u"mnuCnv"_s), "trigger");
    answers.UseFile(files::DrivePath(source));
    ControlOf<QAbstractButton>("sourceButton")->click();
    answers.UseFile(files::DrivePath(target));
    ControlOf<QAbstractButton>("targetButton")->click();
    constexpr int settleMilliseconds = 500;
    QTest::qWait(settleMilliseconds);
    const TurnWatch turns;
    const double begun = answers.Now();
    ControlOf<QAbstractButton>("StartButton")->click();
    return {answers.LastAt() - begun, turns.Longest()};
}

double CountLines(const QString &source)
{
    QElapsedTimer timer;
    timer.start();
    files::LineReader reader(files::DrivePath(source));
    while (!reader.AtEnd())
        reader.SkipLine();
    return Milliseconds(timer);
}

double Iconv(const QString &source)
{
    QElapsedTimer timer;
    timer.start();
    QProcess iconv;
    iconv.setStandardOutputFile(QProcess::nullDevice());
    iconv.start(u"iconv"_s, {u"-f"_s, u"CP932"_s, u"-t"_s, u"UTF-8"_s, source});
    iconv.waitForFinished(-1);
    return Milliseconds(timer);
}

/// Stores the parsed rows by the bare C API; milliseconds of the storing alone.
double Floor(const QString &source, const QString &target)
{
    constexpr std::size_t chunk = 100'000;
    files::LineReader reader(files::DrivePath(source));
    const std::unique_ptr<LineParser> parser = MakeEijiroParser();
    bench::BareLoader loader(target);
    std::vector<bench::GeneratedRow> rows;
    double spent = 0;
    const auto store = [&] {
        QElapsedTimer timer;
        timer.start();
        loader.Add(rows);
        spent += Milliseconds(timer);
        rows.clear();
    };
    while (!reader.AtEnd()) {
        const std::optional<SourceEntry> entry = parser->Parse(reader.ReadLine());
        if (!entry)
            continue;
        const StoredRow row = RowOf(*entry);
        rows.push_back({row.Word, row.Pronunciation, row.WordPhrase, row.Description, row.Example});
        if (rows.size() == chunk)
            store();
    }
    store();
    QElapsedTimer timer;
    timer.start();
    loader.Finish();
    return spent + Milliseconds(timer);
}

void Print(const char *what, uint rows, double milliseconds, double floor)
{
    std::printf("%-34s %8.0f ms  %8.0f rows/s", what, milliseconds, rows / milliseconds * 1000);
    if (floor > 0)
        std::printf("  %.2f x", milliseconds / floor);
    std::printf("\n");
    std::fflush(stdout);
}

void Measure(uint rows, const QString &folder)
{
    Answers answers;
    double sorted = 0;
    for (const bench::RowOrder order : {bench::RowOrder::Sorted, bench::RowOrder::Random}) {
        const bool isSorted = order == bench::RowOrder::Sorted;
        const QString source = folder + u"/source.txt"_s;
        const QString target = folder + u"/target.mdb"_s;
        const QString bare = folder + u"/bare.mdb"_s;
        bench::WriteEijiroSource(source, rows, order);
        Print("iconv of the source", rows, Iconv(source), 0);
        Print("counting its lines", rows, CountLines(source), 0);
        const double floor = Floor(source, bare);
        QFile::remove(bare);
        Print(isSorted ? "bare C API, sorted source" : "bare C API, random source", rows, floor, 0);
        ForgetMemoryPeak();
        const qint64 before = MemoryFigure("VmRSS");
        const Run run = Convert(answers, source, target);
        Print(isSorted ? "conversion, sorted source" : "conversion, random source", rows, run.milliseconds,
              floor);
        std::printf("%-34s %8.1f MiB\n", "memory grown at its peak",
                    static_cast<double>(MemoryFigure("VmHWM") - before) / 1024);
        std::printf("%-34s %8.0f ms\n", "longest time without a turn", run.longestTurn);
        if (!isSorted)
            std::printf("%-34s %8.2f x\n", "random order against sorted", run.milliseconds / sorted);
        sorted = run.milliseconds;
        if (!answers.LastText().startsWith(u"変換元レコード数"_s))
            std::printf("the run did not end well: %s\n", qPrintable(answers.LastText()));
        QFile::remove(target);
        QFile::remove(source);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    bool isNumber = false;
    const uint rows = argc == 2 ? QString::fromLocal8Bit(argv[1]).toUInt(&isNumber) : 0;
    if (!isNumber || rows == 0) {
        std::fprintf(stderr, "usage: %s ROWS\n", argv[0]);
        return 2;
    }
    const QString share = QStringLiteral(WORDMERE_SHARE_IN_BUILD);
    Program::PrepareProcess(share);
    const QApplication application(argc, argv);
    Program::PrepareApplication();

    const QTemporaryDir folder;
    Program::Options options;
    options.splashMilliseconds = 0;
    options.applicationFolder = folder.path() + u"/application"_s;
    files::FillApplicationFolder(options.applicationFolder, {share, false});
    options.fillFolder = false;
    Program program(options);
    program.Start();
    if (!QTest::qWaitForWindowExposed(MainWindow()))
        return 1;
    constexpr int settleMilliseconds = 3000;
    QTest::qWait(settleMilliseconds);
    Measure(rows, folder.path());
    MainWindow()->Unload();
    return 0;
}
