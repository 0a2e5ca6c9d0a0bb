// A click on a row shows its record and leaves the list as it is.
const dictionary = tempDir() + "/namesakes.mdb";
const rows = [["zoo", null, 1, "動物園", null]];
for (let i = 1; i <= 60; ++i)
    rows.push(["run", null, 1, "走る" + i, null]);
rows.push(["ant", null, 1, "蟻一", null], ["ant", null, 1, "蟻二", null]);
makeDictionary(dictionary, rows);
setCatalogue([{name: "同名", path: dictionary, selected: true}]);
start();

const entries = () => (page().match(/sty3>[^<]*/g) || []).map(found => found.slice(5));
const home = drivePath(appFile("home.html"));

typeText("frmFind.txtFind", "run");
const list = items("frmFind.List1");
check(list.length, 50, "the list has its number of rows");
const ids = state("IncAutoIDs");
check(state("PageLastAutoID"), ids[49], "the last row of the list is known");
check(state("PageLastWord"), "run", "with its word");
check(entries()[0], "走る1", "the page begins with the first namesake");
check(entries().length, 15, "and has its number of entries");
navigations();

// The box holds the row's text already: no change comes, yet the row's own record is shown.
clickRow("frmFind.List1", 7);
check(entries()[0], "走る8", "the row's record, not its first namesake");
check(entries().length, 15, "a whole page from there");
check(items("frmFind.List1"), list, "the list does not move");
check(selectedRow("frmFind.List1"), 7, "the row stays selected");
check(text("frmFind.txtFind"), "run", "the text stays");
check(navigations(), [home], "one page");
check(state("ListClickIndex"), 7, "the row is remembered");
check(state("ListClickAutoID"), ids[7], "with its number");
check(state("ListClickActive"), 0, "and the click is over");
check(state("PageFirstAutoID"), ids[7], "the page begins there");
check(state("IncAutoIDs"), ids, "the arrays stay");

clickRow("frmFind.List1", 49);
check(entries()[0], "走る50", "a row that has to be scrolled to");
check(entries().length, 12, "the page goes on behind the list to the end of the table");
check(selectedRow("frmFind.List1"), 49, "and stays in sight");
check(state("PageLastAutoID"), 58, "a walk that ends early keeps the last row of the one before");

// Keys that move the selection are clicks.
focusOn("frmFind.List1");
press("frmFind.List1", "Up");
check(entries()[0], "走る49", "Up");
press("frmFind.List1", "Home");
check(entries()[0], "走る1", "Home");
check(selectedRow("frmFind.List1"), 0, "on the first row");
press("frmFind.List1", "Down");
check(entries()[0], "走る2", "Down");
check(focused(), "frmFind.List1", "the list keeps the focus");
check(items("frmFind.List1"), list, "and its rows");

// Another text: it goes into the box without moving the list.
setText("frmFind.txtFind", "a");
const fromAnt = items("frmFind.List1");
check(fromAnt.slice(0, 3), ["ant", "ant", "run"], "typing fills the list anew");
check(selectedRow("frmFind.List1"), -1, "with nothing selected");
navigations();
clickRow("frmFind.List1", 2);
check(text("frmFind.txtFind"), "run", "the row's text");
check(items("frmFind.List1"), fromAnt, "the same list");
check(entries()[0], "走る1", "the row's record");
check(navigations(), [home], "one page");
check(state("ListIsFresh"), 0, "the list is filled");
typeText("frmFind.txtFind", "s");
check(items("frmFind.List1"), ["zoo"], "typing goes on from there");

// The table's first headword always leads to its first record, from the number of the start.
setText("frmFind.txtFind", "ant");
check(entries().slice(0, 2), ["蟻一", "蟻二"], "both namesakes");
clickRow("frmFind.List1", 1);
check(entries()[0], "蟻一", "a click on the second shows the first");
check(state("ListClickAutoID"), state("TableFirstAutoID"), "the clicked number was overwritten");
clickRow("frmFind.List1", 2);
clickRow("frmFind.List1", 1);
check(text("frmFind.txtFind"), "ant", "coming from another row it is the same");
check(entries()[0], "蟻一", "the first of them");
check(boxes(), [], "no box came");
