#include "management/frmDBCompress.h"

#include "core/failure_handling.h"
#include "core/pure/path_parts.h"
#include "core/shared_state.h"
#include "management/pure/compaction_layout.h"
#include "management/pure/compaction_paths.h"
#include "platform/controls/connect_handler.h"
#include "platform/controls/twips.h"
#include "platform/data/jro.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/application_folder.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "ui_frmDBCompress.h"

#include <QElapsedTimer>
#include <QFile>

namespace
{

constexpr std::uint8_t kStop = 1;

QString ConnectionTo(const QString &path)
{
    return QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path;
}

int Show(const CompactionMessage &message)
{
    if (message.beep != host::BeepNone)
        host::MessageBeep(message.beep);
    return dialogs::MsgBox(message.text, message.style, message.title);
}

std::uint8_t StopWith(const CompactionMessage &message)
{
    Show(message);
    return kStop;
}

/// Whether a file stands there; raises 52 on a drive that the machine lacks.
bool ExistsOnDrive(const QString &path)
{
    if (!DriveOfPath(path).isEmpty() && files::HostPathOrEmpty(path).isEmpty())
        throw RuntimeError(RuntimeError::BadFileName);
    return files::Exists(path);
}

/// The work needs that place; no dictionary goes for it.
void RequireNoDictionaryAt(const QString &path)
{
    for (const Lexicon &entry : Shared.Lexicons.value_or(QList<Lexicon>()))
        if (entry.IsDeleted == 0 && files::IsSameFile(path, entry.DicPath))
            throw RuntimeError(RuntimeError::PermissionDenied, RuntimeError::defaultSource(),
                               QStringLiteral("最適化の一時ファイルと同じ場所に辞書データベースがあります。\r"
                                              "別のフォルダへ移動してから最適化してください。"));
}

/// A turn of the event loop about every 50 ms, for work that calls it more often.
std::function<void()> YieldNowAndThen()
{
    QElapsedTimer sinceLast;
    sinceLast.start();
    return [sinceLast]() mutable {
        constexpr qint64 interval = 50;
        if (sinceLast.elapsed() < interval)
            return;
        host::DoEvents();
        sinceLast.start();
    };
}

} // namespace

qint64 GetDriveSpace(const QString &path, int kind)
{
    return kind == 1 ? files::FreeBytes(path) : files::TotalBytes(path);
}

QString GetTempFolder() { return files::TempFolder(); }

frmDBCompress::frmDBCompress()
    : Form(QStringLiteral("frmDBCompress")), m_ui(std::make_unique<Ui::frmDBCompress>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    ConnectHandlers();
}

frmDBCompress::~frmDBCompress() = default;

void frmDBCompress::ConnectHandlers()
{
    using controls::ConnectHandler;
    using Dialog = frmDBCompress;
    ConnectHandler(m_ui->Combo1, &controls::ComboBox::Click, this, &Dialog::Combo1_Click);
    connect(m_ui->Combo1, &controls::ComboBox::KeyPress, this, [this](int character, bool *swallow) {
        controls::RunHandler([=, this] { Combo1_KeyPress(character, swallow); });
    });
    ConnectHandler(m_ui->Check1, &QCheckBox::toggled, this, &Dialog::Check1_Click);
    ConnectHandler(m_ui->Command1, &QPushButton::clicked, this, &Dialog::Command1_Click);
    ConnectHandler(m_ui->Command2, &QPushButton::clicked, this, &Dialog::Command2_Click);
    ConnectHandler(m_ui->Command3, &QPushButton::clicked, this, &Dialog::Command3_Click);
    SetKeyButtons(m_ui->Command2, m_ui->Command3);
}

void frmDBCompress::Form_Load()
{
    const CompactionLayout layout = LayoutCompaction(false);
    m_loadedSize = {controls::Pixels(layout.width), controls::Pixels(layout.height)};
    SetDialogLayout(NormalLayout);
    if (frmFind *window = MainWindow())
        window->SetTakesInput(false);
    if (Shared.Lexicons)
        for (const QString &path : CompactionPaths(*Shared.Lexicons))
            m_ui->Combo1->AddItem(path);
    m_ui->Combo1->setFocus();
}

bool frmDBCompress::Form_QueryUnload(controls::UnloadReason reason)
{
    if (m_isOptimizing == 0 || reason != controls::UnloadReason::Frame)
        return true;
    Show(NotWhileWorking());
    return false;
}

void frmDBCompress::Form_Unload(controls::UnloadReason)
{
    if (frmFind *window = MainWindow())
        window->SetTakesInput(true);
}

