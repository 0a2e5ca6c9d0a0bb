#include "conversion/frmCreateDB.h"

#include "conversion/conversion_boxes.h"
#include "conversion/pure/database_path.h"
#include "core/pure/dictionary_file.h"
#include "core/pure/path_parts.h"
#include "platform/controls/connect_handler.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "ui_frmCreateDB.h"

using namespace Qt::StringLiterals;

namespace
{

/// What a check says.
ConversionBox NoticeOf(PathCheck check, const QString &path)
{
    constexpr int told = dialogs::OKOnly + dialogs::Exclamation;
    switch (check) {
    case PathCheck::Empty:
        return {host::BeepExclamation, told, u"新規辞書データベースファイル名なし"_s,
                u"ファイルパスならびにファイル名が指定されていません！\r\n\r\n"_s
                u"ダイアログボックスを表示し、ファイルを指定してください。"_s};
    case PathCheck::NoPeriod:
        return {host::BeepExclamation, told, u"拡張子(またはピリオド)なし"_s,
                u"変換先のWordmere辞書ファイル名とその拡張子を分けるピリオドが\r\n"_s
                u"新規ファイル名の中にありません！ファイル名と拡張子を正しく指定してください。"_s};
    case PathCheck::NoBackslash:
        return {host::BeepExclamation, told, u"パスが不正(円マークなし)"_s,
                u"新規のWordmere辞書ファイル作成されるパスにはドライブ名とフォルダとを分ける\r\n\r\n"_s
                u"円マーク(\\)がこのファイルパス中ありません！ファイルパスを正しく指定してください。"_s};
    case PathCheck::NoDrive:
        return {host::BeepExclamation, told, u"ドライブ名なし"_s,
                u"新規のWordmere辞書ファイルのパス中にドライブ名が見つかりません。(例：「C:\\」) \r\n\r\n"_s
                u"確認後、ドライブならびにパスを正しく指定してください。"_s};
    case PathCheck::NoStem:
        return {host::BeepExclamation, told, u"辞書データベースファイル名なし"_s,
                u"新規のWordmere辞書ファイル名が拡張子のみです！\r\n\r\n"_s
                u"ファイル名を正しく指定してください。"_s};
    case PathCheck::NoExtension:
        return {host::BeepQuestion, dialogs::YesNo + dialogs::Question, u"ファイル拡張子なし"_s,
                u"新規Wordmere辞書データベースファイル名に拡張子がありません。\r\n\r\n"_s
                u"拡張子「mdb」が必要です。ファイル名の後に「mdb」を付けますか？"_s};
    case PathCheck::WrongExtension:
        return {host::BeepExclamation, dialogs::OKCancel + dialogs::Exclamation, u"ファイル拡張子の誤り"_s,
                u"Wordmere辞書ファイルの拡張子は「mdb」です。\r\n\r\n"_s
                u"拡張子が「%1」ではWordmere形式の辞書に正しく変換出来ません。\r\n\r\n"_s
                u"OKボタンをクリックすると拡張子は自動的に「%1」から「mdb」に置換されます。"_s.arg(
                    UpperExtOfPath(path))};
    case PathCheck::Exists: break;
    }
    return {
        host::BeepQuestion, dialogs::OKOnly + dialogs::Question, u"データベースファイル名の重複"_s,
        u'「' + path +
            u"」は既に存在します！\r\n\r\n"_s
            u"別の名前に変更するか既存のファイルを別のフォルダに移動、または削除してから処理を行ってください。"_s};
}

ConversionBox DoneBox(const QString &stem)
{
    return {
        host::BeepExclamation, dialogs::OKOnly + dialogs::Information,
        u"新規辞書データベースファイルの作成完了"_s,
        u"データベースファイル「"_s + stem +
            u".mdb」が無事作成されました。Wordmereのデータベースとして使用するためには辞書の登録が必要です。\r\n\r\n"_s
            u"メニューバーのツールから辞書設定を選び、辞書の登録を行ってください。"_s};
}

} // namespace

frmCreateDB::frmCreateDB() : Form(QStringLiteral("frmCreateDB")), m_ui(std::make_unique<Ui::frmCreateDB>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    SetKeyButtons(m_ui->Command2, m_ui->Command3);
    using controls::ConnectHandler;
    ConnectHandler(m_ui->Command1, &QPushButton::clicked, this, &frmCreateDB::Command1_Click);
    ConnectHandler(m_ui->Command2, &QPushButton::clicked, this, &frmCreateDB::Command2_Click);
    ConnectHandler(m_ui->Command3, &QPushButton::clicked, this, &frmCreateDB::Command3_Click);
}

frmCreateDB::~frmCreateDB() = default;

void frmCreateDB::Form_Load()
{
    MainWindow()->SetTakesInput(false);
    setFixedHeight(sizeHint().height());
}

void frmCreateDB::Form_Unload(controls::UnloadReason)
{
    if (frmFind *window = MainWindow())
        window->SetTakesInput(true);
}

void frmCreateDB::CheckNewDbPath(QString &path, std::int16_t &failed)
{
    path = text::Trim(path);
    failed = 0;
    for (const PathCheck check : kPathChecks) {
        if (!Finds(check, path, files::Exists))
            continue;
        const QString before = path;
        if (!GoesOn(check, Agrees(NoticeOf(check, path)), path)) {
            failed = 1;
            return;
        }
        if (path != before)
            m_ui->Text1->SetText(path);
    }
}

void frmCreateDB::Command1_Click()
{
    m_ui->Text1->SetText(text::Trim(dialogs::SaveFile(u"Wordmere辞書データベースファイル"_s,
                                                      u"データベース ファイル (*.mdb) | *.mdb"_s, true)));
}

void frmCreateDB::Command2_Click()
{
    m_ui->Text1->SetText(files::TypedPath(m_ui->Text1->Text()));
    QString path = m_ui->Text1->Text();
    std::int16_t failed = 0;
    CheckNewDbPath(path, failed);
    if (failed != 0)
        return;
    CreateDictionaryFile(m_ui->Text1->Text());
    Show(DoneBox(StemOfPath(m_ui->Text1->Text(), kStemAlone)));
    m_ui->Text1->SetText(QString());
}

void frmCreateDB::Command3_Click() { Unload(); }
