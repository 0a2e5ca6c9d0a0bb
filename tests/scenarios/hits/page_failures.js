// The page of hits cannot be written: its boxes, and what stays until the next page.
const dictionary = tempDir() + "/fail.mdb";
makeDictionary(dictionary, Array.from({length: 4}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
setCatalogue([{name: "頁", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015050005000203000\r\n");
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
const missing = [["設定辞書「頁」の辞書データベースなし", drivePath(dictionary) +
    "\r\n\r\n上記の辞書データベースが存在しないかレコードが一件も登録されていません。\r\n" +
    "また、パスが変更されている可能性もあります。\r\nメニューバーの [ツール]から [辞書設定] を選んで確認して下さい。", 16, 16]];
const full = [["エラー", "エラー番号  61 Wordmere でエラーが発生しました。\rディスクの空き容量が不足しています。", 0, 0]];
const told = action => {
    navigations();
    answer("OK");
    action();
    return boxes().map(box => [box.title, box.text, box.icon, box.beep]);
};
const ways = {click: () => clickRow("frmFind.List1", 1), next: () => mouseDown("frmFind.Picture17")};

for (const [way, action] of Object.entries(ways))
    for (const [operation, number, expected] of [["Open", -2147467259, missing], ["Seek", -2147467259, missing], ["Seek", 5, missing],
        ["Close", -2147467259, missing], ["write", 61, full]]) {
        clickRow("frmFind.List1", 0);
        failNext(operation, number);
        check(told(action), expected, way + " " + operation + " " + number + ": the box");
        check([pointer(), state("ViewConnection")], [operation === "Close" ? 0 : 11, operation !== "write"],
            way + " " + operation + ": hourglass and table stay as they were");
        check(text("frmFind.txtFind"), "w", "the text stays");
        check(items("frmFind.List1").length, 4, "the list too");
    }
clickRow("frmFind.List1", 2);
check([pointer(), state("ViewConnection"), page().match(/訳\d/g)], [0, false, ["訳3", "訳4"]], "the next page puts all right");

// A stop is cleared by the first page that is written whole behind it.
atYield(2, () => { click("frmFind.Picture00"); failNext("write", 61); });
check(told(() => press("frmFind.txtFind", "Enter")), full, "a full disk behind a stop");
check([state("HitCount"), items("frmFind.List1"), state("StopRequested"), pointer()], [2, ["w1", "w2"], 1, 11], "the stop stands");
press("frmFind.txtFind", "Enter");
check(status(), "該当するすべての見出し語を抽出する前に処理の中断を選択しました。表示可能な見出し語は0件です。", "before the first row");
check([state("HitCount"), items("frmFind.List1"), size(appFile("ListData.dat"))], [0, [], 0], "nothing is listed");
check(page(), readText(appFile("sscDefi.dat")) + "</BODY></HTML>\r\n", "the page has no entry");
check([state("StopRequested"), pointer()], [0, 0], "and clears the stop");
for (const picture of ["14", "15", "17", "18"])
    check(visible("frmFind.Picture" + picture), false, "no picture " + picture);
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1").length, 4, "the next search is whole");