void frmDBCompress::PlaceControls(bool isWorking)
{
    const CompactionLayout layout = LayoutCompaction(isWorking);
    controls::Place(m_ui->Label3, layout.fileLabel);
    controls::Place(m_ui->Combo1, layout.fileBox);
    controls::Place(m_ui->Label1, layout.nameLabel);
    controls::Place(m_ui->Label2, layout.backupLabel);
    controls::Place(m_ui->Text1, layout.backupBox);
    controls::Place(m_ui->Command1, layout.backupButton);
    controls::Place(m_ui->Check1, layout.noBackupBox);
    controls::Place(m_ui->Command2, layout.startButton);
    controls::Place(m_ui->Command3, layout.closeButton);
    controls::Place(m_ui->Label4, layout.workLabel);
    controls::Place(m_ui->Label5, layout.waitLabel);
    setFixedSize(isWorking ? QSize(controls::Pixels(layout.width), controls::Pixels(layout.height))
                           : m_loadedSize);
}

void frmDBCompress::SetDialogLayout(DialogLayout mode)
{
    const bool isWorking = mode == ProgressLayout;
    PlaceControls(isWorking);
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->Combo1, m_ui->Text1, m_ui->Check1,
                                                             m_ui->Command1, m_ui->Command2, m_ui->Command3,
                                                             m_ui->Label1, m_ui->Label2, m_ui->Label3})
        control->setVisible(!isWorking);
    m_ui->Label4->setText(isWorking ? QStringLiteral("データベース「") + StemOfPath(m_ui->Combo1->Text(), 2) +
                                          QStringLiteral(".mdb」の最適化処理中です。")
                                    : QString());
    m_ui->Label5->setText(isWorking ? QStringLiteral("しばらくお待ちください．．．") : QString());
    m_ui->Label4->setVisible(isWorking);
    m_ui->Label5->setVisible(isWorking);
    Centre();
}

void frmDBCompress::ShowBackupEnabled(bool enabled)
{
    m_ui->Text1->setEnabled(enabled);
    QPalette palette = QWidget::palette();
    if (!enabled)
        palette.setColor(QPalette::WindowText, Qt::darkGray);
    m_ui->Label2->setPalette(palette);
}

void frmDBCompress::SetBackupText(const QString &path)
{
    m_ui->Text1->SetText(path);
    m_ui->Text1->setToolTip(path);
}

void frmDBCompress::Combo1_Click()
{
    const qsizetype slot = m_ui->Combo1->ListIndex();
    const Lexicon entry = Shared.Lexicons ? Shared.Lexicons->value(slot) : Lexicon{};
    m_ui->Label1->setText(QStringLiteral("このデータベースファイルは辞書名が「") + entry.DicName +
                          QStringLiteral("」として使用されています。"));
    m_ui->Combo1->setToolTip(m_ui->Combo1->Text());
    SetBackupText(DefaultBackupPath(m_ui->Combo1->Text()));
    m_ui->Check1->setChecked(false);
    ShowBackupEnabled(true);
}

void frmDBCompress::Combo1_KeyPress(int character, bool *swallow)
{
    // Letters would choose an entry by its beginning; the blank opens the list, what lies below is the
    // form's.
    *swallow = character > u' ';
}

bool frmDBCompress::IsWithoutBackup() const { return m_ui->Check1->isChecked(); }

void frmDBCompress::Check1_Click() { ShowBackupEnabled(!IsWithoutBackup()); }

void frmDBCompress::Command1_Click()
{
    SetBackupText(
        text::Trim(dialogs::SaveFile(QStringLiteral("バックアップデータベースファイル"),
                                     QStringLiteral("データベース ファイル (*.mdb) | *.mdb"), true)));
}

void frmDBCompress::Command3_Click() { Unload(); }

void frmDBCompress::Command2_Click()
{
    m_isOptimizing = 0;
    const QString tempFolder = GetTempFolder();
    const QString dbPath = text::Trim(m_ui->Combo1->Text());
    QString backupPath;
    qint64 oldLength = 0, newLength = 0;
    if (!MayStart(dbPath, backupPath, oldLength))
        return;
    try {
        SetDialogLayout(ProgressLayout);
        host::DoEvents();
        // The window frame still closes the form in this turn.
        if (!IsLoaded())
            return;
        Compact(dbPath, backupPath, tempFolder + QStringLiteral("TemporaryDBBackupFile.mdb"));
        newLength = files::Length(dbPath);
    } catch (...) {
        m_isOptimizing = 0;
        SetDialogLayout(NormalLayout);
        m_ui->Command2->setFocus();
        throw;
    }
    host::SetMousePointer(host::PointerDefault);
    hide();
    m_isOptimizing = 0;
    Show(CompactionDone(oldLength, newLength));
    if (!IsLoaded())
        return;
    SetDialogLayout(NormalLayout);
    m_ui->Command3->setFocus();
    ShowModal();
}

