// The favourites: what is read, added, deleted and gone to, every message, and the bytes that are written.
const file = appFile("favorite.dat");
const list = "frmFavorite.List1";
const field = (bytes, length) => (bytes + " ".repeat(length)).slice(0, length);
const record = (name, address) => field(name, 128) + field(address, 255);
const message = (title, words, icon, beep, buttons, answered) => ({kind: "message", title: title, text: words, icon: icon,
    beep: beep, buttons: buttons, defaultButton: buttons[0], answer: answered});
const local = name => {
    const path = tempDir() + "/" + name + ".html";
    writeText(path, "<html><head><title>title " + name + "</title></head><body><p>page " + name + "</p></body></html>");
    return drivePath(path);
};
const pageA = local("a"), pageB = local("b");
const open = () => mouseDown("frmFind.Picture27");
const close = () => click("frmFavorite.Command3");
const add = name => {
    answerInput(name);
    click("frmFavorite.Command1");
};
const erase = (row, word) => {
    clickRow(list, row);
    answer(word);
    click("frmFavorite.Command2");
};

start();
remove(file);
menu("mnuSrchWebSite");
settle();

// A missing file.
check(exists(file), false, "no file");
open();
check([isOpen("frmFavorite"), caption("frmFavorite"), items(list), selectedRow(list)], [true, "お気に入り", [], -1], "an empty list");
check([exists(file), size(file)], [true, 0], "and an empty file");
check(enabled("frmFind"), false, "the main window is closed to input");
check(["Command1", "Command2", "Command3", "Command4"].map(name => [caption("frmFavorite." + name), toolTip("frmFavorite." + name)]),
    [["追加", "表示中のウエブ サイトをお気に入りに追加します"], ["削除", ""], ["閉じる", ""],
        ["移動", "選択したお気に入りのサイトへ移動します"]], "the buttons");

// Nothing is selected.
answer("OK");
click("frmFavorite.Command2");
check(boxes(), [message("削除項目未選択", "削除する項目が選択されていません！", 48, 0, ["OK"], "OK")], "nothing to delete");
navigations();
answer("OK");
click("frmFavorite.Command4");
check(boxes(), [message("検索お気に入り項目未選択", "移動するお気に入り項目が選択されていません！", 48, 0, ["OK"], "OK")],
    "nowhere to go");
check(navigations(), [], "and it does not go");

// An empty list writes an empty file.
close();
check([isOpen("frmFavorite"), enabled("frmFind"), exists(file), size(file)], [false, true, true, 0], "closed with nothing");

// Adding.
setText("frmFind.Combo2", pageA);
press("frmFind.Combo2", "Enter");
settle();
open();
add(null);
check(boxes().map(box => [box.kind, box.title, box.prompt, box.defaultText]),
    [["input", "お気に入りへの追加", "現在表示中のウエブ サイトを Wordmere のお気に入りへ追加します", "title a"]], "it asks for the name");
check(items(list), [], "cancelled");
add("");
boxes();
check(items(list), [], "no name ends without a word");
add("最初");
boxes();
check([items(list), selectedRow(list)], [["最初"], 0], "added and selected");
answerInput("最初");
answer("OK");
click("frmFavorite.Command1");
check(boxes().slice(1), [message("お気に入りに登録済み", "お気に入り名は既に登録されています！", 48, 48, ["OK"], "OK")],
    "a name that is there");
check(items(list), ["最初"], "is not added");
add("Second");
add("second, same address");
boxes();
check([items(list), selectedRow(list)], [["最初", "Second", "second, same address"], 2], "an address may stand under other names");
for (const name of ["SECOND", "second"]) {
    answerInput(name);
    answer("OK");
    click("frmFavorite.Command1");
    check(boxes().pop().title, "お気に入りに登録済み", "capitals make no other name: " + name);
    check([items(list).length, selectedRow(list)], [3, 1], "the one that is there is selected");
}
check(size(file), 0, "nothing is written yet");
close();
check(readBytes(file), record("\x8d\xc5\x8f\x89", pageA) + record("Second", pageA) + record("second, same address", pageA),
    "written at the close");

// What is kept is the text of the address box, whatever the pane shows.
setText("frmFind.Combo2", "http://typed.example/");
open();
add("typed");
close();
boxes();
check(readBytes(file).slice(3 * 383), record("typed", "http://typed.example/"), "the text of the address box");

// Hovering.
open();
hover(list, 0);
check(toolTip(list), pageA, "the address of the row");
hover(list, 3);
check(toolTip(list), "http://typed.example/", "of another");
hover(list);
check(toolTip(list), "", "none beside the rows");

// Going: the dialog stays open.
navigations();
clickRow(list, 3);
check(navigations(), [], "a click only selects");
doubleClick(list, 0);
settle();
check([navigations(), paneText().trim(), isOpen("frmFavorite")], [[pageA], "page a", true], "a double click goes there");
clickRow(list, 2);
click("frmFavorite.Command4");
settle();
check([navigations(), isOpen("frmFavorite")], [[pageA], true], "so does the button");
press(list, "Up");
press(list, "Enter");
check(navigations(), [pageA], "and Enter on a row");
check(selectedRow(list), 1, "the row that the key moved to");
close();

// Deleting: names and addresses stay in step.
const rows = [["a", "http://a.example/"], ["b", "http://b.example/"], ["c", "http://c.example/"], ["d", "http://d.example/"]];
const inStep = (names, what) => {
    check(items(list), names, what);
    names.forEach((name, row) => {
        hover(list, row);
        check(toolTip(list), "http://" + name + ".example/", what + ": the address of " + name);
    });
};
writeBytes(file, rows.map(row => record(row[0], row[1])).join(""));
open();
inStep(["a", "b", "c", "d"], "four");
erase(1, "いいえ");
check(boxes(), [message("削除確認", "選択中のお気に入り項目を削除してよろしいですか？", 32, 0, ["はい", "いいえ"], "いいえ")], "it asks");
inStep(["a", "b", "c", "d"], "no");
check(selectedRow(list), 1, "the row stays selected");
erase(1, "はい");
inStep(["a", "c", "d"], "from the middle");
check(selectedRow(list), -1, "nothing is selected then");
erase(2, "はい");
inStep(["a", "c"], "the last one");
answerInput("e");
click("frmFavorite.Command1");
hover(list, 2);
check(toolTip(list), text("frmFind.Combo2"), "one added behind has its own address");
erase(0, "はい");
check(items(list), ["c", "e"], "the first one");
close();
boxes();
check(readBytes(file), record("c", "http://c.example/") + record("e", text("frmFind.Combo2")), "written");
open();
erase(0, "はい");
erase(0, "はい");
check(items(list), [], "all gone");
close();
boxes();
check([exists(file), size(file)], [true, 0], "an empty list writes an empty file");

// What is no address goes nowhere.
const odd = ["javascript:document.title='x'", "file://" + tempDir() + "/b.html", " FILE:///etc/hostname", "", "http://", "no:such"];
writeBytes(file, odd.map((address, i) => record("odd " + i, address)).join(""));
open();
const before = paneAddress(), shown = paneText();
odd.forEach((address, i) => {
    doubleClick(list, i);
    settle();
    check([paneAddress(), paneText()], [before, shown], "goes nowhere: " + address);
});
close();
check(boxes(), [], "without a word");
