// The dialog: its words, its state, its keys, its file box, and the main window behind it.
const folder = tempDir();
makeDictionary(folder + "/words.mdb", [["ash", null, 1, "梣", null]]);
setCatalogue([{name: "英和", path: folder + "/words.mdb", selected: true}]);
start();
check(enabled("mnuFileCreate"), true, "the entry can be chosen");
menu("mnuFileCreate");
check(openForms().includes("frmCreateDB"), true, "the dialog is open");
check(visible("frmCreateDB"), true, "and shown");
check(enabled("frmFind"), false, "the main window takes no input");
check(enabled("frmFind.txtFind"), true, "and is not greyed");
check(caption("frmCreateDB"), "辞書データベースの新規作成", "its caption");
check(caption("frmCreateDB.Label1"), "新規辞書データベースファイル名（ドライブ名、ファイルパスを含む）：", "the label");
check(["Command1", "Command2", "Command3"].map(name => caption("frmCreateDB." + name)), ["...", "作成", "閉じる"],
    "the buttons");
check(["Command1", "Command2", "Command3", "Text1"].map(name => enabled("frmCreateDB." + name)),
    [true, true, true, true], "all can be used");
check(toolTip("frmCreateDB.Command1"), "ダイアログボックスを表示してフォルダを指定します", "the tool tip");
check(text("frmCreateDB.Text1"), "", "the box is empty");
check(focused(), "frmCreateDB.Text1", "and has the focus");

// The keys: Tab through the controls, Enter creates, Esc closes.
const order = [];
for (let i = 0; i < 4; ++i) {
    press(focused(), "Tab");
    order.push(focused());
}
check(order, ["frmCreateDB.Command1", "frmCreateDB.Command2", "frmCreateDB.Command3", "frmCreateDB.Text1"],
    "the order of the controls");
const enterPath = folder + "/enter.mdb";
setText("frmCreateDB.Text1", drivePath(enterPath));
answer("OK");
press("frmCreateDB.Text1", "Enter");
check(boxes().map(box => box.title), ["新規辞書データベースファイルの作成完了"], "Enter creates");
check(exists(enterPath), true, "the file is there");
check(isOpen("frmCreateDB"), true, "the dialog stays open");
press("frmCreateDB.Text1", "Esc");
check(isOpen("frmCreateDB"), false, "Esc closes");
check(enabled("frmFind"), true, "the main window takes input again");
check(boxes(), [], "without a word");

// The file box: what it asks, what it gives, and that cancelling it empties the box.
menu("mnuFileCreate");
answerFile(folder + "/chosen.mdb");
click("frmCreateDB.Command1");
const [box] = boxes();
check([box.kind, box.title, box.filter, box.createPrompt, box.mustExist],
    ["file", "Wordmere辞書データベースファイル", "データベース ファイル (*.mdb) | *.mdb", true, false], "the file box");
check(text("frmCreateDB.Text1"), drivePath(folder + "/chosen.mdb"), "the path that was chosen");
check(exists(folder + "/chosen.mdb"), false, "nothing is made yet");
answerFile(folder + "/chosen blank.mdb");
click("frmCreateDB.Command1");
check(text("frmCreateDB.Text1"), drivePath(folder + "/chosen blank.mdb"), "another takes its place");
answerFile(null);
click("frmCreateDB.Command1");
check(text("frmCreateDB.Text1"), "", "cancelling empties the box");
boxes();

// The other ways out.
setText("frmCreateDB.Text1", "C:\\typed.mdb");
click("frmCreateDB.Command3");
check(isOpen("frmCreateDB"), false, "the button closes");
check(enabled("frmFind"), true, "and enables the main window");
menu("mnuFileCreate");
check(text("frmCreateDB.Text1"), "", "a new dialog begins empty");
closeForm("frmCreateDB");
check(isOpen("frmCreateDB"), false, "the frame closes");
check(enabled("frmFind"), true, "and enables the main window");
typeText("frmFind.txtFind", "a");
check(items("frmFind.List1"), ["ash"], "the main window works");
check(boxes(), [], "no box came");

// The program's end, with the dialog open.
menu("mnuFileCreate");
exit();
check(openForms(), [], "nothing stays open");
