// Words and phrases, words, phrases: three menu entries and the label that cycles through them.
const dictionary = tempDir() + "/mixed.mdb";
makeDictionary(dictionary, [
    ["cat", null, 1, "猫", null],
    ["cat nap", null, 2, "うたた寝", null],
    ["dog", null, 1, "犬", null],
]);
setCatalogue([{name: "混合", path: dictionary, selected: true}]);
start();

const home = drivePath(appFile("home.html"));
const menus = ["mnuSrchFromAll", "mnuSrchFromWord", "mnuSrchFromPhrase"];
const listed = [["cat", "cat nap", "dog"], ["cat"], ["cat nap"]];
const checkTarget = (target, label, what) => {
    check(state("SearchTarget"), target, what + ": the target");
    check(text("frmFind.Label1"), label, what + ": the label");
    check(menus.map(name => checked(name)), [0, 1, 2].map(each => each === target), what + ": the check marks");
    check(menus.map(name => enabled(name)), [true, true, true], what + ": all can be chosen");
    for (const picture of ["frmFind.Picture19", "frmFind.Picture20"])
        check(visible(picture), target === 0, what + ": " + picture);
};

checkTarget(0, "単熟語：", "at the start");
typeText("frmFind.txtFind", "cat");

// The menu entries have a half-width colon for the limited ones.
const captions = ["単熟語：", "単語:", "熟語:"];
for (const target of [1, 2, 0, 2, 1, 0]) {
    navigations();
    focusOn("frmFind.List1");
    menu(menus[target]);
    checkTarget(target, captions[target], menus[target]);
    check(items("frmFind.List1"), listed[target], menus[target] + " searches the text again");
    check(navigations()[0], home, menus[target] + ": shown");
    check(text("frmFind.txtFind"), "cat", menus[target] + ": the text stays");
    check(focused(), "frmFind.txtFind", menus[target] + ": with the focus");
    check(selectedText("frmFind.txtFind"), "", menus[target] + ": nothing of it selected");
    typeText("frmFind.txtFind", " ");
    press("frmFind.txtFind", "Backspace");
    check(text("frmFind.txtFind"), "cat", menus[target] + ": the caret behind it");
}

// The label's own cycle has full-width ones.
const cycle = [[1, "単語："], [2, "熟語："], [0, "単熟語："], [1, "単語："]];
for (const [target, label] of cycle) {
    click("frmFind.Label1");
    checkTarget(target, label, "a click on the label");
    check(items("frmFind.List1"), listed[target], "searches again");
    check(focused(), "frmFind.txtFind", "the focus");
}

// The text is trimmed, and an empty box searches nothing.
setText("frmFind.txtFind", "cat  ");
menu("mnuSrchFromPhrase");
check(text("frmFind.txtFind"), "cat", "blanks behind the text go");
check(items("frmFind.List1"), ["cat nap"], "before it is searched");
setText("frmFind.txtFind", "");
statements();
navigations();
click("frmFind.Label1");
menu("mnuSrchFromWord");
check(statements(), [], "nothing to search");
check(navigations(), [], "nothing to show");
menu("mnuSrchFromWord");
checkTarget(1, "単語:", "chosen twice it stays");
menu("mnuIncSrch");
checkTarget(1, "単語:", "the incremental command keeps the target");
exit();

// The target of the start is the saved one, with full-width colons.
for (const [target, label] of [[1, "単語："], [2, "熟語："], [0, "単熟語："]]) {
    writeText(appFile("ListDefi.dat"), "0501505000500150300" + target + "\r\n");
    start();
    checkTarget(target, label, "saved " + target);
    exit();
}
