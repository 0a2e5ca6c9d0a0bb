// Saved while a list search runs: the search is given up, and leaves nothing behind.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, Array.from({length: 200}, (_, i) => ["w" + String(i).padStart(3, "0"), null, 1, "語", null]));
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
atYield(20, () => {
    menu("mnuListSettings");
    setText("frmListSettings.Text4", "60");
    click("frmListSettings.Command1");
    check(state("ListPageSize"), 60, "saved in the middle of the search");
    click("frmListSettings.Command2");
});
press("frmFind.txtFind", "Enter");
check([items("frmFind.List1"), text("frmFind.txtFind"), status()], [[], "", ""], "the main window is empty");
check(exists(appFile("ListData.dat")), false, "the hits are gone");
check([visible("frmFind.Picture0"), visible("frmFind.Picture00"), pointer()], [true, false, 0], "the search has ended");
check(enabled("frmFind"), true, "the main window takes input");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1").length, 60, "the next search has the new size");

// The other dialogs leave a running search alone.
for (const [open, close] of [["mnuHistory", "frmHistory.Command3"], ["mnuAddSearchCondition", "frmAddCondition.Command2"],
    ["mnuListSettings", "frmListSettings.Command2"]]) {
    atYield(20, () => {
        menu(open);
        click(close);
    });
    press("frmFind.txtFind", "Enter");
    check([items("frmFind.List1").length, status()], [60, "200件の見出し語が見つかりました。"], open + ": the search goes on");
}
// The wildcard builder begins another one.
atYield(20, () => {
    menu("mnuWildCardBuilder");
    typeText("frmSearch.Text1", "w00");
    click("frmSearch.Command1");
});
press("frmFind.txtFind", "Enter");
check([items("frmFind.List1"), text("frmFind.txtFind"), state("SearchMode")], [[], "w00_%", 6], "the search is given up");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1").length, 10, "and the next one runs");
check(boxes(), [], "no box in all of this");
