// In the list of hits Esc clears, keys that move show entries, and no other key does anything.
const dictionary = tempDir() + "/keys.mdb";
makeDictionary(dictionary, Array.from({length: 4}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
setCatalogue([{name: "鍵", path: dictionary, selected: true}]);
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
clickRow("frmFind.List1", 1);
const look = () => JSON.stringify([items("frmFind.List1"), selectedRow("frmFind.List1"), page(), status(), text("frmFind.txtFind"),
    focused(), exists(appFile("ListData.dat")), state("EntryFirstPos"), openForms()]);
const before = look();
navigations();
statements();
for (const key of ["Enter", "Delete", "Backspace", "Insert", "F2"]) {
    press("frmFind.List1", key);
    check([look(), navigations(), statements()], [before, [], []], key + " does nothing");
}
press("frmFind.List1", "End");
check([selectedRow("frmFind.List1"), state("EntryFirstPos")], [3, 4], "End shows the last entry");
press("frmFind.List1", "Esc");
check([items("frmFind.List1"), status(), text("frmFind.txtFind"), focused(), exists(appFile("ListData.dat"))],
    [[], "Ready", "", "frmFind.txtFind", false], "Esc clears");
check(boxes(), [], "no box");
