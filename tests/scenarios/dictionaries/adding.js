// Additions: the free slot first, else the spare one; the bytes that come of it.
const path = name => tempDir() + "/" + name + ".mdb";
for (const name of ["a", "b", "c", "d", "e"])
    makeDictionary(path(name), [[name, null, 1, "文字", null]]);
setCatalogue([{name: "一", path: path("a"), selected: true}, {name: "二", path: path("b")}, {name: "三", path: path("c")}]);
start();
const add = (name, file) => {
    click("frmDicList.ButtonAdd");
    setText("frmDicList.Text1", name);
    answerFile(path(file));
    click("frmDicList.Command1");
    click("frmDicList.ButtonOK");
};
const slots = () => state("Lexicons").map(entry => [entry.DicName, entry.IsSelected, entry.IsDeleted]);

menu("mnuDicAdd");
clickRow("frmDicList.DicList", 1);
answer("はい");
click("frmDicList.ButtonDelete");
check(slots(), [["一", -1, 0], ["", 0, -1], ["三", 0, 0], ["", 0, 0]], "a slot is free");
add("四", "d");
check(slots(), [["一", -1, 0], ["四", 0, 0], ["三", 0, 0], ["", 0, 0]], "the new entry takes it");
check(items("frmDicList.DicList"), ["一", "三", "四"], "in the list it stands last");
check(text("frmDicList.DicList"), "四", "and is selected");
check(caption("frmDicList"), "辞書設定", "the dialog browses again");
check(text("frmDicList.Text2"), drivePath(path("d")), "and shows it");
check(state("frmDicList.IsDicListDirty"), -1, "something has changed");
const before = readBytes(appFile("lexicons.dat"));
add("  五　", "e");
check(slots().slice(3), [["五", 0, 0], ["", 0, 0]], "then the spare slot, behind which comes a new one");
check(readBytes(appFile("lexicons.dat")), before, "nothing has reached the disk");
check(items("frmFind.Combo1"), ["一", "二", "三"], "nor the main window");
click("frmDicList.ButtonQuit");

const record = (name, file, selected) => {
    const field = (text, length) => text + " ".repeat(length - text.length);
    return field(name, 50) + field(drivePath(path(file)), 255) + (selected ? "\xff\xff" : "\0\0") + "\0\0";
};
check(readBytes(appFile("lexicons.dat")),
      record("\x88\xea", "a", true) + record("\x8e\x6c", "d") + record("\x8e\x4f", "c") + record("\x8c\xdc", "e"),
      "the file: the new entry stands second");
check(items("frmFind.Combo1"), ["一", "四", "三", "五"], "the main window's box");
check(slots(), [["一", -1, 0], ["四", 0, 0], ["三", 0, 0], ["五", 0, 0], ["", 0, 0]], "the array");
exit();

// A catalogue that never held an entry.
remove(appFile("lexicons.dat"));
start();
check(state("Lexicons"), null, "nothing is allocated");
menu("mnuDicAdd");
check(items("frmDicList.DicList"), [], "the list is empty");
check(focused(), "frmDicList.ButtonAdd", "the user will want to add");
click("frmDicList.ButtonAdd");
check(text("frmDicList.Text1"), "新しい辞書", "the name proposed");
answerFile(path("a"));
click("frmDicList.Command1");
press("frmDicList.Text1", "Enter");
check(slots(), [["新しい辞書", 0, 0], ["", 0, 0]], "the first entry and the spare slot");
click("frmDicList.ButtonAdd");
check(text("frmDicList.Text1"), "新しい辞書1", "the next name");
click("frmDicList.ButtonCancel");
click("frmDicList.ButtonQuit");
check([enabled("frmFind.Combo1"), enabled("frmFind.txtFind")], [true, true], "there is something to search");
check([state("CurrentDicName"), text("frmFind.Combo1")], ["新しい辞書", "新しい辞書"], "the dictionary in use");
check([state("CatalogueFlag1"), state("CatalogueFlag2")], [-1, -1], "the flags");
typeText("frmFind.txtFind", "a");
check(items("frmFind.List1"), ["a"], "it is searched");
