// Another dictionary in the drop-down box: everything of the old one is cleared away.
const fruit = tempDir() + "/fruit.mdb", trees = tempDir() + "/trees.mdb";
makeDictionary(fruit, [["apple", null, 1, "林檎", null], ["apple pie", null, 2, "アップルパイ", null]]);
makeDictionary(trees, [["ash", null, 1, "トネリコ", null], ["oak", null, 1, "楢", null]]);
setCatalogue([{name: "果物", path: fruit, selected: true}, {name: "木", path: trees}]);
start();
menu("mnuSrchFromWord");
typeText("frmFind.txtFind", "apple");
check(items("frmFind.List1"), ["apple"], "words alone");
writeBytes(appFile("ListData.dat"), "results");

choose("frmFind.Combo1", "木");
check(state("CurrentDicName"), "木", "the name");
check(state("CurrentDicPath"), drivePath(trees), "the path");
check([state("SearchMode"), state("SearchTarget")], [0, 0], "mode and target");
check(caption("frmFind"), "Wordmere", "the title");
check(text("frmFind.Label1"), "単熟語：", "the label");
check(["mnuSrchFromAll", "mnuSrchFromWord", "mnuSrchFromPhrase"].map(checked), [true, false, false], "its menus");
check(checked("mnuIncSrch"), true, "the mode's menu");
check(text("frmFind.txtFind"), "", "the box is cleared");
check(items("frmFind.List1"), [], "so is the list");
check(paneText().trim(), "", "and the page");
check(exists(appFile("ListData.dat")), true, "in incremental mode there is no result store to delete");
check([state("TableFirstWord"), state("TableLastWord")], ["apple", "apple pie"], "the table is not read again");
check(state("Lexicons").map(entry => entry.IsSelected), [0, -1, 0], "one entry is in use");

typeText("frmFind.txtFind", "o");
check(items("frmFind.List1"), ["oak"], "the new dictionary is searched");
ok(page().includes("楢") && !page().includes("林檎"), "and shown");
choose("frmFind.Combo1", "果物");
setText("frmFind.txtFind", "apple");
check(items("frmFind.List1"), ["apple", "apple pie"], "back again, with words and phrases");
