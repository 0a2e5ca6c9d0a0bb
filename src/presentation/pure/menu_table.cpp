#include "presentation/pure/menu_table.h"

#include <array>

const QList<MenuRow> &MenuTable()
{
    using enum MenuRow::Kind;
    static const QList<MenuRow> table{
        {Menu, QStringLiteral("mnufile"), QStringLiteral("ファイル(&F)")},
        {Entry, QStringLiteral("mnuFileCreate"), QStringLiteral("辞書データベースの新規作成(&N)...")},
        {Entry, QStringLiteral("mnuOpen"), QStringLiteral("辞書データベースを開く(&O)...")},
        {Entry, QStringLiteral("mnuCnv"), QStringLiteral("データ変換(&R)...")},
        {Entry, QStringLiteral("mnuCompress"), QStringLiteral("辞書データベースの最適化(&C)...")},
        {Separator, QStringLiteral("mnufilesep1"), {}},
        {Entry, QStringLiteral("mnuPageSettings"), QStringLiteral("ページ設定(&U)...")},
        {Entry, QStringLiteral("mnuPrint"), QStringLiteral("印刷(&P)...")},
        {Entry, QStringLiteral("mnuPrintView"), QStringLiteral("印刷プレビュー(&V)...")},
        {Separator, QStringLiteral("mnufilesep20"), {}},
        {Entry, QStringLiteral("mnuExit"), QStringLiteral("終了(&X)")},

        {Menu, QStringLiteral("mnuEdit"), QStringLiteral("編集(&E)")},
        {Entry, QStringLiteral("mnuCopy"), QStringLiteral("コピー(&C)")},
        {Entry, QStringLiteral("mnuSelectAll"), QStringLiteral("すべて選択(&A)")},
        {Separator, QStringLiteral("mnufilesep2"), {}},
        {Entry, QStringLiteral("mnuFind"), QStringLiteral("表示内容中の文字列検索(&F)...")},

        {Menu, QStringLiteral("mnuView"), QStringLiteral("表示(&V)")},
        {Entry, QStringLiteral("mnuGoBack"), QStringLiteral("前に戻る(&B)")},
        {Entry, QStringLiteral("mnuGoForward"), QStringLiteral("次に進む(&F)")},
        {Entry, QStringLiteral("mnuGoHome"), QStringLiteral("ホーム ページ(&H)")},
        {Entry, QStringLiteral("mnuCancel"), QStringLiteral("中止(&P)")},
        {Entry, QStringLiteral("mnuReflesh"), QStringLiteral("最新の情報に更新(&R)")},
        {Separator, QStringLiteral("mnufilesep3"), {}},
        {Entry, QStringLiteral("mnuHideListBox"), QStringLiteral("見出し語リストボックスを消す(&U)"), true},

        {Menu, QStringLiteral("mnuSearch"), QStringLiteral("検索(&S)")},
        {Entry, QStringLiteral("mnuIncSrch"), QStringLiteral("インクリメンタル検索(&I)"), true},
        {Separator, QStringLiteral("mnufilesep4"), {}},
        {Entry, QStringLiteral("mnuPreSrch"), QStringLiteral("前方一致検索(&P)"), true},
        {Entry, QStringLiteral("mnuMidSrch"), QStringLiteral("中間一致検索(&M)"), true},
        {Entry, QStringLiteral("mnuPostSrch"), QStringLiteral("後方一致検索(&O)"), true},
        {Separator, QStringLiteral("mnufilesep5"), {}},
        {Entry, QStringLiteral("mnuWildCard"), QStringLiteral("ワイルドカード検索(&W)"), true},
        {Entry, QStringLiteral("mnuWildCardBuilder"), QStringLiteral("ワイルドカードビルダ(&B)...")},
        {Separator, QStringLiteral("mnufilesep6"), {}},
        {Entry, QStringLiteral("mnuAddSearchCondition"), QStringLiteral("複合検索ビルダ(&K)...")},
        {Separator, QStringLiteral("mnufilesep7"), {}},
        {Entry, QStringLiteral("mnuTxtInMeaning"), QStringLiteral("訳語項目中の文字列検索(&D)"), true},
        {Entry, QStringLiteral("mnuTxtInExample"), QStringLiteral("用例項目中の文字列検索(&E)"), true},
        {Separator, QStringLiteral("mnufilesep8"), {}},
        {Entry, QStringLiteral("mnuHistory"), QStringLiteral("マイ ワードブック(&Y)...")},
        {Separator, QStringLiteral("mnufilesep9"), {}},
        {Entry, QStringLiteral("mnuSrchWebSite"), QStringLiteral("ウエブサイトの検索(&S)")},

        {Menu, QStringLiteral("mntKindOfSrch"), QStringLiteral("検索対象(&R)")},
        {Entry, QStringLiteral("mnuSrchFromAll"), QStringLiteral("単語と熟語の両方を検索(&B)"), true},
        {Entry, QStringLiteral("mnuSrchFromWord"), QStringLiteral("単語を検索(&W)"), true},
        {Entry, QStringLiteral("mnuSrchFromPhrase"), QStringLiteral("熟語を検索(&P)"), true},

        {Menu, QStringLiteral("mnuTool"), QStringLiteral("ツール(&T)")},
        {Entry, QStringLiteral("mnuDicAdd"), QStringLiteral("辞書設定(&A)...")},
        {Separator, QStringLiteral("mnufilesep10"), {}},
        {Entry, QStringLiteral("mnuColorSel"), QStringLiteral("フォントと色の設定(&F)...")},
        {Separator, QStringLiteral("mnufilesep11"), {}},
        {Entry, QStringLiteral("mnuListSettings"), QStringLiteral("検索結果のリスト件数設定(&L)...")},
        {Separator, QStringLiteral("mnufilesep12"), {}},
        {Entry, QStringLiteral("mnuSpeakingSetting"), QStringLiteral("キャラクタの設定(&S)...")},

        {Menu, QStringLiteral("mnuHelp"), QStringLiteral("ヘルプ(&H)")},
        {Entry, QStringLiteral("mnuTopicSearch"), QStringLiteral("トピックの検索(&H)")},
        {Separator, QStringLiteral("mnufilesep13"), {}},
        {Entry, QStringLiteral("mnuAbout"), QStringLiteral("バージョン情報(&A)...")},

        {Menu, QStringLiteral("mPopup"), QStringLiteral("Popup")},
        {Entry, QStringLiteral("mnuSpeakKeyWord"), QStringLiteral("見出し語の英文発音")},
        {Entry, QStringLiteral("mnuSpeakSelectedArea"), QStringLiteral("選択範囲の英文発音")},
        {Entry, QStringLiteral("mCancel"), QStringLiteral("キャンセル")},
    };
    return table;
}

