// The help goes with the main window, whatever stands open.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
for (const close of [() => closeForm("frmFind"), () => menu("mnuExit"), () => exit()]) {
    start();
    menu("mnuTopicSearch");
    press("frmHelp.ContentsTree", "Alt+S");
    setText("frmHelp.SearchText", "検索");
    check(openForms(), ["frmFind", "frmHelp"], "the help is open");
    close();
    check(openForms(), [], "and goes with the main window");
    exit();
}

// Without a catalogue too.
setCatalogue([]);
start();
press("frmFind", "F1");
check(openForms(), ["frmFind", "frmHelp"], "F1 opens the help where nothing has the focus");
exit();
check(openForms(), [], "gone at the end of the run");
start();
check(openForms(), ["frmFind"], "and not there in the next");
check(boxes(), [], "without a word");
