// Empty fields, numbers that overflow, and a file that cannot be read or written.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run", null, 1, "走る", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const file = appFile("ListDefi.dat"), standard = "05015050005001503000\r\n";
const expectFailure = (number, what) => {
    const shown = boxes();
    check(shown.map(box => [box.title, box.icon]), [["エラー", 16]], what);
    ok(shown.length === 1 && shown[0].text.startsWith("エラー番号  " + number + " Wordmere でエラーが発生しました。"),
        what + ": failure " + number);
};
const ways = [["保存", () => click("frmListSettings.Command1")], ["閉じる", () => click("frmListSettings.Command2")],
    ["the frame", () => closeForm("frmListSettings")]];

// An empty number field.
typeText("frmFind.txtFind", "r");
menu("mnuListSettings");
for (const name of ["Text1", "Combo1", "Text4", "Text2", "Combo2", "Text3"]) {
    const before = text("frmListSettings." + name);
    setText("frmListSettings." + name, "");
    for (const [what, act] of ways) {
        answer("OK");
        act();
        expectFailure(13, name + " empty, " + what);
        check([isOpen("frmListSettings"), enabled("frmFind")], [true, false], "the dialog stays");
    }
    setText("frmListSettings." + name, before);
}

// A number beyond 16 bits: the range test comes first with one button, the overflow with the others.
setText("frmListSettings.Text2", "32768");
answer("OK");
click("frmListSettings.Command1");
check(boxes().map(box => box.text), ["条件検索時の「見出し語の最大リスト件数」は最大30000件です。"], "out of range");
for (const [what, act] of ways.slice(1)) {
    answer("OK");
    act();
    expectFailure(6, "beyond 16 bits, " + what);
    check(isOpen("frmListSettings"), true, "the dialog stays");
}
setText("frmListSettings.Text2", "32767");
answer("キャンセル");
closeForm("frmListSettings");
check(boxes().map(box => box.title), ["変更確認"], "the greatest number is asked about");
setText("frmListSettings.Text2", "500");
setText("frmListSettings.Combo1", "99999999999");
answer("OK");
click("frmListSettings.Command1");
expectFailure(6, "a box has no limit of digits");
setText("frmListSettings.Combo1", "15");
check([readBytes(file), text("frmFind.txtFind"), items("frmFind.List1")], [standard, "r", ["run"]], "nothing was written or emptied");

// The file cannot be written.
for (const [operation, number] of [["delete", 70], ["rename", 70], ["write", 61]]) {
    setText("frmListSettings.Text1", "60");
    failNext(operation, number);
    answer("OK");
    click("frmListSettings.Command1");
    expectFailure(number, operation);
    check(readBytes(file), standard, "the old line is whole");
    check([state("IncListCount"), isOpen("frmListSettings"), text("frmListSettings.Text1")], [50, true, "60"],
        "the old size is in use, and what was typed stays");
}
answer("はい");
click("frmListSettings.Command2");
check(boxes().map(box => box.title), ["変更確認"], "it is still a change");
check([readBytes(file), state("IncListCount"), isOpen("frmListSettings")], ["06015050005001503000\r\n", 60, false], "and can be saved");
exit();

// Files that are missing, cut, strange or cannot be read.
const load = bytes => {
    remove(file);
    start();
    if (bytes === null)
        remove(file);
    else
        writeBytes(file, bytes);
};
for (const [bytes, options, what] of [
    ["", [true, false, false], "an empty file"],
    ["0501505000500150300", [true, false, false], "a line cut short"],
    ["05015050005001503001", [false, true, false], "a line without an end"],
    ["05015050005001503002\r\nmore\r\n", [false, false, true], "a second line"],
    ["05015050005001503007\r\n", [true, false, false], "a target that there is not"],
    [null, [true, false, false], "no file"],
]) {
    load(bytes);
    menu("mnuListSettings");
    check(["Option1", "Option2", "Option3"].map(name => checked("frmListSettings." + name)), options, what);
    check(text("frmListSettings.Text1"), "50", "the sizes are those in use");
    click("frmListSettings.Command2");
    check([isOpen("frmListSettings"), boxes()], [false, []], "closed without a question: " + what);
    exit();
}
// A file that was changed meanwhile differs from what is in use.
load("06015050005001503000\r\n");
menu("mnuListSettings");
check(text("frmListSettings.Text1"), "50", "the size in use");
answer("いいえ");
click("frmListSettings.Command2");
check(boxes().map(box => box.title), ["変更確認"], "differs from the file's");
for (const [bytes, number] of [["05x15050005001503000\r\n", 13], ["05015050999991503000\r\n", 6]]) {
    writeBytes(file, bytes);
    answer("OK");
    menu("mnuListSettings");
    expectFailure(number, "a line that holds no numbers");
    check([isOpen("frmListSettings"), enabled("frmFind")], [false, true], "the load is undone");
}
failNext("read", 57);
answer("OK");
menu("mnuListSettings");
expectFailure(57, "a device that fails");
check([isOpen("frmListSettings"), enabled("frmFind")], [false, true], "the load is undone");
exit();

// Sizes in use that the fields would not take.
writeBytes(file, "99999999327679999991\r\n");
start();
menu("mnuListSettings");
check(["Text1", "Combo1", "Text4", "Combo2", "Text2", "Text3"].map(name => text("frmListSettings." + name)),
    ["999", "99", "999", "99", "32767", "9999"], "are shown as they are");
click("frmListSettings.Command2");
check([isOpen("frmListSettings"), boxes()], [false, []], "and are no change");
