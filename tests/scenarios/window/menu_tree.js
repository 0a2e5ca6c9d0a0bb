// Every menu, entry and picture: words, check mark, what is shown and what can be chosen, at the start and
// in every mode with every target.
const dictionary = tempDir() + "/three.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["cat nap", null, 2, "うたた寝", null], ["dog", null, 1, "犬", null]]);
setCatalogue([{name: "三", path: dictionary, selected: true}]);
start();

// [name, caption, enabled, checked]
const entries = [
    ["mnufile", "ファイル(&F)", true, false],
    ["mnuFileCreate", "辞書データベースの新規作成(&N)...", true, false],
    ["mnuOpen", "辞書データベースを開く(&O)...", true, false],
    ["mnuCnv", "データ変換(&R)...", true, false],
    ["mnuCompress", "辞書データベースの最適化(&C)...", true, false],
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
    ["mnuWildCardBuilder", "ワイルドカードビルダ(&B)...", true, false],
    ["mnuAddSearchCondition", "複合検索ビルダ(&K)...", true, false],
    ["mnuTxtInMeaning", "訳語項目中の文字列検索(&D)", true, false],
    ["mnuTxtInExample", "用例項目中の文字列検索(&E)", true, false],
    ["mnuHistory", "マイ ワードブック(&Y)...", true, false],
    ["mnuSrchWebSite", "ウエブサイトの検索(&S)", true, false],
    ["mntKindOfSrch", "検索対象(&R)", true, false],
    ["mnuSrchFromAll", "単語と熟語の両方を検索(&B)", true, true],
    ["mnuSrchFromWord", "単語を検索(&W)", true, false],
    ["mnuSrchFromPhrase", "熟語を検索(&P)", true, false],
    ["mnuTool", "ツール(&T)", true, false],
    ["mnuDicAdd", "辞書設定(&A)...", true, false],
    ["mnuColorSel", "フォントと色の設定(&F)...", true, false],
    ["mnuListSettings", "検索結果のリスト件数設定(&L)...", true, false],
    ["mnuSpeakingSetting", "キャラクタの設定(&S)...", true, false],
    ["mnuHelp", "ヘルプ(&H)", true, false],
    ["mnuTopicSearch", "トピックの検索(&H)", true, false],
    ["mnuAbout", "バージョン情報(&A)...", true, false],
    ["mnuSpeakKeyWord", "見出し語の英文発音", true, false],
    ["mnuSpeakSelectedArea", "選択範囲の英文発音", true, false],
    ["mCancel", "キャンセル", true, false],
];

// [number, tool tip, enabled at the start]
const pictures = [
    ["0", "検索開始", true],
    ["00", "検索中断", true],
    ["1", "インクリメンタル検索", true],
    ["2", "前方一致検索", true],
    ["3", "中間一致検索", true],
    ["4", "後方一致検索", true],
    ["5", "ワイルドカード検索", true],
    ["6", "訳語項目中の文字列検索", true],
    ["7", "用例項目中の文字列検索", true],
    ["8", "ワイルドカードビルダ", true],
    ["9", "マイ ワードブック", true],
    ["10", "英文読み上げ", true],
    ["11", "選択されたテキストをクリップボードにコピー", true],
    ["12", "クリップボードの内容を検索語入力ボックスへ貼り付け", true],
    ["13", "表示内容中の文字列検索", true],
    ["14", "前の30件の内容表示", true],
    ["15", "次の30件の内容表示", true],
    ["16", "複合検索ビルダ", true],
    ["17", "次ページの内容表示", true],
    ["18", "前ページの内容表示", true],
    ["19", "見出し語内容を15件前へ移動", true],
    ["20", "見出し語内容を15件先へ移動", true],
    ["21", "インターネット", true],
    ["22", "前のページ戻る", true],
    ["23", "先へ進む", true],
    ["24", "中止", true],
    ["25", "更新", true],
    ["26", "ホーム", true],
    ["27", "お気に入り", true],
    ["28", "英文読み上げ ダイアログ", true],
];

