// The checks before the dialog, and the dialog as it opens.
const path = name => tempDir() + "/" + name + ".mdb";
const refused = (title, message) => {
    answer("OK");
    menu("mnuCompress");
    const [box] = boxes();
    check([box.title, box.text], [title, message], title);
    check([box.icon, box.beep, box.buttons], [48, 48, ["OK"]], "icon, beep, button");
    check([isOpen("frmDBCompress"), enabled("frmFind")], [false, true], "the dialog does not open");
};
start();
refused("辞書の未設定", "辞書が一件も設定されていないため最適化するファイルを判断できません！\r\n\r\n" +
    "メニューバーから [ツール] ＞ [辞書設定] を選択して辞書の設定をおこなってください。");
exit();

setCatalogue([{name: "英和", path: path("gone"), selected: true}]);
start();
refused("データベースファイルパスの誤り", "現在選択されている辞書のデータベースのファイルパス見つかりません！\r\n\r\n" +
    "辞書の設定後にファイルまたはパスを削除あるいは変更した可能性があります。\r\n" +
    "メニューバーから [ツール] ＞ [辞書設定] を選択してデータベースのファイルパス\r\nを確認してください");
exit();

makeDictionary(path("a"), [["ice", null, 1, "氷", null]]);
makeDictionary(path("b"), [["fire", null, 1, "火", null]]);
setCatalogue([{name: "氷", path: path("a"), selected: true}, {name: "中", path: path("a")}, {name: "火", path: path("b")}]);
start();
menu("mnuDicAdd");
clickRow("frmDicList.DicList", 1);
answer("はい");
click("frmDicList.ButtonDelete");
boxes();
closeForm("frmDicList");

menu("mnuCompress");
check([isOpen("frmDBCompress"), enabled("frmFind")], [true, false], "the dialog is open, the main window waits");
check(caption("frmDBCompress"), "データベースの最適化", "its caption");
check(items("frmDBCompress.Combo1"), [drivePath(path("a")), "", drivePath(path("b"))],
      "all slots but the spare one, free ones too");
check([text("frmDBCompress.Combo1"), selectedRow("frmDBCompress.Combo1")], ["", -1], "none is selected");
check(["Label1", "Text1", "Label4", "Label5"].map(name => text("frmDBCompress." + name)), ["", "", "", ""], "the fields are empty");
check(["Label2", "Label3", "Check1", "Command1", "Command2", "Command3"].map(name => caption("frmDBCompress." + name)),
      ["バックアップファイル：", "最適化するデータベースファイル：", "バックアップファイルを作成しない", "...", "スタート", "閉じる"],
      "the captions");
const shown = ["Combo1", "Text1", "Check1", "Command1", "Command2", "Command3", "Label1", "Label2", "Label3", "Label4", "Label5"];
check(shown.map(name => visible("frmDBCompress." + name)), [...Array(9).fill(true), false, false], "what is shown");
check(state("frmDBCompress.IsOptimizing"), 0, "nothing is under way");

// Choosing a database.
const plain = colorOf("frmDBCompress.Label2");
typeText("frmDBCompress.Combo1", "Zz");
check(text("frmDBCompress.Combo1"), "", "typing is discarded");
choose("frmDBCompress.Combo1", 2);
check(text("frmDBCompress.Label1"), "このデータベースファイルは辞書名が「火」として使用されています。", "its name");
check(text("frmDBCompress.Text1"), drivePath(tempDir() + "/BKUP_b.mdb"), "the backup stands beside it");
check([checked("frmDBCompress.Check1"), enabled("frmDBCompress.Text1")], [false, true], "with a backup");
click("frmDBCompress.Check1");
check([checked("frmDBCompress.Check1"), enabled("frmDBCompress.Text1")], [true, false], "without one");
ok(colorOf("frmDBCompress.Label2") !== plain, "its label is greyed");
check(colorOf("frmDBCompress.Check1"), plain, "the check box is not");
click("frmDBCompress.Check1");
check([enabled("frmDBCompress.Text1"), colorOf("frmDBCompress.Label2")], [true, plain], "with one again");
click("frmDBCompress.Check1");
choose("frmDBCompress.Combo1", 0);
check([checked("frmDBCompress.Check1"), enabled("frmDBCompress.Text1"), colorOf("frmDBCompress.Label2")], [false, true, plain],
      "another database clears the mark");
check(text("frmDBCompress.Text1"), drivePath(tempDir() + "/BKUP_a.mdb"), "and has its own backup");
choose("frmDBCompress.Combo1", 1);
check([text("frmDBCompress.Label1"), text("frmDBCompress.Text1")],
      ["このデータベースファイルは辞書名が「」として使用されています。", "BKUP_"], "a free slot");

// Choosing a backup.
answerFile(tempDir() + "/saved.mdb");
click("frmDBCompress.Command1");
const [box] = boxes();
check([box.kind, box.title, box.filter, box.mustExist, box.createPrompt],
      ["file", "バックアップデータベースファイル", "データベース ファイル (*.mdb) | *.mdb", false, true], "the box");
check(text("frmDBCompress.Text1"), drivePath(tempDir() + "/saved.mdb"), "its answer");
answerFile(null);
click("frmDBCompress.Command1");
check(text("frmDBCompress.Text1"), "", "cancelled, the field is emptied");

// Leaving.
press("frmDBCompress.Text1", "Esc");
check([isOpen("frmDBCompress"), enabled("frmFind")], [false, true], "Esc closes");
menu("mnuCompress");
click("frmDBCompress.Command3");
check([isOpen("frmDBCompress"), enabled("frmFind")], [false, true], "the button closes");
menu("mnuCompress");
closeForm("frmDBCompress");
check([isOpen("frmDBCompress"), enabled("frmFind")], [false, true], "the frame closes");
check(readBytes(path("a")).length > 0, true, "no file was touched");
