#include "aids/frmHistory.h"

#include "aids/pure/word_book.h"
#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/controls/connect_handler.h"
#include "platform/dialogs/dialogs.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/file_operations.h"
#include "platform/files/fixed_record_file.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "presentation/main_input.h"
#include "search/view.h"
#include "ui_frmHistory.h"

#include <QScopeGuard>
#include <algorithm>

namespace
{

void Tell(const QString &text, const QString &title)
{
    dialogs::BeepAndMsgBox(host::BeepExclamation, text, dialogs::Exclamation, title);
}

QString TooManyText(std::int16_t most)
{
    return QStringLiteral("登録可能件数を超えました！現在の登録可能数は") + QString::number(most) +
           QStringLiteral("件に設定されています。\r\n\r\n"
                          "登録可能件数を増やすには既存のデータを検索するか、または\r\n"
                          "メニューバーから [ツール] ＞ [検索結果のリスト件数設定] を選択して\r\n"
                          "マイ ワードブックの最大登録・表示件数の設定変更をおこなってください。");
}

} // namespace

frmHistory::frmHistory() : Form(QStringLiteral("frmHistory")), m_ui(std::make_unique<Ui::frmHistory>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    // Enter on a row looks it up; on a button it presses that.
    SetKeyButtons(m_ui->Command4, m_ui->Command3);
    ConnectHandlers();
}

frmHistory::~frmHistory() = default;

void frmHistory::ConnectHandlers()
{
    using controls::ConnectHandler;
    ConnectHandler(m_ui->Command1, &QPushButton::clicked, this, &frmHistory::Command1_Click);
    ConnectHandler(m_ui->Command2, &QPushButton::clicked, this, &frmHistory::Command2_Click);
    ConnectHandler(m_ui->Command3, &QPushButton::clicked, this, &frmHistory::Command3_Click);
    ConnectHandler(m_ui->Command4, &QPushButton::clicked, this, &frmHistory::Command4_Click);
    ConnectHandler(m_ui->Command5, &QPushButton::clicked, this, &frmHistory::Command5_Click);
    using controls::ListBox;
    for (const auto signal : {&ListBox::DblClick, &ListBox::DblClickBesideRows})
        ConnectHandler(m_ui->List1, signal, this, &frmHistory::List1_DblClick);
    connect(m_ui->List1, &ListBox::MouseMove, this,
            [this](const QPoint &point) { controls::RunHandler([this, point] { List1_MouseMove(point); }); });
}

void frmHistory::Form_Load()
{
    SetMainWindowInput(false);
    LoadHistoryFile(QStringLiteral("WordBook.dat"));
    SetExtent();
    m_ui->List1->setFocus();
}

void frmHistory::LoadHistoryFile(const QString &fileName)
{
    m_filePath = AppFilePath(fileName);
    files::FixedRecordFile file(m_filePath, kWordBookRecordLength);
    const auto count = std::min(CheckedTo<std::int16_t>(file.Count()), Shared.WordBookMax);
    QStringList rows;
    for (int record = 1; record <= count; ++record)
        rows.append(DecodeWordBookRecord(file.Read(record)));
    file.Close();
    FillList(rows);
}

void frmHistory::FillList(const QStringList &rows)
{
    const ListFill fill(*m_ui->List1);
    m_ui->List1->Clear();
    for (const QString &row : rows)
        m_ui->List1->AddItem(row);
}

void frmHistory::SetExtent()
{
    m_ui->List1->SetHorizontalExtent(2 * m_ui->List1->maximumViewportSize().width());
}

void frmHistory::Form_Resize() { SetExtent(); }

void frmHistory::Form_Unload(controls::UnloadReason)
{
    auto giveBack = qScopeGuard([] { SetMainWindowInput(true); });
    if (m_ui->List1->ListCount() > 0) {
        files::Replace(m_filePath, EncodeWordBook(m_ui->List1->Items()));
        return;
    }
    files::DeleteIfThere(m_filePath);
    // An empty book leaves the main window as it is: the close button has given it back, the window
    // frame has not.
    giveBack.dismiss();
}

bool frmHistory::SelectRow(const QString &word)
{
    const int row = m_ui->List1->FindStringExact(word);
    if (row < 0)
        return false;
    m_ui->List1->SetListIndex(row);
    return true;
}

void frmHistory::Command1_Click()
{
    const frmFind *window = MainWindow();
    const QString word =
        dialogs::InputBox(QStringLiteral("マイ ワードブックに追加する見出し語を入力してください..."),
                          QStringLiteral("追加"), window ? text::Trim(window->txtFind->Text()) : QString());
    if (word.isEmpty())
        return;
    if (SelectRow(word)) {
        Tell(QStringLiteral("見出し語は既にマイ ワードブックに登録されています！"),
             QStringLiteral("マイ ワードブックに登録済み"));
        return;
    }
    if (m_ui->List1->ListCount() + 1 > Shared.WordBookMax) {
        Tell(TooManyText(Shared.WordBookMax), QStringLiteral("登録可能件数オーバー"));
        return;
    }
    m_ui->List1->AddItem(word);
    SelectRow(word);
}

void frmHistory::Command2_Click()
{
    if (m_ui->List1->ListIndex() < 0) {
        Tell(QStringLiteral("削除する見出し語が選択されていません！"), QStringLiteral("削除見出し語未選択"));
        return;
    }
    const int answer = dialogs::BeepAndMsgBox(
        host::BeepExclamation, QStringLiteral("選択中のマイ ワードブックの項目を削除してよろしいですか？"),
        dialogs::YesNo | dialogs::Exclamation, QStringLiteral("削除確認"));
    if (answer == dialogs::Yes)
        m_ui->List1->RemoveItem(m_ui->List1->ListIndex());
}

void frmHistory::Command3_Click()
{
    SetMainWindowInput(true);
    Unload();
}

void frmHistory::Command4_Click()
{
    if (m_ui->List1->ListIndex() < 0) {
        Tell(QStringLiteral("検索する見出し語が選択されていません！"), QStringLiteral("検索見出し語未選択"));
        return;
    }
    SendToEntryBox();
}

void frmHistory::List1_DblClick() { SendToEntryBox(); }

void frmHistory::SendToEntryBox()
{
    if (frmFind *window = MainWindow())
        window->txtFind->SetText(text::Trim(m_ui->List1->Text()));
}

void frmHistory::Command5_Click()
{
    const QStringList rows = m_ui->List1->Items();
    const QList<qsizetype> order = SortedOrder(rows);
    const qsizetype selected = m_ui->List1->ListIndex();
    QStringList sorted;
    for (const qsizetype row : order)
        sorted.append(rows[row]);
    FillList(sorted);
    if (selected >= 0)
        m_ui->List1->SetListIndex(static_cast<int>(order.indexOf(selected)));
}

void frmHistory::List1_MouseMove(const QPoint &point)
{
    const controls::ListBox &list = *m_ui->List1;
    constexpr quint32 outside = 0xFFFF0000, rowMask = 0x7FFF;
    const quint32 item = list.ItemFromPoint(point);
    const QString row = (item & outside) != 0 ? QString() : list.List(static_cast<int>(item & rowMask));
    const bool isWider = list.fontMetrics().horizontalAdvance(row) > list.viewport()->width();
    m_ui->List1->setToolTip(isWider ? row : QString());
}
