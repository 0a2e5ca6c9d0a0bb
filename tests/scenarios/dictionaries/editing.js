// Edits: the slot stays, the list's row goes to the end; the mark of use stays.
const path = name => tempDir() + "/" + name + ".mdb";
for (const name of ["a", "b", "c"])
    makeDictionary(path(name), [[name, null, 1, "文字", null]]);
setCatalogue([{name: "一", path: path("a")}, {name: "二", path: path("b"), selected: true}, {name: "三", path: path("c")}]);
start();
menu("mnuDicAdd");

answer("OK");
click("frmDicList.ButtonChange");
const [nothing] = boxes();
check([nothing.title, nothing.text],
      ["辞書の未選択", "編集する辞書名が選択されていません！\r\n\r\nリストの中から辞書クリックして選択してください。"],
      "nothing is selected");
check([nothing.icon, nothing.beep, nothing.buttons], [48, 48, ["OK"]], "icon, beep, button");
check(caption("frmDicList"), "辞書設定", "the dialog still browses");

clickRow("frmDicList.DicList", 1);
click("frmDicList.ButtonChange");
setText("frmDicList.Text1", "新二");
press("frmDicList.Text1", "Enter");
check(items("frmDicList.DicList"), ["一", "三", "新二"], "renamed, it stands last in the list");
check(text("frmDicList.DicList"), "新二", "and is selected");
check(state("frmDicList.SavedDicName"), "新二", "its name is kept");
check(state("Lexicons").map(entry => [entry.DicName, entry.IsSelected, entry.IsDeleted]),
      [["一", 0, 0], ["新二", -1, 0], ["三", 0, 0], ["", 0, 0]], "in the array it stands where it stood");
check(state("frmDicList.IsDicListDirty"), -1, "something has changed");

// The same name in another writing is no other name; and another file.
doubleClick("frmDicList.DicList", 0);
setText("frmDicList.Text1", " 一 ");
answerFile(path("c"));
click("frmDicList.Command1");
click("frmDicList.ButtonOK");
check(state("Lexicons")[0].DicPath, drivePath(path("c")), "another file");
check(boxes().map(box => box.kind), ["file"], "and no message");
click("frmDicList.ButtonQuit");
check(items("frmFind.Combo1"), ["一", "新二", "三"], "the file's order is the old one");
check(state("CurrentDicName"), "新二", "the dictionary in use is the same");
check(readBytes(appFile("lexicons.dat")).length, 3 * 309, "three records");
check(readBytes(appFile("lexicons.dat")).slice(309, 309 + 4), "\x90\x56\x93\xf1", "the second bears the new name");

// A double click where no row is: editing without an entry.
menu("mnuDicAdd");
doubleClick("frmDicList.DicList");
check(caption("frmDicList"), "編集 - ", "the caption without a name");
check([text("frmDicList.Text1"), text("frmDicList.Text2")], ["", ""], "blank fields");
check(state("frmDicList.SavedDicName"), "", "no name is kept");
answer("OK");
click("frmDicList.ButtonOK");
check(boxes().map(box => box.title), ["辞書データファイルの未選択"], "the checks are the usual ones");
setText("frmDicList.Text1", "四");
answerFile(path("a"));
click("frmDicList.Command1");
boxes();
click("frmDicList.ButtonOK");
check(boxes(), [], "they pass");
check(state("Lexicons").map(entry => entry.DicName), ["一", "新二", "三", ""], "nothing is stored");
check(items("frmDicList.DicList"), ["一", "新二", "三"], "nor listed");
check(selectedRow("frmDicList.DicList"), -1, "none is selected");
check(state("frmDicList.IsDicListDirty"), -1, "yet it counts as a change");
