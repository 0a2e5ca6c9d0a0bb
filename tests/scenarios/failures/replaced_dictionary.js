// The file of a dictionary changes between two keystrokes: every keystroke sees the file as it is.
const path = tempDir() + "/words.mdb";
const missing = "設定辞書「英和」の辞書データベースなし";
makeDictionary(path, [["bat", null, 1, "蝙蝠", null], ["bath", null, 1, "風呂", null]]);
setCatalogue([{name: "英和", path, selected: true}]);
start();
typeText("frmFind.txtFind", "ba");
check(items("frmFind.List1"), ["bat", "bath"], "the first file");

makeDictionary(path, [["bath mat", null, 2, "足拭き", null], ["baton", null, 1, "警棒", null]]);
typeText("frmFind.txtFind", "t");
check(items("frmFind.List1"), ["bath mat", "baton"], "replaced: the new rows");
ok(page().includes("足拭き"), "and their page");

remove(path);
answer("OK");
typeText("frmFind.txtFind", "h");
check(boxes().map(box => box.title), [missing], "deleted: told");
check(text("frmFind.txtFind"), "bath", "what was typed stays");
check(exists(path), false, "nothing is made in its place");
answer("OK");
clickRow("frmFind.List1", 1);
check(boxes().map(box => box.title), [missing], "a click on a row of the old list tells too");

writeText(path, "no dictionary any more");
answer("OK");
setText("frmFind.txtFind", "b");
check(boxes().map(box => box.title), [missing], "replaced by a text: told");
check(readText(path), "no dictionary any more", "and left alone");

makeDictionary(path, [["bee", null, 1, "蜂", null]]);
typeText("frmFind.txtFind", "e");
check(items("frmFind.List1"), ["bee"], "back again: found");

// Rows that have gone since the list was filled.
makeDictionary(path, [["cod", null, 1, "鱈", null], ["coal", null, 1, "石炭", null], ["cow", null, 1, "牛", null]]);
setText("frmFind.txtFind", "co");
check(items("frmFind.List1"), ["coal", "cod", "cow"], "three rows");
deleteRow(path, 1);
clickRow("frmFind.List1", 1);
ok(!page().includes("鱈") && page().includes("牛"), "a click on one that has gone shows what follows");
