// WordBook.dat: strange files, and what the end leaves of them.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run", null, 1, "走る", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const book = appFile("WordBook.dat");
const list = "frmHistory.List1";
const field = bytes => bytes + " ".repeat(255 - bytes.length);
const told = {57: "デバイス入出力エラーです。", 61: "ディスクの空き容量が不足しています。", 70: "書き込みできません。"};
const expectFailure = (number, what) => {
    const shown = boxes();
    check(shown.map(box => [box.title, box.icon]), [["エラー", 16]], what);
    ok(shown.length === 1 && shown[0].text.startsWith("エラー番号  " + number + " "), what + ": its number");
};
start();
for (const [bytes, rows, what] of [
    ["", [], "zero length"],
    [field("a") + field("b"), ["a", "b"], "two records"],
    [field("a") + field("bcd").slice(0, 127), ["a"], "a tail of less than half a record"],
    [field("a") + field("bcd").slice(0, 128), ["a", "bcd"], "a tail of half a record counts as one"],
    ["ab", [], "two bytes"],
    [" ".repeat(255) + field("x"), ["", "x"], "a record without a text"],
    ["\x00".repeat(510), ["", ""], "records of NUL"],
    [field("\x81\x40 a \x81\x40"), ["a"], "blanks around"],
    ["a".repeat(254) + "\x8c" + field("\xea"), ["a".repeat(254) + "・", "・"], "a character cut in two"],
    [field("caf&#xE9;") + field("&#x26;"), ["café", "&"], "references"],
    ["\xff".repeat(255), ["・".repeat(255)], "bytes that are no text"],
    ["\x8c\xea".repeat(127) + " ", ["語".repeat(127)], "a full record"],
]) {
    writeBytes(book, bytes);
    menu("mnuHistory");
    check(items(list), rows, what);
    click("frmHistory.Command3");
    check([isOpen("frmHistory"), enabled("frmFind")], [false, true], "closed");
    if (rows.length === 0)
        check(exists(book), false, "an empty list leaves no file: " + what);
    else
        check(size(book), 255 * rows.length, "each row is a record: " + what);
    if (rows.length > 0) {
        menu("mnuHistory");
        check(items(list).length, rows.length, "read again: " + what);
        click("frmHistory.Command3");
    }
}

// A word longer than a record is cut on the boundary of a character.
remove(book);
menu("mnuHistory");
answerInput("語".repeat(200));
click("frmHistory.Command1");
answerInput("é".repeat(60));
click("frmHistory.Command1");
boxes();
click("frmHistory.Command3");
check(readBytes(book), "\x8c\xea".repeat(127) + " " + field("&#xE9;".repeat(42)), "cut, never torn");
menu("mnuHistory");
check(items(list), ["語".repeat(127), "é".repeat(42)], "read again");

// It cannot be written: told, the dialog goes, the old file is whole, the main window goes on.
const before = readBytes(book);
answerInput("new");
click("frmHistory.Command1");
boxes();
for (const [operation, number] of [["delete", 70], ["rename", 70], ["write", 61]]) {
    if (!isOpen("frmHistory"))
        menu("mnuHistory");
    failNext(operation, number);
    answer("OK");
    click("frmHistory.Command3");
    expectFailure(number, operation);
    check(readBytes(book), before, "the old file is whole");
    check([isOpen("frmHistory"), enabled("frmFind")], [false, true], "the main window goes on");
}
makeReadOnly(book);
menu("mnuHistory");
check(items(list).length, 2, "a read-only book can be read");
answer("OK");
closeForm("frmHistory");
expectFailure(70, "read-only");
check(readBytes(book), before, "the file is whole");
check([isOpen("frmHistory"), enabled("frmFind")], [false, true], "the main window goes on, by the frame too");
menu("mnuHistory");
for (let i = 0; i < 2; ++i) {
    clickRow(list, 0);
    answer("はい");
    click("frmHistory.Command2");
}
boxes();
answer("OK");
closeForm("frmHistory");
expectFailure(70, "an emptied book that cannot be deleted");
check(readBytes(book), before, "stays");
check(enabled("frmFind"), true, "and the main window goes on");

// It cannot be read or made: the dialog does not come.
failNext("read", 57);
answer("OK");
menu("mnuHistory");
expectFailure(57, "a device that fails");
check([isOpen("frmHistory"), enabled("frmFind")], [false, true], "the load is undone");
check(readBytes(book), before, "the file is whole");
typeText("frmFind.txtFind", "run");
check(items("frmFind.List1"), ["run"], "the search works");