QString PictureToolTip(int number)
{
    static const std::array toolTips{
        QStringLiteral("検索開始"),
        QStringLiteral("インクリメンタル検索"),
        QStringLiteral("前方一致検索"),
        QStringLiteral("中間一致検索"),
        QStringLiteral("後方一致検索"),
        QStringLiteral("ワイルドカード検索"),
        QStringLiteral("訳語項目中の文字列検索"),
        QStringLiteral("用例項目中の文字列検索"),
        QStringLiteral("ワイルドカードビルダ"),
        QStringLiteral("マイ ワードブック"),
        QStringLiteral("英文読み上げ"),
        QStringLiteral("選択されたテキストをクリップボードにコピー"),
        QStringLiteral("クリップボードの内容を検索語入力ボックスへ貼り付け"),
        QStringLiteral("表示内容中の文字列検索"),
        QStringLiteral("前の30件の内容表示"),
        QStringLiteral("次の30件の内容表示"),
        QStringLiteral("複合検索ビルダ"),
        QStringLiteral("次ページの内容表示"),
        QStringLiteral("前ページの内容表示"),
        QStringLiteral("前ページの内容表示"),
        QStringLiteral("次ページの内容表示"),
        QStringLiteral("インターネット"),
        QStringLiteral("前のページ戻る"),
        QStringLiteral("先へ進む"),
        QStringLiteral("中止"),
        QStringLiteral("更新"),
        QStringLiteral("ホーム"),
        QStringLiteral("お気に入り"),
        QStringLiteral("英文読み上げ ダイアログ"),
    };
    return toolTips.at(static_cast<std::size_t>(number));
}

QString StopToolTip() { return QStringLiteral("検索中断"); }
