// The box of dictionaries: choosing, what it resets, and the keys that it takes.
const make = (name, word) => {
    const path = tempDir() + "/" + name + ".mdb";
    makeDictionary(path, [[word, null, 1, "訳 " + word, null]]);
    return path;
};
const first = make("first", "one");
const second = make("second", "two");
setCatalogue([{name: "最初の辞書", path: first}, {name: "次の辞書", path: second, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015050005001503002\r\n");
start();

check(items("frmFind.Combo1"), ["最初の辞書", "次の辞書"], "the names of the catalogue");
check(text("frmFind.Combo1"), "次の辞書", "the selected one");
check(state("SearchTarget"), 2, "phrases alone");

typeText("frmFind.txtFind", "t");
writeText(appFile("ListData.dat"), "kept");
navigations();
choose("frmFind.Combo1", "最初の辞書");
check(text("frmFind.Combo1"), "最初の辞書", "another one");
check(state("CurrentDicName"), "最初の辞書", "by its name");
check(state("CurrentDicPath"), drivePath(first), "and path");
check(state("Lexicons").map(each => each.IsSelected), [-1, 0, 0], "marked in the catalogue");
check(state("SearchMode"), 0, "the incremental mode");
check(caption("frmFind"), "Wordmere", "with its caption");
check(checked("mnuIncSrch"), true, "and check mark");
check(state("SearchTarget"), 0, "words and phrases");
check(text("frmFind.Label1"), "単熟語：", "on the label");
check([checked("mnuSrchFromAll"), checked("mnuSrchFromWord"), checked("mnuSrchFromPhrase")], [true, false, false],
    "in the menu");
for (const number of [19, 20])
    check(visible("frmFind.Picture" + number), true, "picture " + number + " is back");
for (const number of [14, 15, 17, 18])
    check(visible("frmFind.Picture" + number), false, "picture " + number + " is not shown");
check(visible("frmFind.Picture0"), false, "no search button");
check(text("frmFind.txtFind"), "", "the box is empty");
check(items("frmFind.List1"), [], "the list too");
check(status(), "", "and the status bar");
ok(navigations().length > 0, "the pane was sent to the blank page");
ok(page().indexOf("<FONT COLOR") > 0, "which is blank");
check(exists(appFile("ListData.dat")), true, "in the incremental mode the last list search's result stays");

typeText("frmFind.txtFind", "o");
check(items("frmFind.List1"), ["one"], "searching goes on in the new one");
choose("frmFind.Combo1", 1);
typeText("frmFind.txtFind", "t");
check(items("frmFind.List1"), ["two"], "and back");
choose("frmFind.Combo1", 1);
check(state("CurrentDicName"), "次の辞書", "chosen again it is the same");
check(text("frmFind.txtFind"), "", "with an empty box");

// It takes no typing.
typeText("frmFind.txtFind", "t");
navigations();
focusOn("frmFind.Combo1");
typeText("frmFind.Combo1", "最");
typeText("frmFind.Combo1", "x 1");
press("frmFind.Combo1", "Enter");
press("frmFind.Combo1", "Backspace");
check(text("frmFind.Combo1"), "次の辞書", "typing changes nothing");
check(state("CurrentDicName"), "次の辞書", "no dictionary");
check(items("frmFind.Combo1").length, 2, "no names");
check(navigations(), [], "no page");
check(text("frmFind.txtFind"), "t", "no text");
press("frmFind.Combo1", "Esc");
check(text("frmFind.txtFind"), "", "Esc empties the box");
check(items("frmFind.List1"), [], "and the list");
check(status(), "Ready", "it is told");
check(focused(), "frmFind.txtFind", "the focus goes to the box");
check(text("frmFind.Combo1"), "次の辞書", "the dictionary stays");

// An arrow key is a choice.
press("frmFind.Combo1", "Up");
check(state("CurrentDicName"), "最初の辞書", "Up takes the one above");
exit();
start();
check(text("frmFind.Combo1"), "最初の辞書", "the choice is kept to the next start");
exit();

// Without dictionaries there is nothing to choose or to type.
remove(appFile("lexicons.dat"));
start();
check(enabled("frmFind.Combo1"), false, "no dictionary, no choice");
check(enabled("frmFind.txtFind"), false, "and no box for words");
typeText("frmFind.txtFind", "abc");
check(text("frmFind.txtFind"), "", "typing goes nowhere");

// The clipboard's text goes into the box all the same, and the search for it tells what is missing.
setClipboard("words");
answer("OK");
mouseDown("frmFind.Picture12");
check(text("frmFind.txtFind"), "words", "the clipboard's text");
const shown = boxes();
check(shown.length, 1, "one box");
check(shown[0].title, "設定辞書「」の辞書データベースなし", "no dictionary, no name");
