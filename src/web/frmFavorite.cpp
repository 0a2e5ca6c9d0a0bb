#include "web/frmFavorite.h"

#include "core/pure/app_files.h"
#include "platform/browser/web_browser.h"
#include "platform/controls/connect_handler.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/file_operations.h"
#include "platform/files/fixed_record_file.h"
#include "platform/host/host.h"
#include "presentation/main_input.h"
#include "ui_frmFavorite.h"
#include "web/pure/favorite_record.h"

#include <QScopeGuard>

frmFavorite::frmFavorite() : Form(QStringLiteral("frmFavorite")), m_ui(std::make_unique<Ui::frmFavorite>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    // Enter on a row goes there; on a button it presses that.
    SetKeyButtons(m_ui->Command4, m_ui->Command3);
    ConnectHandlers();
}

frmFavorite::~frmFavorite() = default;

void frmFavorite::ConnectHandlers()
{
    using controls::ConnectHandler;
    ConnectHandler(m_ui->Command1, &QPushButton::clicked, this, &frmFavorite::Command1_Click);
    ConnectHandler(m_ui->Command2, &QPushButton::clicked, this, &frmFavorite::Command2_Click);
    ConnectHandler(m_ui->Command3, &QPushButton::clicked, this, &frmFavorite::Command3_Click);
    ConnectHandler(m_ui->Command4, &QPushButton::clicked, this, &frmFavorite::Command4_Click);
    using controls::ListBox;
    for (const auto signal : {&ListBox::DblClick, &ListBox::DblClickBesideRows})
        ConnectHandler(m_ui->List1, signal, this, &frmFavorite::List1_DblClick);
    connect(m_ui->List1, &ListBox::MouseMove, this,
            [this](const QPoint &point) { controls::RunHandler([this, point] { List1_MouseMove(point); }); });
}

void frmFavorite::Form_Load()
{
    SetMainWindowInput(false);
    LoadFavorites(QStringLiteral("favorite.dat"));
    SetExtent();
    m_ui->List1->setFocus();
}

void frmFavorite::LoadFavorites(const QString &fileName)
{
    m_filePath = AppFilePath(fileName);
    files::FixedRecordFile file(m_filePath, kFavoriteRecordLength);
    QList<Favorite> favorites;
    for (qint64 record = 1; record <= file.Count(); ++record)
        favorites.append(DecodeFavorite(file.Read(record)));
    file.Close();
    m_ui->List1->BeginFill();
    m_ui->List1->Clear();
    m_addresses.clear();
    for (const Favorite &favorite : favorites) {
        m_ui->List1->AddItem(favorite.name);
        m_addresses.append(favorite.address);
    }
    m_ui->List1->EndFill();
}

void frmFavorite::SetExtent()
{
    m_ui->List1->SetHorizontalExtent(2 * m_ui->List1->maximumViewportSize().width());
}

void frmFavorite::Form_Resize() { SetExtent(); }

void frmFavorite::Form_Unload(controls::UnloadReason)
{
    const auto giveBack = qScopeGuard([] { SetMainWindowInput(true); });
    QList<Favorite> favorites;
    for (int row = 0; row < m_ui->List1->ListCount(); ++row)
        favorites.append({m_ui->List1->List(row), m_addresses.value(row)});
    files::Replace(m_filePath, EncodeFavorites(favorites));
}

bool frmFavorite::SelectRow(const QString &name)
{
    const int row = m_ui->List1->FindStringExact(name);
    if (row < 0)
        return false;
    m_ui->List1->SetListIndex(row);
    return true;
}

void frmFavorite::Command1_Click()
{
    const frmFind *window = MainWindow();
    if (!window)
        return;
    const QString name =
        dialogs::InputBox(QStringLiteral("現在表示中のウエブ サイトを Wordmere のお気に入りへ追加します"),
                          QStringLiteral("お気に入りへの追加"), window->WebBrowser1->LocationName());
    if (name.isEmpty())
        return;
    if (SelectRow(name)) {
        dialogs::BeepAndMsgBox(host::BeepExclamation, QStringLiteral("お気に入り名は既に登録されています！"),
                               dialogs::Exclamation, QStringLiteral("お気に入りに登録済み"));
        return;
    }
    m_ui->List1->AddItem(name);
    SelectRow(name);
    m_addresses.append(window->Combo2->currentText());
}

void frmFavorite::Command2_Click()
{
    const int row = m_ui->List1->ListIndex();
    if (row < 0) {
        dialogs::MsgBox(QStringLiteral("削除する項目が選択されていません！"), dialogs::Exclamation,
                        QStringLiteral("削除項目未選択"));
        return;
    }
    const int answer = dialogs::MsgBox(QStringLiteral("選択中のお気に入り項目を削除してよろしいですか？"),
                                       dialogs::YesNo | dialogs::Question, QStringLiteral("削除確認"));
    if (answer != dialogs::Yes)
        return;
    m_addresses.removeAt(row);
    m_ui->List1->RemoveItem(row);
}

void frmFavorite::Command3_Click() { Unload(); }

void frmFavorite::Command4_Click()
{
    if (m_ui->List1->ListIndex() < 0) {
        dialogs::MsgBox(QStringLiteral("移動するお気に入り項目が選択されていません！"), dialogs::Exclamation,
                        QStringLiteral("検索お気に入り項目未選択"));
        return;
    }
    GoToSelected();
}

void frmFavorite::List1_DblClick()
{
    // Beside the rows there may be none to go to.
    if (m_ui->List1->ListIndex() >= 0)
        GoToSelected();
}

void frmFavorite::GoToSelected()
{
    if (const frmFind *window = MainWindow())
        window->WebBrowser1->NavigateToKept(m_addresses.value(m_ui->List1->ListIndex()));
}

void frmFavorite::List1_MouseMove(const QPoint &point)
{
    constexpr quint32 outside = 0xFFFF0000, rowMask = 0x7FFF;
    const quint32 item = m_ui->List1->ItemFromPoint(point);
    const bool isBeside = (item & outside) != 0;
    m_ui->List1->setToolTip(isBeside ? QString() : m_addresses.value(static_cast<int>(item & rowMask)));
}