bool frmDBCompress::MayStart(const QString &dbPath, QString &backupPath, qint64 &oldLength)
{
    if (IsWithoutBackup() && Show(WithoutBackup()) != dialogs::OK)
        return false;
    backupPath = text::Trim(m_ui->Text1->Text());
    if (CheckOptimizePaths(dbPath, backupPath) == kStop)
        return false;
    if (dbPath == backupPath) {
        Show(SameFiles());
        return false;
    }
    oldLength = files::Length(dbPath);
    if (IsWithoutBackup())
        return true;
    constexpr int freeForUser = 1;
    const qint64 available = GetDriveSpace(dbPath, freeForUser);
    if (available >= oldLength)
        return true;
    Show(TooLittleSpace(oldLength, available));
    return false;
}

std::uint8_t frmDBCompress::CheckOptimizePaths(const QString &dbPath, QString &backupPath)
{
    std::uint8_t result = 0;
    ShowFailures([&] {
        try {
            result = CheckPaths(dbPath, backupPath);
        } catch (const RuntimeError &failure) {
            if (failure.number() != RuntimeError::BadFileName)
                throw;
            result = StopWith(BadDrive());
        }
    });
    return result;
}

std::uint8_t frmDBCompress::CheckPaths(const QString &dbPath, QString &backupPath)
{
    if (dbPath.isEmpty())
        return StopWith(NoDictionaryChosen());
    if (!ExistsOnDrive(dbPath))
        return StopWith(DictionaryMissing(dbPath));
    if (backupPath.isEmpty())
        return StopWith(NoBackupPath());
    // What was typed as a path of this machine goes on as a drive path.
    backupPath = files::TypedPath(backupPath);
    if (backupPath != text::Trim(m_ui->Text1->Text()))
        SetBackupText(backupPath);
    if (const auto fault = FindBackupPathFault(backupPath))
        return StopWith(*fault);
    if (CheckExtension(backupPath) == kStop)
        return kStop;
    if (!IsWithoutBackup() && ExistsOnDrive(backupPath))
        return StopWith(BackupExists(backupPath));
    return 0;
}

std::uint8_t frmDBCompress::CheckExtension(QString &backupPath)
{
    const QString usual = QStringLiteral("MDB");
    QString extension = ExtOfPath(backupPath).toUpper();
    if (extension.isEmpty() && Show(ExtensionMissing()) == dialogs::Yes) {
        backupPath = WithExtensionAdded(backupPath);
        SetBackupText(backupPath);
        extension = usual;
    }
    if (extension == usual)
        return 0;
    if (Show(OtherExtension(extension)) != dialogs::OK)
        return kStop;
    backupPath = WithExtensionReplaced(backupPath);
    SetBackupText(backupPath);
    return 0;
}

void frmDBCompress::Compact(const QString &dbPath, const QString &backupPath, const QString &tempPath)
{
    RequireNoDictionaryAt(tempPath);
    files::DeleteIfThere(tempPath);
    host::SetMousePointer(host::PointerHourglass);
    m_isOptimizing = 1;
    // Asked before the work, not after it: a file that cannot be replaced needs no copy.
    files::RequireWritable(dbPath);
    JRO::JetEngine engine;
    engine.CompactDatabase(ConnectionTo(dbPath), ConnectionTo(tempPath));
    try {
        ReplaceDictionary(engine, dbPath, backupPath, tempPath);
    } catch (...) {
        // The old file stands: the new one is of no more use than the room that it takes.
        if (files::Exists(dbPath))
            QFile::remove(files::HostPathOrEmpty(tempPath));
        throw;
    }
}

void frmDBCompress::ReplaceDictionary(const JRO::JetEngine &engine, const QString &dbPath,
                                      const QString &backupPath, const QString &tempPath)
{
    if (!IsWithoutBackup())
        files::Copy(dbPath, backupPath, YieldNowAndThen());
    files::ReplaceByFile(dbPath, tempPath, YieldNowAndThen(), [&] {
        try {
            engine.RequireUnchanged();
        } catch (...) {
            // Written meanwhile, the file may have been copied half before and half behind that.
            if (!IsWithoutBackup())
                QFile::remove(files::HostPathOrEmpty(backupPath));
            throw;
        }
    });
}
