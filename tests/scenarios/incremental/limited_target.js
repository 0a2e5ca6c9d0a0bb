// Words alone or phrases alone: a filter by a statement instead of a place in the table.
const dictionary = tempDir() + "/mixed.mdb";
makeDictionary(dictionary, [
    ["take", "teik", 1, "取る", null],
    ["taken", null, 1, "取られた", null],
    ["take off", null, 2, "離陸する", null],
    ["Take", null, 1, "竹", null],
    ["take in", null, 2, "受け入れる", "take it in"],
    ["table", null, 1, "机", null],
    ["take  ", null, 1, "余白", null],
]);
setCatalogue([{name: "混合", path: dictionary, selected: true}]);
start();

const home = drivePath(appFile("home.html"));
const entries = () => (page().match(/sty3>[^<]*/g) || []).map(found => found.slice(5));
const statement = (target, pattern) =>
    "SELECT TOP 50 * FROM Dictionary WHERE WordPhrase = " + target + " AND Word like '" + pattern +
    "%' ORDER BY Word, AutoID ASC";

menu("mnuSrchFromWord");
check(statements(), [], "an empty box searches nothing");
check(navigations().slice(1), [], "and shows nothing new");
typeText("frmFind.txtFind", "tak");
check(statements(), [statement(1, "t"), statement(1, "ta"), statement(1, "tak")], "one statement a key");
check(navigations(), [home, home, home, home, home, home], "first the blank page, then the entries");
check(items("frmFind.List1"), ["take", "Take", "take  ", "taken"], "words alone, by word, then by number");
check(state("IncWords"), ["take", "Take", "take  ", "taken", ""], "the words as they are, and a spare one");
check(state("IncAutoIDs"), [1, 4, 7, 2, 0], "their numbers, and a spare one");
check(entries(), ["取る", "竹", "余白", "取られた"], "all on the page");
check(selectedRow("frmFind.List1"), -1, "nothing is selected");
check(status(), "", "the status bar is empty again");
check(pointer(), 0, "and the pointer the usual one");
check(state("ViewConnection"), false, "nothing stays open");
check(state("PageFirstWord"), "", "the place of the walk is not touched");

typeText("frmFind.txtFind", "e");
check(items("frmFind.List1").length, 4, "the whole headword is found too");
typeText("frmFind.txtFind", " ");
check(statements().slice(1), [statement(1, "take ")], "a blank behind the text counts");
check(items("frmFind.List1"), ["take  "], "as a part of the pattern");

// No match: an empty list and the blank page.
navigations();
typeText("frmFind.txtFind", "x");
check(items("frmFind.List1"), [], "no match, no rows");
check(navigations(), [home], "one page");
check(page(), readText(appFile("sscDefi.dat")), "the file has the header by then");
check(status(), "", "no words in the status bar");
check(pointer(), 0, "no hourglass");
check(state("IncWords").length, 51, "arrays of the full size");
check(boxes(), [], "no box");

// Phrases.
statements();
menu("mnuSrchFromPhrase");
check(statements(), [statement(2, "take x")], "the new target searches at once");
setText("frmFind.txtFind", "take");
check(items("frmFind.List1"), ["take in", "take off"], "phrases alone");

// A click shows entries from its row on, without a statement.
statements();
navigations();
clickRow("frmFind.List1", 1);
check(statements(), [], "a click needs no statement");
check(navigations(), [home, home], "the blank page, then the entries");
check(entries(), ["離陸する"], "from the row to the end of the list");
check(text("frmFind.txtFind"), "take off", "the row's text");
check(items("frmFind.List1"), ["take in", "take off"], "the list stays");
check(selectedRow("frmFind.List1"), 1, "and the selection");
check(state("ListClickActive"), 0, "the click is over");
check(state("ListClickIndex"), 1, "the row is remembered");
clickRow("frmFind.List1", 0);
check(entries(), ["受け入れる", "離陸する"], "from the first row");
check(status(), "", "the status bar is empty");

menu("mnuSrchFromAll");
check(items("frmFind.List1"), ["take in", "take off", "taken"], "words and phrases are a place again");
check(statements(), [], "without a statement");
