#include "core/program.h"
#include "core/pure/catalogue_record.h"
#include "core/pure/dictionary_file.h"
#include "core/shared_state.h"
#include "platform/browser/web_browser.h"
#include "platform/files/application_folder.h"
#include "platform/files/drive_path.h"
#include "presentation/frmFind.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

/// Types into the real window on a real dictionary and measures, for every key, the time until list
/// and page are written, and the time until the pane has painted the page.
namespace
{

/// Notes when the pane was painted last.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget &pane)
    {
        m_clock.start();
        for (QWidget *part : pane.findChildren<QWidget *>())
            part->installEventFilter(this);
    }
    double Now() const { return static_cast<double>(m_clock.nsecsElapsed()) / 1e6; }
    double LastPaint() const { return m_lastPaint; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_lastPaint = Now();
        return QObject::eventFilter(watched, event);
    }

private:
    QElapsedTimer m_clock;
    double m_lastPaint = 0;
};

double Percentile(std::vector<double> values, double percent)
{
    std::sort(values.begin(), values.end());
    const auto index = static_cast<std::size_t>(percent / 100 * static_cast<double>(values.size() - 1));
    return values.at(index);
}

/// Headwords from all over the dictionary, the same ones at every run.
QStringList SomeHeadwords(const QString &path, int count)
{
    ADODB::Connection connection;
    connection.Open(ViewConnectionString(path));
    ADODB::Recordset table;
    OpenTableByIndex(connection, table);
    std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same words at every run
    QStringList words;
    while (words.size() < count) {
        QString start;
        for (int letter = 0; letter < 2; ++letter)
            start += QChar(static_cast<char16_t>(u'a' + random() % 26));
        table.Seek(start, 0, ADODB::adSeekBeforeEQ);
        for (auto skip = random() % 40; !table.Eof() && skip > 0; --skip)
            table.MoveNext();
        if (!table.Eof())
            words.append(table.Fields().Item(QStringLiteral("Word")).Text());
    }
    return words;
}

void Print(const char *what, const std::vector<double> &values)
{
    std::printf("%-34s n=%zu  p50 %7.2f ms  p95 %7.2f ms  p99 %7.2f ms  max %7.2f ms\n", what, values.size(),
                Percentile(values, 50), Percentile(values, 95), Percentile(values, 99),
                Percentile(values, 100));
}

void WaitForPage(frmFind &window, const PaintWatch &watch)
{
    constexpr double quietMilliseconds = 50, longestMilliseconds = 2000;
    const double begun = watch.Now();
    double loaded = 0;
    while (watch.Now() - begun < longestMilliseconds) {
        QTest::qWait(2);
        if (window.WebBrowser1->IsLoading())
            continue;
        if (loaded == 0)
            loaded = watch.Now();
        if (watch.Now() - std::max(loaded, watch.LastPaint()) > quietMilliseconds)
            return;
    }
}

void Measure(const QString &dictionary)
{
    const QStringList words = SomeHeadwords(dictionary, 60);
    frmFind &window = *MainWindow();
    PaintWatch watch(*window.WebBrowser1);
    std::vector<double> written, painted;
    for (const QString &word : words) {
        window.txtFind->SetText(QString());
        WaitForPage(window, watch);
        constexpr int keys = 6;
        for (int length = 1; length <= std::min<int>(keys, static_cast<int>(word.size())); ++length) {
            const double pressed = watch.Now();
            QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, word.sliced(length - 1, 1));
            QApplication::sendEvent(window.txtFind, &key);
            written.push_back(watch.Now() - pressed);
            WaitForPage(window, watch);
            painted.push_back(watch.LastPaint() - pressed);
        }
    }
    Print("keystroke to page and list written", written);
    Print("keystroke to page painted", painted);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s DICTIONARY.mdb\n", argv[0]);
        return 2;
    }
    const QString share = QStringLiteral(WORDMERE_SHARE_IN_BUILD);
    Program::PrepareProcess(share);
    const QApplication application(argc, argv);
    Program::PrepareApplication();

    const QTemporaryDir folder;
    const QString dictionary = files::DrivePath(QString::fromLocal8Bit(argv[1]));
    files::FillApplicationFolder(folder.path() + QStringLiteral("/application"), {share, false});
    QFile catalogue(folder.path() + QStringLiteral("/application/lexicons.dat"));
    if (!catalogue.open(QIODevice::WriteOnly))
        return 1;
    catalogue.write(EncodeLexicon({QStringLiteral("Bench"), dictionary, -1, 0}));
    catalogue.close();

    Program::Options options;
    options.splashMilliseconds = 0;
    options.applicationFolder = folder.path() + QStringLiteral("/application");
    options.fillFolder = false;
    QElapsedTimer start;
    start.start();
    Program program(options);
    program.Start();
    if (!QTest::qWaitForWindowExposed(MainWindow()))
        return 1;
    std::printf("%-34s %.0f ms\n", "start to window on screen",
                static_cast<double>(start.nsecsElapsed()) / 1e6);
    constexpr int settleMilliseconds = 3000;
    QTest::qWait(settleMilliseconds);
    Measure(dictionary);
    MainWindow()->Unload();
    return 0;
}
