// The pictures: tool tip, place, and what is shown and can be pressed at the start.
start();

// [number, tool tip, visible, enabled]
const pictures = [
    ["0", "検索開始", false, true],
    ["00", "検索中断", false, true],
    ["1", "インクリメンタル検索", true, true],
    ["2", "前方一致検索", true, true],
    ["3", "中間一致検索", true, true],
    ["4", "後方一致検索", true, true],
    ["5", "ワイルドカード検索", true, true],
    ["6", "訳語項目中の文字列検索", true, true],
    ["7", "用例項目中の文字列検索", true, true],
    ["8", "ワイルドカードビルダ", true, false],
    ["9", "マイ ワードブック", true, false],
    ["10", "英文読み上げ", true, false],
    ["11", "選択されたテキストをクリップボードにコピー", true, true],
    ["12", "クリップボードの内容を検索語入力ボックスへ貼り付け", true, true],
    ["13", "表示内容中の文字列検索", true, true],
    ["14", "前の30件の内容表示", false, true],
    ["15", "次の30件の内容表示", false, true],
    ["16", "複合検索ビルダ", true, false],
    ["17", "次ページの内容表示", false, true],
    ["18", "前ページの内容表示", false, true],
    ["19", "見出し語内容を15件前へ移動", true, true],
    ["20", "見出し語内容を15件先へ移動", true, true],
    ["21", "インターネット", true, true],
    ["22", "前のページ戻る", false, false],
    ["23", "先へ進む", false, false],
    ["24", "中止", false, false],
    ["25", "更新", false, false],
    ["26", "ホーム", false, false],
    ["27", "お気に入り", false, false],
    ["28", "英文読み上げ ダイアログ", true, false],
];
for (const [number, words, isVisible, isEnabled] of pictures) {
    const picture = "frmFind.Picture" + number;
    check(toolTip(picture), words, number + ": tool tip");
    check(visible(picture), isVisible, number + (isVisible ? " is shown" : " is hidden"));
    check(enabled(picture), isEnabled, number + (isEnabled ? " can be pressed" : " waits"));
    check(bounds(picture).width, 255, number + ": width");
    check(bounds(picture).height, 285, number + ": height to the pixel");
}
const leftOf = number => bounds("frmFind.Picture" + number).left;
check(leftOf(19), leftOf(14), "the entry pages stand in the place of the list pages");
check(leftOf(20), leftOf(15), "both of them");

// No two pictures that can be seen at the same time lie on each other, and all are in the window.
const seen = pictures.map(row => row[0]).filter(number => visible("frmFind.Picture" + number));
for (const number of seen)
    for (const other of seen)
        ok(number === other || Math.abs(leftOf(number) - leftOf(other)) >= 255 + 30,
            "pictures " + number + " and " + other + " stand apart");
ok(Math.max(...seen.map(leftOf)) + 255 <= bounds("frmFind").width, "all within the window");

// The ornament answers to nothing.
navigations();
hover("frmFind.Picture21");
mouseDown("frmFind.Picture21");
click("frmFind.Picture21");
check(navigations(), [], "picture 21 goes nowhere");
check(boxes(), [], "and says nothing");
check(status(), "Ready", "the status bar is as it was");

// A picture acts when the mouse goes down.
mouseDown("frmFind.Picture11");
check(execs(), [12], "copy");
mouseDown("frmFind.Picture1");
check(status(), "", "the incremental mode clears the status bar");