// [number, menu, picture, what the window's caption says behind the program's name]
const modes = [
    [0, "mnuIncSrch", "Picture1", ""],
    [1, "mnuPreSrch", "Picture2", "- 前方一致検索"],
    [2, "mnuMidSrch", "Picture3", "- 中間一致検索"],
    [3, "mnuPostSrch", "Picture4", "- 後方一致検索"],
    [4, "mnuTxtInMeaning", "Picture6", "- 訳語項目中の文字列検索"],
    [5, "mnuTxtInExample", "Picture7", "- 用例項目中の文字列検索"],
    [6, "mnuWildCard", "Picture5", "- ワイルドカード検索"],
];
// The menu's captions of the limited targets have a half-width colon, those of the label a full-width one.
const targets = [
    ["mnuSrchFromAll", "単熟語：", "単熟語："],
    ["mnuSrchFromWord", "単語:", "単語："],
    ["mnuSrchFromPhrase", "熟語:", "熟語："],
];

const shownAlways = ["1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "16", "21", "28"];
const isShown = (number, mode, target) => shownAlways.includes(number) ||
    (number === "0" && mode !== 0) || (["19", "20"].includes(number) && mode === 0 && target === 0);

const walk = (mode, target, label, what) => {
    for (const [name, words, isEnabled, isChecked] of entries) {
        const inMode = modes.find(each => each[1] === name);
        const inTarget = targets.findIndex(each => each[0] === name);
        const expected = {
            caption: words,
            enabled: isEnabled,
            checked: inMode ? inMode[0] === mode : inTarget >= 0 ? inTarget === target : isChecked,
            visible: true,
        };
        check({caption: caption(name), enabled: enabled(name), checked: checked(name), visible: visible(name)},
            expected, what + ": " + name);
    }
    for (const [number, words, isEnabled] of pictures) {
        const picture = "frmFind.Picture" + number;
        const expected = {
            toolTip: words,
            enabled: isEnabled,
            visible: isShown(number, mode, target),
        };
        check({toolTip: toolTip(picture), enabled: enabled(picture), visible: visible(picture)},
            expected, what + ": picture " + number);
    }
    check(state("SearchMode"), mode, what + ": the mode");
    check(state("SearchTarget"), target, what + ": the target");
    check(caption("frmFind"), "Wordmere" + modes[mode][3], what + ": the window's caption");
    check(text("frmFind.Label1"), label, what + ": the label");
};

walk(0, 0, "単熟語：", "at the start");
check(caption("mPopup"), "Popup", "the pop-up menu");
check(visible("mPopup"), false, "is not in the menu bar");
const separators = [1, 20, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13];
for (const number of separators)
    check(caption("mnufilesep" + number), "", "separator " + number);

// Every mode by its entry and by its picture, from every target, and every target from within it.
const home = drivePath(appFile("home.html"));
let label = "単熟語：";
for (const [mode, entry, picture] of modes)
    for (const [way, enter] of [["entry", () => menu(entry)], ["picture", () => mouseDown("frmFind." + picture)]])
        for (let target = 0; target < 3; ++target) {
            const what = entry + " by its " + way + ", target " + target;
            menu(targets[target][0]);
            label = targets[target][1];
            setText("frmFind.txtFind", "cat");
            focusOn("frmFind.List1");
            navigations();
            enter();
            walk(mode, target, label, what);
            check(status(), "", what + ": an empty status bar");
            check(items("frmFind.List1"), [], what + ": an empty list");
            check(navigations().pop(), home, what + ": the page");
            ok(page().includes("<FONT COLOR"), what + ": is blank");
            check(text("frmFind.txtFind"), mode === 0 ? "" : "cat", what + ": the text");
            check(focused(), "frmFind.txtFind", what + ": has the focus");
        }
for (const [mode, entry] of modes) {
    menu(entry);
    for (const target of [1, 2, 0, 2, 1, 0]) {
        menu(targets[target][0]);
        walk(mode, target, targets[target][1], entry + ", then " + targets[target][0]);
    }
    for (const target of [1, 2, 0]) {
        click("frmFind.Label1");
        walk(mode, target, targets[target][2], entry + ", then a click on the label");
    }
}
check(boxes(), [], "nothing was asked or told");

menu("mnuExit");
check(isOpen("frmFind"), false, "the exit closes the window");
check(boxes(), [], "without a question");
