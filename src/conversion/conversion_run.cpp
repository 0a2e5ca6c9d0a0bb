#include "conversion/conversion_run.h"

#include "conversion/conversion_boxes.h"
#include "conversion/frmDataConv.h"
#include "conversion/frmRecCount.h"
#include "conversion/pure/run_counts.h"
#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "ui_frmDataConv.h"

#include <QPointer>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::int32_t kManyBadRecords = 100;

QString LogPath() { return AppFilePath(u"ConvErr.log"_s); }

/// The window of the counting while it lives, whatever fails.
class CountWindow
{
public:
    CountWindow(frmDataConv &dialog, const QString &caption, const QString &first, const QString &second)
        : m_window(new frmRecCount(dialog, caption, first, second))
    {
        m_window->ShowAbove(dialog);
    }
    ~CountWindow()
    {
        if (m_window)
            m_window->Unload();
    }
    CountWindow(const CountWindow &) = delete;
    CountWindow &operator=(const CountWindow &) = delete;

private:
    QPointer<frmRecCount> m_window;
};

void RequireOtherFile(const QString &source, const QString &other, const QString &otherwise)
{
    if (files::IsSameFile(source, other))
        throw RuntimeError(RuntimeError::PermissionDenied, RuntimeError::defaultSource(), otherwise);
}

} // namespace

ConversionRun::ConversionRun(frmDataConv &dialog, const Format &format) : m_dialog(dialog), m_format(format)
{
}

ConversionRun::~ConversionRun() = default;

ConversionRun::Outcome ConversionRun::Run()
{
    if (Shared.ConvStopFlag == 0) {
        Shared.ConvStopFlag = 1;
        return Outcome::Idle;
    }
    try {
        if (!IsReady())
            return Outcome::Idle;
        Open();
        if (m_format.isPairs)
            ConvertPairs();
        else
            ConvertLines();
    } catch (const RuntimeError &failure) {
        TellFailure(failure);
    }
    m_isStopped = Shared.ConvStopFlag != 0;
    Close();
    Report();
    m_dialog.Controls().ProgressBar1->SetValue(0);
    m_dialog.EnableFileControls(true);
    m_dialog.Controls().StartButton->setText(u"スタート"_s);
    m_dialog.Controls().QuitButton->setEnabled(true);
    Shared.ConvStopFlag = 1;
    return Outcome::Ended;
}

bool ConversionRun::IsReady()
{
    if (!m_dialog.CheckConvFiles())
        return false;
    TakeFiles();
    CountLines();
    if (!HasLinesToConvert())
        return false;
    if (m_format.showsPreparation)
        ShowPreparation();
    host::SetMousePointer(host::PointerDefault);
    return true;
}

void ConversionRun::TakeFiles()
{
    Ui::frmDataConvControls &controls = m_dialog.Controls();
    controls.StartButton->setText(u"キャンセル"_s);
    Shared.ConvStopFlag = 0;
    m_dialog.EnableFileControls(false);
    m_dialog.TargetPath = controls.TargetFile->Text();
    m_dialog.SourcePath = controls.SourceFile->Text();
    host::SetMousePointer(host::PointerHourglass);
}

void ConversionRun::CountLines()
{
    if (m_format.disablesDialog)
        m_dialog.SetTakesInput(false);
    {
        const CountWindow window(
            m_dialog, u"「"_s + m_dialog.FormatName() + u"」形式辞書ファイルの確認中．．．"_s,
            m_format.isPairs ? u"変換元テキストファイルの内容とレコード数を調べています。"_s
                             : u"変換元テキストファイルのレコード数を調べています。"_s,
            u"数分かかることがあります。しばらくお待ち下さい．．．"_s);
        m_dialog.SourceLineCount = m_dialog.CountSourceLines(m_dialog.SourcePath);
    }
    m_dialog.raise();
    m_dialog.activateWindow();
}

bool ConversionRun::HasLinesToConvert()
{
    if (m_format.isPairs && !HasPairs())
        return false;
    if (m_dialog.SourceLineCount == 0) {
        Show(NoDataBox(m_dialog.SourcePath));
        BecomeIdle();
        m_dialog.EnableFileControls(true);
        return false;
    }
    if (m_dialog.SourceLineCount < 0) {
        BecomeIdle();
        Show(CountCancelledBox());
        m_dialog.SetTakesInput(true);
        // For pairs the button of the counting has done that, and after a failure nobody does.
        if (!m_format.isPairs)
            m_dialog.EnableFileControls(true);
        return false;
    }
    return true;
}

bool ConversionRun::HasPairs()
{
    const bool isOdd = m_dialog.SourceLineCount > 0 && m_dialog.SourceLineCount % 2 != 0;
    if (!isOdd || Agrees(OddLinesBox(m_dialog.FormatName())))
        return true;
    BecomeIdle();
    m_dialog.EnableFileControls(true);
    return false;
}

void ConversionRun::BecomeIdle()
{
    Shared.ConvStopFlag = 1;
    host::SetMousePointer(host::PointerDefault);
    m_dialog.Controls().StartButton->setText(u"スタート"_s);
}

void ConversionRun::ShowPreparation()
{
    const CountWindow window(m_dialog, u"変換先データベースファイルの作成中．．．"_s,
                             u"テキストファイルの確認は無事終了しました。"_s,
                             u"変換先データベースファイルを準備しています．．．"_s);
}

