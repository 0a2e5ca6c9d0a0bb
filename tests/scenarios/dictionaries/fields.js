// The fields of the dialog: what gets into the path, what a file's time is, what a double click beside the rows edits.
const folder = tempDir();
const dictionary = folder + "/words.mdb", other = folder + "/other.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
makeDictionary(other, [["fire", null, 1, "火", null]]);
setCatalogue([{name: "氷", path: dictionary, selected: true}, {name: "火", path: other}]);
start();
menu("mnuDicAdd");

// No key gets into the path or takes anything out of it.
doubleClick("frmDicList.DicList", 0);
setClipboard("C:\\pasted.mdb");
for (const key of ["Backspace", "Ctrl+V", "Ctrl+A", "Delete", "Ctrl+X", "Ctrl+Z", "x"])
    press("frmDicList.Text2", key);
check(text("frmDicList.Text2"), drivePath(dictionary), "the path cannot be typed");

// Given up, an edit leaves the array as it was.
setText("frmDicList.Text1", "雪");
answerFile(other);
click("frmDicList.Command1");
boxes();
click("frmDicList.ButtonCancel");
check(state("Lexicons").map(entry => [entry.DicName, entry.DicPath]),
      [["氷", drivePath(dictionary)], ["火", drivePath(other)], ["", ""]], "cancelled: the array");
check([text("frmDicList.Text1"), text("frmDicList.Text2")], ["雪", drivePath(other)], "what was typed stays");
check([items("frmDicList.DicList"), selectedRow("frmDicList.DicList")], [["氷", "火"], 0], "the row stays selected");
click("frmDicList.ButtonChange");
check([text("frmDicList.Text1"), text("frmDicList.Text2")], ["氷", drivePath(dictionary)], "a new edit begins with the entry");
click("frmDicList.ButtonCancel");

// The time is the file's, not the moment's.
clickRow("frmDicList.DicList", 1);
const time = text("frmDicList.Label2");
clickRow("frmDicList.DicList", 0);
for (const until = Date.now() + 1100; Date.now() < until;);
clickRow("frmDicList.DicList", 1);
check(text("frmDicList.Label2"), time, "the time of the file");

// A double click beside the rows edits the selected entry.
doubleClick("frmDicList.DicList");
check([caption("frmDicList"), text("frmDicList.Text1")], ["編集 - 火", "火"], "the selected one");

// A folder in the place of the file is no file.
remove(other);
mkdir(other);
answer("OK");
click("frmDicList.ButtonOK");
check(boxes().map(box => box.title), ["辞書データファイルパスの誤り"], "a folder");
check([caption("frmDicList"), enabled("frmDicList.Text1")], ["編集 - 火", true], "the dialog still edits");

// The window frame in the midst of an edit.
setText("frmDicList.Text1", "炎");
closeForm("frmDicList");
check([isOpen("frmDicList"), enabled("frmFind")], [false, true], "the dialog goes");
check(state("Lexicons").map(entry => entry.DicName), ["氷", "火", ""], "and nothing of the edit stays");

// A name that was deleted is free at once, and its writing is the new one.
menu("mnuDicAdd");
clickRow("frmDicList.DicList", 1);
answer("はい");
click("frmDicList.ButtonDelete");
click("frmDicList.ButtonAdd");
setText("frmDicList.Text1", "火");
answerFile(dictionary);
click("frmDicList.Command1");
boxes();
click("frmDicList.ButtonOK");
check(boxes(), [], "the name of a deleted entry");
check(state("Lexicons")[1].DicPath, drivePath(dictionary), "two names may share a file");
