// Esc clears the search from wherever it is pressed.
const dictionary = tempDir() + "/two.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["dog", null, 1, "犬", null]]);
setCatalogue([{name: "二", path: dictionary, selected: true}]);
start();

const home = drivePath(appFile("home.html"));
for (const control of ["frmFind.txtFind", "frmFind.List1", "frmFind.Combo1"]) {
    setText("frmFind.txtFind", "c");
    clickRow("frmFind.List1", 1);
    check(status(), "", control + ": before");
    writeText(appFile("ListData.dat"), "kept");
    navigations();
    press(control, "Esc");
    check(text("frmFind.txtFind"), "", control + ": the box is empty");
    check(items("frmFind.List1"), [], control + ": the list too");
    check(status(), "Ready", control + ": ready for the next");
    check(focused(), "frmFind.txtFind", control + ": the focus is in the box");
    check(new Set(navigations()), new Set([home]), control + ": the page is shown");
    ok(page().indexOf("<FONT COLOR") > 0, control + ": blank");
    check(state("ListIsFresh"), 1, control + ": the list waits");
    check(exists(appFile("ListData.dat")), true, control + ": the incremental mode leaves the list search's result");
    typeText("frmFind.txtFind", "d");
    check(items("frmFind.List1"), ["dog"], control + ": typing goes on");
}
press("frmFind.txtFind", "Esc");
press("frmFind.txtFind", "Esc");
check(text("frmFind.txtFind"), "", "twice does no harm");
check(isOpen("frmFind"), true, "and closes nothing");
menu("mnuSrchFromPhrase");
typeText("frmFind.txtFind", "d");
press("frmFind.txtFind", "Esc");
check(state("SearchTarget"), 2, "the target stays");
check(checked("mnuIncSrch"), true, "and the mode");
check(boxes(), [], "no box");
