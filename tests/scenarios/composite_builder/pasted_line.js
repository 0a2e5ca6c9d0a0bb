// A line copied with its end, pasted into the composite builder and into the entry box of a list search.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run out", null, 2, "尽きる", null], ["runner", null, 1, "走者", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const paste = control => {
    focusOn(control);
    press(control, "Ctrl+A");
    press(control, "Ctrl+V");
};
menu("mnuPreSrch");
setClipboard("run\r\n");
menu("mnuAddSearchCondition");
paste("frmAddCondition.Text3");
click("frmAddCondition.Command1");
check(text("frmFind.txtFind"), "run", "the line end is no part of the word");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1"), ["run out", "runner"], "and the search finds it");
setText("frmFind.txtFind", "");
paste("frmFind.txtFind");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1"), ["run out", "runner"], "so with the entry box itself");
