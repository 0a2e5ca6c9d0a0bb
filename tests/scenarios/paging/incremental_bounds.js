// Paging where the ground is uncertain: namesakes, records that went, files that fail, no entries.
const dictionary = tempDir() + "/run.mdb";
const rows = [];
for (let i = 1; i <= 12; ++i)
    rows.push(["run", null, 1, "走" + i, null]);
makeDictionary(dictionary, rows);
setCatalogue([{name: "走", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05004050005001503000\r\n");
start();

const entries = () => (page().match(/sty3>[^<]*/g) || []).map(found => Number(found.slice(6)));
const back = () => mouseDown("frmFind.Picture19");
const forward = () => mouseDown("frmFind.Picture20");
const told = action => {
    answer("OK");
    action();
    const shown = boxes();
    check(shown.length, 1, "one box");
    return shown[0] || {};
};

typeText("frmFind.txtFind", "r");
check(entries(), [1, 2, 3, 4], "the first namesakes");
forward();
check(entries(), [5, 6, 7, 8], "the next ones");
forward();
forward();
check(entries(), [12], "the last one");
check(told(forward).text, "データの末尾に到達しました！", "no more");
back();
check(entries(), [8, 9, 10, 11], "and back");

// The first record of the page has gone.
deleteRow(dictionary, 8);
const box = told(forward);
check(box.title, "エラー", "its place is lost");
check(box.text, "エラー番号  3021 ADODB.Recordset でエラーが発生しました。\r現在のレコードがありません。", "which is told");
setText("frmFind.txtFind", "run");
forward();
check(entries(), [5, 6, 7, 9], "a new place goes on without the record");

// A lost dictionary.
const bytes = readBytes(dictionary);
remove(dictionary);
for (const page of [back, forward]) {
    const missing = told(page);
    check(missing.title, "設定辞書「走」の辞書データベースなし", "a file that is gone");
    check(missing.text, drivePath(dictionary) +
        "\r\n\r\n上記の辞書データベースが存在しないかレコードが一件も登録されていません。\r\n" +
        "また、パスが変更されている可能性もあります。\r\n" +
        "メニューバーの [ツール]から [辞書設定] を選んで確認して下さい。", "by its path");
    check([missing.icon, missing.beep], [16, 16], "critical");
}
writeBytes(dictionary, bytes);
forward();
check(entries(), [10, 11, 12], "the place was kept");

for (const [operation, number, title] of [
    ["MoveLast", -2147467259, "設定辞書「走」の辞書データベースなし"],
    ["Seek", 5, "設定辞書「走」の辞書データベースなし"],
    ["MoveNext", 6, "エラー"],
    ["write", 61, "エラー"],
]) {
    failNext(operation, number);
    check(told(forward).title, title, operation + " fails with " + number);
}
makeDictionary(dictionary);
check(told(forward).title, "設定辞書「走」の辞書データベースなし", "an emptied table");
exit();

// No entries a page: nothing to move by.
makeDictionary(dictionary, rows);
writeText(appFile("ListDefi.dat"), "05000050005001503000\r\n");
start();
check(toolTip("frmFind.Picture19"), "見出し語内容を0件前へ移動", "a page of none");
typeText("frmFind.txtFind", "r");
forward();
check(entries(), [], "stays empty");
check(state("PageFirstAutoID"), 1, "and where it is");
check(told(back).text, "データの先頭に到達しました！", "the bound is told all the same");
