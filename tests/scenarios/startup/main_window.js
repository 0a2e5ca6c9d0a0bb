// What stands when the main window has come up, before the user does anything.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [
    ["zebra", null, 1, "縞馬", null],
    ["apple", null, 1, "林檎", null],
    ["mango", null, 1, "マンゴー", null],
]);
setCatalogue([{name: "果物", path: dictionary, selected: true}]);
start();

check(caption("frmFind"), "Wordmere", "the title");
check(status(), "Ready", "the status bar");
check(pointer(), 0, "the pointer");
check(openForms(), ["frmFind"], "the splash has gone");
check([state("SearchMode"), state("SearchTarget"), state("StopRequested")], [0, 0, 0], "mode, target, stop");
check([state("ListClickActive"), state("ListClickIndex"), state("ListIsFresh")], [0, 0, 1], "the list's state");

check(checked("mnuIncSrch"), true, "incremental search is checked");
for (const entry of ["mnuPreSrch", "mnuMidSrch", "mnuPostSrch", "mnuTxtInMeaning", "mnuTxtInExample", "mnuWildCard"])
    check(checked(entry), false, entry + " is not");
check(checked("mnuHideListBox"), false, "the list is not hidden");
check(state("ListHidden"), 0, "nor counts as hidden");
check(visible("frmFind.List1"), true, "it is there");

check(state("TableFirstWord"), "apple", "the table's first headword");
check(state("TableFirstAutoID"), 2, "and its number");
check(state("TableLastWord"), "zebra", "its last headword");
check([state("ViewConnection"), state("ViewRecordset")], [false, false], "nothing is held open");
check(statements(), [], "no statement was needed");

check(toolTip("frmFind.Picture19"), "見出し語内容を15件前へ移動", "paging back");
check(toolTip("frmFind.Picture20"), "見出し語内容を15件先へ移動", "paging on");
check(bounds("frmFind.Picture19").left, bounds("frmFind.Picture14").left, "where the list is paged back");
check(bounds("frmFind.Picture20").left, bounds("frmFind.Picture15").left, "where the list is paged on");
for (const picture of ["Picture14", "Picture15", "Picture17", "Picture18", "Picture00"])
    check(visible("frmFind." + picture), false, picture + " is hidden");

check(items("frmFind.List1"), [], "the list is empty");
check(text("frmFind.txtFind"), "", "so is the box");
check(focused(), "frmFind.txtFind", "and has the focus");
settle();
check(navigations(), [drivePath(appFile("home.html"))], "the blank page is shown once");
check(paneText().trim(), "", "it is blank");

const header = state("HtmlHeaderLines");
check(header.length, 9, "eight lines and a spare one");
check(header[8], "", "the spare one is empty");
check(header.slice(0, 8).join("\r\n") + "\r\n", readText(appFile("sscDefi.dat")), "the lines of the file");
exit();

for (const [pixels, width, height] of [[799, 9600, 7200], [800, 12000, 9000], [1920, 12000, 9000], [640, 9600, 7200]]) {
    start({screenWidth: pixels});
    check([bounds("frmFind").width, bounds("frmFind").height], [width, height], pixels + " pixels of screen");
    exit();
}
