// Hits that are not of the mode, the third target, and what comes first: saving or emptying the main window.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run out", null, 2, "尽きる", null], ["runner", null, 1, "走者", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const file = appFile("ListDefi.dat"), store = appFile("ListData.dat");
start();
const search = () => {
    menu("mnuPreSrch");
    setText("frmFind.txtFind", "run");
    press("frmFind.txtFind", "Enter");
    check([items("frmFind.List1").length, exists(store)], [2, true], "hits");
};

// In incremental mode the file of hits is no matter.
menu("mnuIncSrch");
writeBytes(store, "hits");
menu("mnuListSettings");
setText("frmListSettings.Text3", "299");
click("frmListSettings.Command1");
check([readBytes(file), exists(store)], ["05015050005001502990\r\n", true], "saved; the file stays");

// Phrases alone at the next start.
click("frmListSettings.Option3");
click("frmListSettings.Command1");
check(readBytes(file), "05015050005001502992\r\n", "the third target");
check([state("SearchTarget"), caption("frmFind.Label1")], [0, "単熟語："], "not yet in use");
click("frmListSettings.Command2");
restart();
check([state("SearchTarget"), caption("frmFind.Label1")], [2, "熟語："], "but at the next start");
menu("mnuSrchFromAll");

// A file that cannot be written.
makeReadOnly(file);

// The ways to close save first: where that fails, the main window is left alone.
for (const close of [() => click("frmListSettings.Command2"), () => closeForm("frmListSettings")]) {
    search();
    menu("mnuListSettings");
    setText("frmListSettings.Text1", "60");
    answer("はい");
    answer("OK");
    close();
    check(boxes().map(box => box.title), ["変更確認", "エラー"], "asked and told");
    check([items("frmFind.List1").length, text("frmFind.txtFind"), exists(store)], [2, "run", true],
        "the main window is as it was");
    check([isOpen("frmListSettings"), state("frmListSettings.CloseHandled"), state("IncListCount")], [true, 0, 50],
        "the dialog stays");
    answer("いいえ");
    close();
    check([isOpen("frmListSettings"), items("frmFind.List1").length], [false, 2], "closed without saving");
    boxes();
}

// The save button empties the main window before it writes.
search();
menu("mnuListSettings");
setText("frmListSettings.Text1", "60");
answer("OK");
click("frmListSettings.Command1");
check(boxes().map(box => box.title), ["エラー"], "told");
check([items("frmFind.List1"), text("frmFind.txtFind"), exists(store)], [[], "", false], "the main window is empty by then");
check([readBytes(file), state("IncListCount")], ["05015050005001502992\r\n", 50], "and nothing saved");
answer("いいえ");
click("frmListSettings.Command2");
boxes();
check(isOpen("frmListSettings"), false, "closed without saving");
