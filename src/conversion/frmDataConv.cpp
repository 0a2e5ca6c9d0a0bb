#include "conversion/frmDataConv.h"

#include "conversion/conversion_boxes.h"
#include "conversion/conversion_run.h"
#include "conversion/pure/format_table.h"
#include "core/pure/dictionary_file.h"
#include "core/shared_state.h"
#include "platform/controls/handler.h"
#include "platform/dialogs/dialogs.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"
#include "platform/files/line_file.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "ui_frmDataConv.h"

#include <QEvent>
#include <QScopeGuard>

using controls::RunHandler;

namespace
{

constexpr int kEnterKey = 13;
constexpr int kEscapeKey = 27;

QString StartCaption() { return QStringLiteral("スタート"); }

} // namespace

frmDataConv::frmDataConv()
    : Form(QStringLiteral("frmDataConv")), m_controls(std::make_unique<Ui::frmDataConvControls>())
{
    m_controls->setupUi(this);
    setObjectName(QStringLiteral("frmDataConv"));
    SetDialogFrame();
    QPalette flat = m_controls->MsgText->palette();
    flat.setColor(QPalette::Base, palette().color(QPalette::Window));
    flat.setColor(QPalette::Text, palette().color(QPalette::WindowText));
    m_controls->MsgText->setPalette(flat);
    SetKeyButtons(m_controls->StartButton, m_controls->QuitButton);
    ConnectHandlers();
}

frmDataConv::~frmDataConv() = default;

void frmDataConv::ConnectHandlers()
{
    connect(m_controls->ConvDicLst, &controls::ComboBox::Click, this,
            [this] { RunHandler([this] { ConvDicLst_Click(); }); });
    connect(m_controls->ConvDicLst, &controls::ComboBox::KeyPress, this, [](int character, bool *swallow) {
        // Enter and Esc are the buttons'.
        *swallow = character != kEnterKey && character != kEscapeKey;
    });
    const auto connectButton = [this](QAbstractButton *button, void (frmDataConv::*handler)()) {
        connect(button, &QAbstractButton::clicked, this,
                [this, handler] { RunHandler([this, handler] { (this->*handler)(); }); });
    };
    connectButton(m_controls->sourceButton, &frmDataConv::sourceButton_Click);
    connectButton(m_controls->targetButton, &frmDataConv::targetButton_Click);
    connectButton(m_controls->StartButton, &frmDataConv::StartButton_Click);
    connectButton(m_controls->QuitButton, &frmDataConv::QuitButton_Click);

    // The pointer over the frames and their labels is over the form; over the button it is not.
    const QList<QWidget *> parts = findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->setMouseTracking(true);
    m_controls->StartButton->setAttribute(Qt::WA_NoMousePropagation);
    m_controls->StartButton->installEventFilter(this);
}

void frmDataConv::Form_Load()
{
    Shared.ConvStopFlag = 1;
    MainWindow()->SetTakesInput(false);
    FormatNames = SourceFormatNames();
    FormatDescriptions = SourceFormatDescriptions();
    for (const QString &name : std::as_const(FormatNames))
        m_controls->ConvDicLst->AddItem(name);
    FormatIndex = FormatEijiro;
    m_controls->ConvDicLst->setCurrentIndex(FormatIndex);
    m_controls->DicDesc->setText(FormatDescriptions.at(FormatIndex));
    // The boxes of both frames begin below each other.
    m_controls->Label4->setMinimumWidth(m_controls->Label2->sizeHint().width());
    adjustSize();
    setFixedHeight(height());
    Centre();
}

bool frmDataConv::Form_QueryUnload(controls::UnloadReason reason)
{
    if (!m_isRunning)
        return true;
    if (reason == controls::UnloadReason::Exit) {
        Shared.ConvStopFlag = 1;
        Shared.StopRequested = 1;
    } else if (Shared.ConvStopFlag != 1) {
        Show(CloseRefusedBox());
        return false;
    }
    // The run uses the form until it has returned.
    m_unloadsAfterRun = true;
    return false;
}

void frmDataConv::Form_Unload(controls::UnloadReason)
{
    // A counting that was stopped must not stop the next search.
    Shared.StopRequested = 0;
    if (frmFind *window = MainWindow())
        window->SetTakesInput(true);
}

void frmDataConv::Form_MouseMove(const QPoint &) { m_controls->MsgText->SetText(QString()); }

bool frmDataConv::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_controls->StartButton && event->type() == QEvent::MouseMove)
        RunHandler([this] { StartButton_MouseMove(); });
    return Form::eventFilter(watched, event);
}

