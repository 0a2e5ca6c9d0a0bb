// Every key runs the whole search at once, and none is lost.
const dictionary = tempDir() + "/letters.mdb";
const letters = "abcdefghijklmnopqrstuvwxyz".split("");
makeDictionary(dictionary, letters.map(letter => [letter + letter, null, 1, "訳" + letter, null]));
setCatalogue([{name: "文字", path: dictionary, selected: true}]);
start();
navigations();

const home = drivePath(appFile("home.html"));
const typed = "mnopqrstuvwxyz";
typeText("frmFind.txtFind", typed);
check(text("frmFind.txtFind"), typed, "all keys arrive in their order");
check(navigations().length, typed.length, "each went to the page once");
check(items("frmFind.List1")[0], "nn", "the list stands behind the text");
check(focused(), "frmFind.txtFind", "the focus stays");

press("frmFind.txtFind", "Home");
typeText("frmFind.txtFind", "b");
check(text("frmFind.txtFind"), "b" + typed, "a key in front of the text");
check(items("frmFind.List1")[0], "cc", "counts at once");
typeText("frmFind.txtFind", "b");
check(text("frmFind.txtFind"), "bb" + typed, "the caret stays where it was");

navigations();
press("frmFind.txtFind", "Enter");
check(navigations(), [], "Enter does nothing");
check(text("frmFind.txtFind"), "bb" + typed, "and keeps the text");
check(items("frmFind.List1")[0], "cc", "and the list");
press("frmFind.txtFind", "Left");
press("frmFind.txtFind", "Home");
press("frmFind.txtFind", "End");
check(navigations(), [], "moving the caret is no change");
check(boxes(), [], "no box");

press("frmFind.txtFind", "Ctrl+A");
typeText("frmFind.txtFind", "q");
check(text("frmFind.txtFind"), "q", "Ctrl+A in the box selects the box's own text");
check(navigations(), [home], "one change, one page");
check(items("frmFind.List1")[0], "qq", "and its list");

// A text that is put in as a whole is one change.
setClipboard("xx");
press("frmFind.txtFind", "Ctrl+A");
press("frmFind.txtFind", "Ctrl+V");
check(text("frmFind.txtFind"), "xx", "pasted");
check(navigations(), [home], "in one step");
check(items("frmFind.List1"), ["xx", "yy", "zz"], "with its list");
press("frmFind.txtFind", "Ctrl+Z");
check(text("frmFind.txtFind"), "q", "undo brings the text back");
check(items("frmFind.List1")[0], "qq", "and the list follows");

// A very long text has its place too.
const long = "m".repeat(3000);
setText("frmFind.txtFind", long);
check(text("frmFind.txtFind"), long, "a long text stays whole");
check(items("frmFind.List1")[0], "nn", "and has its place");
check(statements(), [], "no statement was needed");