void ConversionRun::Open()
{
    Ui::frmDataConvControls &controls = m_dialog.Controls();
    controls.StartButton->setEnabled(false);
    m_progressStep = ProgressStepOf(m_dialog.SourceLineCount);
    controls.ProgressBar1->SetRange(0, m_dialog.SourceLineCount);
    host::SetMousePointer(host::PointerHourglass);
    RequireOtherFile(m_dialog.SourcePath, m_dialog.TargetPath,
                     u"変換元と変換先に同じファイルが指定されています。"_s);
    m_store.Open(m_dialog.TargetPath);
    if (m_format.isPairs)
        ReadFirstHeadword();
    m_source = std::make_unique<files::LineReader>(m_dialog.SourcePath);
    if (!m_format.isPairs)
        CreateLog();
    // Opening may have built a missing index, which ends with the default pointer.
    host::SetMousePointer(host::PointerHourglass);
    controls.QuitButton->setEnabled(false);
    controls.StartButton->setEnabled(true);
    m_dialog.SetTakesInput(true);
}

void ConversionRun::CreateLog()
{
    const QString path = LogPath();
    RequireOtherFile(
        m_dialog.SourcePath, path,
        u"変換元のファイルは変換不可レコードの保存先です。ファイル名を変更してから変換してください。"_s);
    files::LineWriter(path, files::LineWriter::Mode::Output).Close();
}

void ConversionRun::ReadFirstHeadword()
{
    files::LineReader source(m_dialog.SourcePath);
    m_lastHeadword = text::Trim(source.ReadLine());
}

void ConversionRun::ConvertLines()
{
    const std::unique_ptr<LineParser> parser = m_format.makeParser();
    for (int line = 0; line < m_format.headerLines; ++line)
        m_source->SkipLine();
    while (!m_source->AtEnd() && Shared.ConvStopFlag == 0) {
        CountRecord();
        const QString line = m_source->ReadLine();
        if (const std::optional<SourceEntry> entry = parser->Parse(line))
            m_store.StoreRecord(*entry);
        else
            BadRecord(line);
        if (m_progressStep != 0 && m_recordNo % m_progressStep == 0)
            ShowPercentage();
        host::YieldRow();
    }
}

void ConversionRun::ConvertPairs()
{
    while (!m_source->AtEnd() && Shared.ConvStopFlag == 0) {
        const QString headwordLine = m_source->ReadLine();
        CountRecord();
        const SourceEntry entry = ParsePdicPair(headwordLine, m_source->ReadLine(), m_lastHeadword);
        CountRecord();
        m_store.StoreRecord(entry);
        if (m_progressStep == 0)
            throw RuntimeError(RuntimeError::DivisionByZero);
        if (m_recordNo % m_progressStep == 0)
            ShowPercentage();
        host::YieldRow();
    }
}

void ConversionRun::CountRecord()
{
    m_recordNo = CheckedTo<std::int32_t>(std::int64_t{m_recordNo} + 1);
    m_dialog.Controls().ProgressBar1->SetValue(m_recordNo);
}

void ConversionRun::BadRecord(const QString &line)
{
    m_hadBadRecords = true;
    const QByteArrayView bytes = m_source->RawLine();
    // Opened for each record: whoever looks at the log meanwhile finds every one, and may take it away.
    files::LineWriter log(LogPath(), files::LineWriter::Mode::Append, m_source->FileEncoding());
    log.WriteLine(m_format.logsTrimmed ? files::TrimmedRaw(bytes, line, m_source->FileEncoding()) : bytes);
    log.Close();
    CountBadRecord(m_badCount, m_format.mostBadRecords);
    if (m_keepsGoing || m_badCount <= kManyBadRecords)
        return;
    if (Agrees(ManyBadRecordsBox(m_dialog.FormatName())))
        m_keepsGoing = true;
    else
        Shared.ConvStopFlag = 1;
}

void ConversionRun::ShowPercentage()
{
    m_dialog.Controls().Label1->setText(QString::number(PercentOf(m_recordNo, m_dialog.SourceLineCount)) +
                                        u'%');
}

void ConversionRun::TellFailure(const RuntimeError &failure)
{
    const bool endsWithinPair = m_format.isPairs && failure.number() == RuntimeError::InputPastEnd;
    Show(endsWithinPair ? NoPairBox() : RunFailedBox(failure));
    Shared.ConvStopFlag = 1;
    host::YieldRow();
}

void ConversionRun::Close()
{
    // Nothing is left to be stopped, and the index of a long table takes its time.
    m_dialog.Controls().StartButton->setEnabled(false);
    m_dialog.Controls().MsgText->SetText(u"見出し語の索引を作成しています。しばらくお待ち下さい．．．"_s);
    m_source.reset();
    try {
        m_store.Close();
    } catch (const RuntimeError &failure) {
        TellFailure(failure);
        m_isStopped = true;
    }
    m_dialog.Controls().MsgText->SetText(QString());
}

void ConversionRun::Report()
{
    Shared.ConvStopFlag = m_isStopped ? 1 : 0;
    const QString logPath = m_hadBadRecords ? LogPath() : QString();
    if (!m_isStopped)
        m_dialog.Controls().Label1->setText(u"100%"_s);
    host::SetMousePointer(host::PointerDefault);
    if (m_isStopped)
        Show(UnfinishedBox(m_badCount, logPath));
    else if (m_format.isPairs)
        Show(PlainlyFinishedBox());
    else
        Show(FinishedBox(m_recordNo, m_badCount, logPath));
    m_dialog.Controls().Label1->setText(u"0%"_s);
}
