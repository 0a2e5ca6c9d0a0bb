// The typed text is a place in the sorted table, not a filter.
const dictionary = tempDir() + "/animals.mdb";
makeDictionary(dictionary, [
    ["dog", null, 1, "犬", null],
    ["cat nap", null, 2, "うたた寝", null],
    ["bear", null, 1, "熊", null],
    ["cat", null, 1, "猫", null],
    ["zebra", null, 1, "縞馬", null],
    ["cat", null, 1, "こそ泥", null],
]);
setCatalogue([{name: "動物", path: dictionary, selected: true}]);
start();

const home = drivePath(appFile("home.html"));
const all = ["bear", "cat", "cat", "cat nap", "dog", "zebra"];
const entries = () => (page().match(/sty3>[^<]*/g) || []).map(found => found.slice(5));
const place = typed => {
    setText("frmFind.txtFind", typed);
    const listed = items("frmFind.List1");
    check(state("IncWords").slice(0, listed.length), listed, typed + ": the array has the list's order");
    check(selectedRow("frmFind.List1"), -1, typed + ": nothing is selected");
    return listed;
};

check(state("ListIsFresh"), 1, "the list has not been filled yet");
check(state("PageFirstWord"), "", "and no page been shown");
check(state("TableFirstWord"), "bear", "the table's first headword is read at the start");
check(state("TableFirstAutoID"), 3, "with its number");
check(state("TableLastWord"), "zebra", "and its last headword");

check(place("c"), all.slice(1), "the list begins behind what sorts before");
check(state("IncAutoIDs").slice(0, 5), [4, 6, 2, 1, 5], "namesakes in the order of their numbers");
check(state("IncWords").length, state("IncListCount") + 1, "the array has a spare element");
check(state("IncAutoIDs").length, state("IncListCount") + 1, "and the other one too");
check(state("ListIsFresh"), 0, "the list is filled");
check(state("PageFirstWord"), "cat", "the page's first headword");
check(state("PageFirstAutoID"), 4, "and number");
check(entries(), ["猫", "こそ泥", "うたた寝", "犬", "縞馬"], "the page shows the same rows");
check(status(), "", "the status bar is empty");

check(place("a"), all, "a text in front of the first headword lists from the first row");
check(place("bear"), all, "the first headword lists from itself");
check(state("PageFirstAutoID"), 3, "by its number");
check(place("cat"), all.slice(1), "a headword lists from its first namesake");
check(place("catz"), all.slice(4), "a text between two rows lists from the second");
check(place("CAT NAP"), all.slice(3), "case does not matter");
check(place("zebra"), ["zebra"], "the last headword");
check(place("cat  "), all.slice(1), "blanks behind the text do not count");
check(text("frmFind.txtFind"), "cat  ", "and stay in the box");
check(place("cat　"), all.slice(1), "full-width ones neither");

// Behind the last headword: an empty list, and the old page stays.
place("dog");
navigations();
check(place("zebras"), [], "a text behind the last headword empties the list");
check(navigations(), [], "and the pane keeps its page");
check(state("PageFirstWord"), "dog", "which is still known");
check(page(), readText(appFile("sscDefi.dat")), "the file holds the header alone");
check(visible("frmFind.List1"), true, "the list is shown");
check(state("ViewRecordset"), false, "nothing stays open");
check(place("zebr"), ["zebra"], "and the next text finds its place");

// Leading blanks disappear as they are typed.
setText("frmFind.txtFind", "");
typeText("frmFind.txtFind", "  　dog");
check(text("frmFind.txtFind"), "dog", "leading blanks are taken away");
check(items("frmFind.List1"), ["dog", "zebra"], "and do not count");
press("frmFind.txtFind", "Home");
typeText("frmFind.txtFind", " ");
check(text("frmFind.txtFind"), "dog", "also in front of a text");
typeText("frmFind.txtFind", "a");
check(text("frmFind.txtFind"), "adog", "and the caret stays in front");
check(place(" "), [], "blanks alone are no text");
check(text("frmFind.txtFind"), "", "none is left");

// Emptied.
place("cat");
navigations();
for (let i = 0; i < 3; ++i)
    press("frmFind.txtFind", "Backspace");
check(items("frmFind.List1"), [], "an emptied box empties the list");
check(state("ListIsFresh"), 1, "which waits to be filled");
check(navigations(), [home, home, home], "each key went to the page once");
ok(page().indexOf('<BODY oncontextmenu="return false"<p>') > 0, "the last one blank");
check(statements(), [], "the walk needs no statement");
