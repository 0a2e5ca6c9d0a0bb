// As many hits as the search keeps, and more: the message, in the words of the mode.
const dictionary = tempDir() + "/many.mdb";
makeDictionary(dictionary, Array.from({length: 5}, (_, i) => ["xa" + i + "x", null, 1, "訳x", "例x"]));
setCatalogue([{name: "多", path: dictionary, selected: true}]);
const startWith = maximum => {
    writeText(appFile("ListDefi.dat"), "05015050" + String(maximum).padStart(5, "0") + "1503000\r\n");
    start();
};
const narrower = {true: "見出し語の検索条件をさらに絞り込むためには「ワイルドカード検索」や「複合検索」も利用できます。",
    false: "見出し語の検索条件をさらに絞り込むためには「複合検索」も利用できます。"};
const message = (n, mode) => "現在設定されている見出し語の最大リスト数の" + n + "件を超える見出し語を検出ました。\r\n\r\n" +
    "ここで表示可能な見出し語は昇順で上位" + n + "件迄です。検索条件を変更してさらに絞り込むことをお勧めします。\r\n\r\n" +
    narrower[mode <= 3] + "\r\n\r\n" +
    "また、リスト件数を変更する場合は、[ツール] ＞ [検索結果のリスト件数設定] を選択しておこなって下さい。";
const modes = [["mnuPreSrch", "x"], ["mnuMidSrch", "a"], ["mnuPostSrch", "x"], ["mnuTxtInMeaning", "x"], ["mnuTxtInExample", "x"],
    ["mnuWildCard", "x%"]];
const search = ([mode, typed]) => {
    menu(mode);
    setText("frmFind.txtFind", typed);
    press("frmFind.txtFind", "Enter");
    return items("frmFind.List1").length;
};

for (const maximum of [3, 5]) {
    startWith(maximum);
    modes.forEach((mode, i) => {
        let during;
        answer(box => {
            during = [items("frmFind.List1"), status(), visible("frmFind.Picture00"), state("SearchRecordset")];
            return "OK";
        });
        statements();
        check(search(mode), maximum, mode[0] + ": as many as are kept");
        const [box] = boxes();
        check(box.title, "条件検索－最大リスト上限件数超過", mode[0] + ": the title");
        check(box.text, message(maximum, i + 1), mode[0] + ": the text");
        check([box.icon, box.beep, box.buttons], [48, 48, ["OK"]], mode[0] + ": an exclamation with its beep");
        check(during, [[], "検索中...", true, true], mode[0] + ": shown before the list");
        check(status(), maximum + "件の見出し語が見つかりました。", mode[0] + ": then the count");
        check(statements()[0].slice(0, 13), "SELECT TOP " + maximum + " ", mode[0] + ": the engine stops there");
        check(size(appFile("ListData.dat")), maximum * 520, mode[0] + ": the store holds them");
    });
    exit();
}
startWith(6);
modes.forEach(mode => check(search(mode), 5, mode[0] + ": fewer than are kept"));
check(boxes(), [], "say nothing");

// Given up while the message is told.
menu("mnuIncSrch");
exit();
startWith(3);
menu("mnuPreSrch");
setText("frmFind.txtFind", "x");
answer(() => { atYield(1, () => press("frmFind.txtFind", "Esc")); return "OK"; });
press("frmFind.txtFind", "Enter");
check([items("frmFind.List1"), status(), text("frmFind.txtFind")], [[], "Ready", ""], "Esc right behind it gives up");
check(exists(appFile("ListData.dat")), false, "without a trace");
check([pointer(), visible("frmFind.Picture0"), visible("frmFind.Picture00"), state("StopRequested")], [0, true, false, 0], "ready");
