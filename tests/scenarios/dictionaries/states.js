// The three states of the dialog: captions, what is shown and enabled, where the focus stands.
const dictionary = tempDir() + "/animals.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null]]);
setCatalogue([{name: "動物", path: dictionary, selected: true}, {name: "植物", path: tempDir() + "/none.mdb"}]);
start();

const fields = ["Text1", "Text2", "Command1", "ButtonOK", "ButtonCancel"];
const choosing = ["DicList", "ButtonAdd", "ButtonChange", "ButtonDelete", "ButtonQuit"];
const of = (names, read) => names.map(name => read("frmDicList." + name));
const all = (value) => Array(5).fill(value);
const inState = (wanted, title, isEditing) => {
    check(caption("frmDicList"), title, wanted + ": caption");
    check(of(fields, enabled), all(isEditing), wanted + ": the fields");
    check(of(choosing, enabled), all(!isEditing), wanted + ": the list and its buttons");
    check(of(choosing, visible), all(!isEditing), wanted + ": are shown");
};
const places = () => ["Frame1", "Frame2", "ButtonOK", "ButtonCancel"].map(name => bounds("frmDicList." + name).top);

menu("mnuDicAdd");
inState("loaded", "辞書設定", false);
check(enabled("frmFind"), false, "the main window takes no input");
check(items("frmDicList.DicList"), ["動物", "植物"], "the names in the catalogue's order");
check(selectedRow("frmDicList.DicList"), -1, "none is selected");
check(text("frmDicList.Text1"), "", "the fields are empty");
check(state("frmDicList.IsDicListDirty"), 0, "nothing has changed");
check(focused(), "frmDicList.DicList", "the list has the focus");
const browsing = bounds("frmDicList"), low = places();

closeForm("frmFind");
check(isOpen("frmFind"), true, "its frame is ignored");
clickRow("frmDicList.DicList", 0);
check(text("frmDicList.Text1"), "動物", "a click shows the name");
check(text("frmDicList.Text2"), drivePath(dictionary), "and the path");
check(toolTip("frmDicList.Text2"), drivePath(dictionary), "the path as tool tip");
const grouped = String(size(dictionary)).replace(/(\d)(?=(\d{3})+$)/g, "$1,");
check(text("frmDicList.Label1"), "ファイルサイズ： " + grouped + " バイト", "the length");
ok(/^更新日時： \d{4}\/\d\d\/\d\d \d{1,2}:\d\d:\d\d$/.test(text("frmDicList.Label2")), "the time");
check(state("frmDicList.SavedDicName"), "動物", "the name is kept");
press("frmDicList.DicList", "Down");
check(text("frmDicList.Text1"), "植物", "a key shows the next one");
check([text("frmDicList.Label1"), text("frmDicList.Label2")], ["上記ファイルを開けませんでした。", ""],
      "a file that cannot be read");

// Adding, and giving it up.
click("frmDicList.ButtonAdd");
inState("adding", "新規追加", true);
check(["Text1", "Text2", "Label1", "Label2"].map(name => text("frmDicList." + name)), ["新しい辞書", "", "", ""],
      "a new name, the rest empty");
check(toolTip("frmDicList.Text2"), "", "no tool tip");
check(focused(), "frmDicList.Text1", "the name has the focus");
check(selectedText("frmDicList.Text1"), "新しい辞書", "all of it selected");
check(places(), low.map(top => top - 1920), "the fields and their buttons stand 1920 higher");
ok(bounds("frmDicList").height > browsing.height, "the form is larger");
typeText("frmDicList.Text1", "鳥");
typeText("frmDicList.Text2", "C:\\typed.mdb");
check([text("frmDicList.Text1"), text("frmDicList.Text2")], ["鳥", ""], "the name can be typed, the path cannot");
click("frmDicList.ButtonCancel");
check(caption("frmDicList"), "辞書設定", "cancelled: the caption");
check(of(fields, enabled), [true, false, false, false, false], "the name alone stays enabled");
check(of(choosing, enabled), all(true), "the list again");
check(of(choosing, visible), all(true), "is shown");
check(text("frmDicList.Text1"), "鳥", "what was typed stays");
check([bounds("frmDicList").height, places()], [browsing.height, low], "everything stands where it stood");
check(focused(), "frmDicList.DicList", "the list has the focus");

// Editing, by the button, by a double click, by Enter.
clickRow("frmDicList.DicList", 0);
click("frmDicList.ButtonChange");
inState("editing", "編集 - 動物", true);
check([text("frmDicList.Text1"), text("frmDicList.Text2")], ["動物", drivePath(dictionary)], "the entry's fields");
check([focused(), selectedText("frmDicList.Text1")], ["frmDicList.Text1", "動物"], "the name selected");
press("frmDicList.Text1", "Esc");
check(caption("frmDicList"), "辞書設定", "Esc cancels");
doubleClick("frmDicList.DicList", 1);
inState("double click", "編集 - 植物", true);
press("frmDicList.Text1", "Esc");
clickRow("frmDicList.DicList", 0);
press("frmDicList.DicList", "Enter");
check(caption("frmDicList"), "編集 - 動物", "Enter edits");
click("frmDicList.ButtonCancel");
check(state("frmDicList.IsDicListDirty"), 0, "nothing has changed");
press("frmDicList.DicList", "Esc");
check(isOpen("frmDicList"), false, "Esc closes");
check(enabled("frmFind"), true, "the main window takes input again");
check(boxes(), [], "no box was shown");
