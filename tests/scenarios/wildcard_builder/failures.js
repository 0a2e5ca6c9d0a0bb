// What can go wrong: the default handling tells it, and nothing is lost.
const history = appFile("Wildhist.dat");
const told = {6: "オーバーフローしました。", 61: "ディスクの空き容量が不足しています。", 70: "書き込みできません。"};
const expectFailure = (number, what) => check(boxes().map(box => [box.title, box.text, box.icon]),
    [["エラー", "エラー番号  " + number + " Wordmere でエラーが発生しました。\r" + told[number], 16]], what);
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ab", null, 1, "語", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();

// A pattern of more than 255 characters.
menu("mnuWildCardBuilder");
setText("frmSearch.Text1", "a".repeat(253));
click("frmSearch.Command1");
check(text("frmFind.txtFind"), "a".repeat(253) + "_%", "255 characters with the open gap");
menu("mnuWildCardBuilder");
setText("frmSearch.Text1", "語".repeat(400));
answer("OK");
click("frmSearch.Command1");
expectFailure(6, "a longer one");
check(isOpen("frmSearch"), true, "the dialog stays");
check(text("frmSearch.Text1"), "語".repeat(400), "with what was typed");
check(text("frmFind.txtFind"), "a".repeat(253) + "_%", "the entry box stays");
setText("frmSearch.Text1", "%".repeat(85));
answer("OK");
press("frmSearch.Text1", "Enter");
expectFailure(6, "literal signs count three");
setText("frmSearch.Text1", "ab");
press("frmSearch.Text1", "Enter");
check([isOpen("frmSearch"), text("frmFind.txtFind")], [false, "ab_%"], "a shorter one is taken");
check(readBytes(history), "ab\r\n\r\n\r\n\r\n\r\n", "and saved");

// The file cannot be written: the dialog closes, the pattern is there, the old file is whole.
for (const [operation, number] of [["delete", 70], ["rename", 70], ["write", 61]]) {
    menu("mnuWildCardBuilder");
    setText("frmSearch.Text1", "new");
    failNext(operation, number);
    answer("OK");
    click("frmSearch.Command1");
    expectFailure(number, operation);
    check(text("frmFind.txtFind"), "new_%", "the pattern is written");
    check([isOpen("frmSearch"), enabled("frmFind")], [false, true], "the main window goes on");
    check(readBytes(history), "ab\r\n\r\n\r\n\r\n\r\n", "the old file is whole");
}
makeReadOnly(history);
menu("mnuWildCardBuilder");
check(text("frmSearch.Text1"), "ab", "a read-only file is read");
setText("frmSearch.Text1", "new");
answer("OK");
closeForm("frmSearch");
expectFailure(70, "and told at the end");
check([isOpen("frmSearch"), enabled("frmFind")], [false, true], "the main window goes on");
menu("mnuWildCardBuilder");
press("frmSearch.Text1", "Esc");
check(boxes(), [], "cancelling writes nothing");

// The file cannot be read: the dialog does not come, and the main window goes on.
failNext("read", 57);
answer("OK");
menu("mnuWildCardBuilder");
check(boxes().length, 1, "told once");
check([isOpen("frmSearch"), enabled("frmFind")], [false, true], "the load is undone");
check(readBytes(history), "ab\r\n\r\n\r\n\r\n\r\n", "the file is whole");
typeText("frmFind.txtFind", "x");
ok(text("frmFind.txtFind").includes("x"), "typing works");
remove(history);
mkdir(history);
menu("mnuWildCardBuilder");
check(text("frmSearch.Text1"), "", "a folder of that name is no file");
press("frmSearch.Text1", "Esc");
