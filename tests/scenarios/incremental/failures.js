// What goes wrong is told in a box, and the next key works again.
const dictionary = tempDir() + "/lost.mdb";
const rows = [["ant", null, 1, "蟻", null], ["bee", null, 1, "蜂", null]];
makeDictionary(dictionary, rows);
setCatalogue([{name: "虫", path: dictionary, selected: true}]);
start();

const tell = (action, what) => {
    answer("OK");
    action();
    const shown = boxes();
    check(shown.length, 1, what + ": one box");
    return shown[0] || {};
};
const missing = drivePath(dictionary) +
    "\r\n\r\n上記の辞書データベースが存在しないかレコードが一件も登録されていません。\r\n" +
    "また、パスが変更されている可能性もあります。\r\n" +
    "メニューバーの [ツール]から [辞書設定] を選んで確認して下さい。";
const checkMissing = (action, what) => {
    const box = tell(action, what);
    check(box.title, "設定辞書「虫」の辞書データベースなし", what + ": the title names the dictionary");
    check(box.text, missing, what + ": the text names the file");
    check(box.icon, 16, what + ": critical");
    check(box.beep, 16, what + ": with its beep");
    check(box.buttons, ["OK"], what + ": to be read");
};
const checkGeneric = (action, text, what) => {
    const box = tell(action, what);
    check(box.title, "エラー", what + ": the title");
    check(box.text, text, what + ": the text");
    check(box.icon, 0, what + ": no icon");
    check(box.beep, 0, what + ": no beep");
};
const type = character => () => typeText("frmFind.txtFind", character);

typeText("frmFind.txtFind", "a");
const moved = dictionary + ".away";
writeBytes(moved, readBytes(dictionary));
remove(dictionary);
checkMissing(type("n"), "a file that is gone");
check(text("frmFind.txtFind"), "an", "the text stays");
check(items("frmFind.List1"), ["ant", "bee"], "the list too");
check(exists(dictionary), false, "nothing was created in its place");
checkMissing(() => clickRow("frmFind.List1", 1), "a click");
check(state("ListClickActive"), 0, "which is over all the same");
checkMissing(() => menu("mnuSrchFromWord"), "the limited search");
check(items("frmFind.List1"), [], "its list was emptied first");
check(pointer(), 0, "the pointer is the usual one");
setText("frmFind.txtFind", "");
menu("mnuSrchFromAll");
check(boxes(), [], "an empty box asks for nothing");

writeText(dictionary, "no dictionary at all, just some text in a file", "UTF-8");
checkMissing(type("a"), "a file that is no dictionary");
writeBytes(dictionary, "");
checkMissing(type("n"), "an empty file");
check(size(dictionary), 0, "which stays as it was");

makeDictionary(dictionary);
checkMissing(type("t"), "an empty table");
check(state("ViewConnection"), true, "what was open stays open until the next search");
checkMissing(type("s"), "and again");
menu("mnuSrchFromPhrase");
check(items("frmFind.List1"), [], "the limited search just finds nothing there");
check(boxes(), [], "without a box");
menu("mnuIncSrch");
menu("mnuSrchFromAll");

makeDictionary(dictionary, rows);
setText("frmFind.txtFind", "");
for (const operation of ["Open", "Seek", "MoveNext", "Close"]) {
    failNext(operation, -2147467259);
    checkMissing(type("b"), operation);
    setText("frmFind.txtFind", "");
}
failNext("Seek", 5);
checkMissing(type("b"), "an invalid call");
setText("frmFind.txtFind", "");
failNext("write", 61);
checkGeneric(type("a"),
    "エラー番号  61 Wordmere でエラーが発生しました。\rディスクの空き容量が不足しています。", "a full disk");
typeText("frmFind.txtFind", "n");
check(items("frmFind.List1"), ["ant", "bee"], "after all that it works");
ok(page().indexOf("蟻") > 0, "page and all");
check(state("ViewConnection"), false, "and nothing stays open");
check(enabled("frmFind"), true, "the window takes input");
