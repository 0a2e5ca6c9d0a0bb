// The row under the pointer shows its text as the list's tool tip.
const long = "a very long headword that does not fit into the list " + "x".repeat(150);
const dictionary = tempDir() + "/rows.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], [long, null, 2, "長い", null], ["dog", null, 1, "犬", null]]);
setCatalogue([{name: "行", path: dictionary, selected: true}]);
start();

check(toolTip("frmFind.List1"), "", "none at the start");
hover("frmFind.List1");
check(toolTip("frmFind.List1"), "", "none over an empty list");
typeText("frmFind.txtFind", "a");
hover("frmFind.List1", 0);
check(toolTip("frmFind.List1"), long, "the whole headword of a row");
hover("frmFind.List1", 2);
check(toolTip("frmFind.List1"), "dog", "of another row");
check(selectedRow("frmFind.List1"), -1, "the pointer selects nothing");
check(text("frmFind.txtFind"), "a", "and changes nothing");
hover("frmFind.List1");
check(toolTip("frmFind.List1"), "", "below the last row there is none");
hover("frmFind.List1", 1);
check(toolTip("frmFind.List1"), "cat", "back on a row");
press("frmFind.txtFind", "Esc");
hover("frmFind.List1");
check(toolTip("frmFind.List1"), "", "gone with the rows");
