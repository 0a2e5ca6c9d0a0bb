// Finding a text in the page: the bar, its buttons, its count, and what it leaves alone.
const dictionary = tempDir() + "/four.mdb";
makeDictionary(dictionary, [
    ["cat", null, 1, "猫 ねこ", "a cat on the mat"],
    ["cat nap", null, 2, "うたた寝", null],
    ["dog", null, 1, "犬 <b>いぬ</b>", null],
    ["eel", null, 1, "鰻", null],
]);
setCatalogue([{name: "四", path: dictionary, selected: true}]);
start();
typeText("frmFind.txtFind", "cat");
settle();

const until = condition => {
    for (let i = 0; i < 100 && !condition(); ++i)
        settle();
    return condition();
};
const counts = (wanted, what) => ok(until(() => text("frmFind.FindCount") === wanted), what + ": " + text("frmFind.FindCount"));

check(visible("frmFind.FindBar"), false, "there is no bar at the start");
menu("mnuFind");
check(visible("frmFind.FindBar"), true, "the entry brings it");
check(focused(), "frmFind.WebBrowser1", "the pane has the focus");
check([enabled("frmFind.FindPrevious"), enabled("frmFind.FindNext")], [false, false], "with nothing to go to");
check(text("frmFind.FindCount"), "", "and nothing to count");

typeText("frmFind.FindText", "cat");
counts("1 / 3 件", "each key finds");
check([enabled("frmFind.FindPrevious"), enabled("frmFind.FindNext")], [true, true], "now there is");
click("frmFind.FindNext");
counts("2 / 3 件", "next");
press("frmFind.FindText", "Enter");
counts("3 / 3 件", "Enter is next");
click("frmFind.FindNext");
counts("1 / 3 件", "round the end");
click("frmFind.FindPrevious");
counts("3 / 3 件", "previous, round the beginning");
press("frmFind.FindText", "Shift+Enter");
counts("2 / 3 件", "Shift+Enter is previous");
press("frmFind.FindText", "Backspace");
press("frmFind.FindText", "Backspace");
press("frmFind.FindText", "Backspace");
counts("", "an emptied box counts nothing");
check([enabled("frmFind.FindPrevious"), enabled("frmFind.FindNext")], [false, false], "nothing to go to again");
setText("frmFind.FindText", "いぬ");
counts("1 / 1 件", "Japanese, within markup");
setText("frmFind.FindText", "horse");
counts("見つかりません", "what is not there is told");
setText("frmFind.FindText", "<b>");
counts("見つかりません", "markup is not text");
check(text("frmFind.txtFind"), "cat", "the entry box was left alone");
check(items("frmFind.List1"), ["cat", "cat nap", "dog", "eel"], "the list too");

// Closed by key and by button, it keeps its text.
setText("frmFind.FindText", "dog");
press("frmFind.FindText", "Esc");
check(visible("frmFind.FindBar"), false, "Esc closes it");
check(text("frmFind.txtFind"), "cat", "and no search");
check(status(), "", "nor does it touch the status bar");
for (const open of [() => mouseDown("frmFind.Picture13"), () => press("frmFind.txtFind", "Ctrl+F"),
    () => press("frmFind.List1", "Ctrl+F"), () => press("frmFind.WebBrowser1", "Ctrl+F")]) {
    open();
    check(visible("frmFind.FindBar"), true, "open again");
    check(selectedText("frmFind.FindText"), "dog", "its text is selected");
    counts("1 / 1 件", "and found");
    click("frmFind.FindClose");
    check(visible("frmFind.FindBar"), false, "the button closes it");
}

// A new page is searched anew.
menu("mnuFind");
setText("frmFind.FindText", "鰻");
counts("1 / 1 件", "on this page");
setText("frmFind.txtFind", "zzz");
setText("frmFind.txtFind", "cat nap");
settle();
focusOn("frmFind.FindText");
press("frmFind.FindText", "Enter");
counts("1 / 1 件", "on the next one");
setText("frmFind.FindText", "a cat on the mat");
counts("見つかりません", "which begins behind that entry");
check(boxes(), [], "nothing was asked");