void frmDataConv::StartButton_MouseMove()
{
    if (Shared.ConvStopFlag != 0)
        m_controls->MsgText->SetText(
            QStringLiteral("処理を開始する前にすべてのアプリケーションを閉じて下さい。"));
}

void frmDataConv::ConvDicLst_Click()
{
    FormatIndex = static_cast<std::int16_t>(m_controls->ConvDicLst->ListIndex());
    m_controls->DicDesc->setText(FormatDescriptions.at(FormatIndex));
    focusNextChild();
}

void frmDataConv::sourceButton_Click()
{
    const QString chosen = text::Trim(dialogs::OpenFile(
        QStringLiteral("変換元テキストファイルの選択"),
        QStringLiteral("テキスト ファイル (*.txt) | *.txt|カンマ区切り テキスト ファイル (*.csv) | *.csv|"
                       "すべてのファイル (*.*)|*.*"),
        true, false));
    if (!chosen.isEmpty())
        m_controls->SourceFile->SetText(chosen);
}

void frmDataConv::targetButton_Click()
{
    m_controls->TargetFile->SetText(text::Trim(dialogs::OpenFile(
        QStringLiteral("変換先辞書データベースファイルの設定"),
        QStringLiteral("データベース ファイル (*.mdb) | *.mdb|すべてのファイル (*.*)|*.*"), false, true)));
}

void frmDataConv::StartButton_Click()
{
    if (m_controls->StartButton->text() != StartCaption()) {
        Shared.ConvStopFlag = 1;
        return;
    }
    if (!Agrees(ConfirmationBox(FormatName())))
        return;
    m_controls->MsgText->SetText(QString());
    CallConverter();
}

void frmDataConv::CallConverter()
{
    switch (FormatIndex) {
    case FormatEijiro: ConvertEijiro(); break;
    case FormatOneLine: ConvertOneLine(); break;
    case FormatPdicText: ConvertPdicText(); break;
    case FormatCsv: ConvertCsv(); break;
    default: ConvertGlossary(); break;
    }
}

void frmDataConv::Run(const Format &format)
{
    m_isRunning = true;
    const auto afterwards = qScopeGuard([this] {
        m_isRunning = false;
        Shared.ConvStopFlag = 1;
        if (m_unloadsAfterRun)
            Unload();
    });
    ConversionRun run(*this, format);
    m_unloadsAfterRun = run.Run() == ConversionRun::Outcome::Ended || m_unloadsAfterRun;
}

void frmDataConv::QuitButton_Click()
{
    Shared.ConvStopFlag = 1;
    if (m_isRunning) {
        Shared.StopRequested = 1;
        m_unloadsAfterRun = true;
        return;
    }
    Unload();
}

void frmDataConv::EnableFileControls(bool enabled)
{
    m_controls->ConvDicLst->setEnabled(enabled);
    m_controls->SourceFile->setEnabled(enabled);
    m_controls->TargetFile->setEnabled(enabled);
    m_controls->sourceButton->setEnabled(enabled);
    m_controls->targetButton->setEnabled(enabled);
}

bool frmDataConv::CheckConvFiles()
{
    m_controls->SourceFile->SetText(text::Trim(m_controls->SourceFile->Text()));
    ConvFiles files{FormatIndex, m_controls->SourceFile->Text(),
                    files::TypedPath(m_controls->TargetFile->Text())};
    m_controls->TargetFile->SetText(files.target);
    for (const FileCheck check : kFileChecks) {
        if (Finds(check, files, files::Exists)) {
            const bool goesOn = GoesOn(check, Agrees(CheckBox(check, files)), files);
            m_controls->TargetFile->SetText(files.target);
            if (!goesOn)
                return false;
        } else if (check == FileCheck::TargetExists) {
            CreateDictionaryFile(files.target);
        }
    }
    return true;
}

std::int32_t frmDataConv::CountSourceLines(const QString &path)
{
    constexpr std::int32_t failed = -1;
    if (Shared.StopRequested == 1)
        return failed;
    std::int32_t count = 0;
    try {
        files::LineReader source(path);
        while (!source.AtEnd() && Shared.StopRequested == 0) {
            source.SkipLine();
            count = CheckedTo<std::int32_t>(std::int64_t{count} + 1);
            host::YieldRow();
        }
    } catch (const RuntimeError &) {
        Show(CountFailedBox(FormatName()));
        return failed;
    }
    return Shared.StopRequested == 1 ? failed : count;
}
