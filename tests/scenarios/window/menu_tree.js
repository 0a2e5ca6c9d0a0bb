// Every menu and entry: caption, check mark and whether it can be chosen at the start.
start();

// [name, caption, enabled, checked]
const entries = [
    ["mnufile", "ファイル(&F)", true, false],
    ["mnuFileCreate", "辞書データベースの新規作成(&N)...", true, false],
    ["mnuOpen", "辞書データベースを開く(&O)...", false, false],
    ["mnuCnv", "データ変換(&R)...", true, false],
    ["mnuCompress", "辞書データベースの最適化(&C)...", false, false],
    ["mnuPageSettings", "ページ設定(&U)...", true, false],
    ["mnuPrint", "印刷(&P)...", true, false],
    ["mnuPrintView", "印刷プレビュー(&V)...", true, false],
    ["mnuExit", "終了(&X)", true, false],
    ["mnuEdit", "編集(&E)", true, false],
    ["mnuCopy", "コピー(&C)", true, false],
    ["mnuSelectAll", "すべて選択(&A)", true, false],
    ["mnuFind", "表示内容中の文字列検索(&F)...", true, false],
    ["mnuView", "表示(&V)", true, false],
    ["mnuGoBack", "前に戻る(&B)", false, false],
    ["mnuGoForward", "次に進む(&F)", false, false],
    ["mnuGoHome", "ホーム ページ(&H)", false, false],
    ["mnuCancel", "中止(&P)", false, false],
    ["mnuReflesh", "最新の情報に更新(&R)", false, false],
    ["mnuHideListBox", "見出し語リストボックスを消す(&U)", true, false],
    ["mnuSearch", "検索(&S)", true, false],
    ["mnuIncSrch", "インクリメンタル検索(&I)", true, true],
    ["mnuPreSrch", "前方一致検索(&P)", true, false],
    ["mnuMidSrch", "中間一致検索(&M)", true, false],
    ["mnuPostSrch", "後方一致検索(&O)", true, false],
    ["mnuWildCard", "ワイルドカード検索(&W)", true, false],
    ["mnuWildCardBuilder", "ワイルドカードビルダ(&B)...", false, false],
    ["mnuAddSearchCondition", "複合検索ビルダ(&K)...", false, false],
    ["mnuTxtInMeaning", "訳語項目中の文字列検索(&D)", true, false],
    ["mnuTxtInExample", "用例項目中の文字列検索(&E)", true, false],
    ["mnuHistory", "マイ ワードブック(&Y)...", false, false],
    ["mnuSrchWebSite", "ウエブサイトの検索(&S)", false, false],
    ["mntKindOfSrch", "検索対象(&R)", true, false],
    ["mnuSrchFromAll", "単語と熟語の両方を検索(&B)", true, true],
    ["mnuSrchFromWord", "単語を検索(&W)", true, false],
    ["mnuSrchFromPhrase", "熟語を検索(&P)", true, false],
    ["mnuTool", "ツール(&T)", true, false],
    ["mnuDicAdd", "辞書設定(&A)...", false, false],
    ["mnuColorSel", "フォントと色の設定(&F)...", false, false],
    ["mnuListSettings", "検索結果のリスト件数設定(&L)...", false, false],
    ["mnuSpeakingSetting", "キャラクタの設定(&S)...", false, false],
    ["mnuHelp", "ヘルプ(&H)", true, false],
    ["mnuTopicSearch", "トピックの検索(&H)", false, false],
    ["mnuAbout", "バージョン情報(&A)...", false, false],
    ["mnuSpeakKeyWord", "見出し語の英文発音", false, false],
    ["mnuSpeakSelectedArea", "選択範囲の英文発音", false, false],
    ["mCancel", "キャンセル", false, false],
];
for (const [name, words, isEnabled, isChecked] of entries) {
    check(caption(name), words, name + ": caption");
    check(enabled(name), isEnabled, name + (isEnabled ? " can be chosen" : " waits"));
    check(checked(name), isChecked, name + (isChecked ? " is checked" : " is not checked"));
    check(visible(name), true, name + " is visible");
}
check(caption("mPopup"), "Popup", "the pop-up menu");
check(visible("mPopup"), false, "is not in the menu bar");

const separators = [1, 20, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13];
for (const number of separators)
    check(caption("mnufilesep" + number), "", "separator " + number);

check(caption("frmFind"), "Wordmere", "the window's caption");
menu("mnuExit");
check(isOpen("frmFind"), false, "the exit closes the window");
check(boxes(), [], "without a question");
