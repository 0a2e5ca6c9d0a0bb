// A failure that no handler catches: one box, the state tidied up, and the program goes on.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["hen", null, 1, "雌鶏", null], ["hen house", null, 2, "鶏小屋", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}, {name: "二", path: dictionary}]);
start();
typeText("frmFind.txtFind", "hen");
writeBytes(appFile("ListData.dat"), "results");

const tidy = what => {
    check(pointer(), 0, what + ": the pointer is the default one");
    check(["SearchConnection", "SearchRecordset", "ViewConnection", "ViewRecordset"].map(state),
        [false, false, false, false], what + ": nothing is held open");
    check(visible("frmFind.Picture00"), false, what + ": no stop button");
    check(enabled("frmFind"), true, what + ": the window takes input");
    check(openForms(), ["frmFind"], what + ": no other form is left");
};

failNext("delete", 70);
let during = null;
answer(box => {
    during = [box.title, box.text, box.icon, box.buttons, box.defaultButton];
    tidy("during the box");
    return "OK";
});
menu("mnuIncSrch");
check(during, ["エラー", "エラー番号  70 Wordmere でエラーが発生しました。\r書き込みできません。", 16, ["OK"], "OK"], "the box");
check(boxes().length, 1, "it comes once");
tidy("behind the box");
check(text("frmFind.txtFind"), "hen", "typed text stays");
check(items("frmFind.List1"), ["hen", "hen house"], "the list too");
check(readBytes(appFile("ListData.dat")), "results", "the file that could not be deleted is whole");
typeText("frmFind.txtFind", " h");
check(items("frmFind.List1"), ["hen house"], "the search goes on");

// Numbers of the program's own, of the data engine, and one that no table knows.
for (const [number, shown, description] of [
    [5, "エラー番号  5 ", "プロシージャの呼び出し、または引数が不正です。"],
    [53, "エラー番号  53 ", "ファイルが見つかりません。"],
    [-2147467259, "エラー番号 -2147467259 ", null],
    [4711, "エラー番号  4711 ", "アプリケーション定義またはオブジェクト定義のエラーです。"],
]) {
    failNext("delete", number);
    answer("OK");
    menu("mnuIncSrch");
    const [box] = boxes();
    ok(box && box.text.startsWith(shown + "Wordmere でエラーが発生しました。\r"), "failure " + number + ": " + box.text);
    if (description !== null)
        check(box.text.slice(box.text.indexOf("\r") + 1), description, "its description");
}
menu("mnuIncSrch");
check(exists(appFile("ListData.dat")), false, "when nothing stands in the way the file goes");
check(text("frmFind.txtFind"), "", "and the box is cleared");

// The procedures that show records have their own box, which is no critical one.
failNext("Seek", -2147217887);
answer("OK");
setText("frmFind.txtFind", "h");
const [box] = boxes();
check([box.title, box.icon], ["エラー", 0], "the generic box of a search");
ok(box.text.startsWith("エラー番号 -2147217887 ADODB.Recordset でエラーが発生しました。\r") ||
    box.text.startsWith("エラー番号 -2147217887 Wordmere でエラーが発生しました。\r"), "its text: " + box.text);
for (const number of [-2147467259, 5]) {
    failNext("Seek", number);
    answer("OK");
    setText("frmFind.txtFind", "he" + number);
    check(boxes().map(shown => shown.title), ["設定辞書「英和」の辞書データベースなし"], number + " tells the missing dictionary");
}
setText("frmFind.txtFind", "hen");
check(items("frmFind.List1"), ["hen", "hen house"], "the next search works");
