// What tells two files and two names apart.
const folder = tempDir();
makeDictionary(folder + "/a.mdb", [["small", null, 1, "小", null]]);
makeDictionary(folder + "/A.mdb", [["big", null, 1, "大", null]]);
setCatalogue([{name: "甲", path: folder + "/a.mdb", selected: true}]);
start();
typeText("frmFind.txtFind", "s");
check(items("frmFind.List1"), ["small"], "shown");

// A path is what the host takes for a file: one that differs in case alone is another.
menu("mnuDicAdd");
doubleClick("frmDicList.DicList", 0);
answerFile(folder + "/a.mdb");
click("frmDicList.Command1");
boxes();
check(items("frmFind.List1"), ["small"], "the same file resets nothing");
answerFile(folder + "/A.mdb");
click("frmDicList.Command1");
boxes();
check(text("frmDicList.Text2"), drivePath(folder + "/A.mdb"), "another file");
check([items("frmFind.List1"), status()], [[], "Ready"], "resets the main window");
click("frmDicList.ButtonCancel");

// A name that is pasted from the cell of a table ends with its line.
click("frmDicList.ButtonAdd");
setClipboard("甲\r\n");
press("frmDicList.Text1", "Ctrl+A");
press("frmDicList.Text1", "Ctrl+V");
check(text("frmDicList.Text1"), "甲", "pasted in one line");
answerFile(folder + "/a.mdb");
click("frmDicList.Command1");
boxes();
answer("OK");
click("frmDicList.ButtonOK");
check(boxes().map(box => box.title), ["辞書名の重複"], "the name is in use");
closeForm("frmDicList");

// What the toolkit would take for markup is a name like any other.
exit();
setCatalogue([{name: "甲[*]乙", path: folder + "/a.mdb", selected: true}]);
start();
menu("mnuDicAdd");
doubleClick("frmDicList.DicList", 0);
check(caption("frmDicList"), "編集 - 甲[*]乙", "the caption");
click("frmDicList.ButtonOK");
check([caption("frmDicList"), items("frmDicList.DicList")], ["辞書設定", ["甲[*]乙"]], "stored as an edit");
