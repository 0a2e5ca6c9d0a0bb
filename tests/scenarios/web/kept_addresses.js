// What the address box begins with and keeps, command by command; and what entering web mode leaves as it is.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["cat nap", null, 2, "うたた寝", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
const box = "frmFind.Combo2";
const picture = number => () => mouseDown("frmFind.Picture" + number);
start();
const home = drivePath(appFile("home.html"));
const sites = drivePath(appFile("sites.html"));
menu("mnuPreSrch");
setText("frmFind.txtFind", "cat");
press("frmFind.txtFind", "Enter");
const rowsBefore = items("frmFind.List1");
check(rowsBefore, ["cat nap"], "a search before");
menu("mnuSrchWebSite");
check([checked("mnuPreSrch"), checked("mnuIncSrch")], [true, false], "the mark of the mode before stays");
check([text("frmFind.txtFind"), items("frmFind.List1")], ["cat", rowsBefore], "so do text and rows, unseen");
settle();

// Back where there is nothing: the pane stays, and only the text of the box is kept.
check(paneAddress(), home, "the blank page");
for (const back of [() => menu("mnuGoBack"), picture(22), () => press(box, "Alt+Left")]) {
    back();
    settle();
    check([paneAddress(), text(box), items(box)], [home, home, [home]], "back with no history leaves all as it was");
}
check(boxes(), [], "without a word");

// Each of the three keeps what stands in the box, by entry and by picture; the other two do not.
let kept = items(box);
const keeps = [["mnuGoBack", 22], ["mnuGoForward", 23]];
// In a pane that loads at once the box shows the page of home before its text is kept.
if (exists(tempDir() + "/../../site"))
    keeps.push(["mnuGoHome", 26]);
const keepsNothing = [["mnuCancel", 24], ["mnuReflesh", 25]];
for (const [entry, number] of keeps)
    for (const [what, go] of [[entry, () => menu(entry)], ["Picture" + number, picture(number)]]) {
        setText(box, "typed for " + what);
        go();
        kept = ["typed for " + what].concat(kept);
        check(items(box), kept, what + " keeps it, as the newest");
        settle();
        check(items(box), kept, what + ": where it leads is not kept");
        setText(box, "TYPED FOR " + what);
        go();
        kept = ["TYPED FOR " + what].concat(kept);
        check(items(box), kept, what + ": capitals make another address");
        settle();
        setText(box, "typed for " + what);
        go();
        check(items(box), kept, what + ": one that is known keeps its place");
        settle();
    }
for (const [entry, number] of keepsNothing)
    for (const [what, go] of [[entry, () => menu(entry)], ["Picture" + number, picture(number)]]) {
        setText(box, "typed for " + what);
        go();
        settle();
        check(items(box), kept, what + " keeps nothing");
    }
setText(box, "");
menu("mnuGoBack");
kept = [""].concat(kept);
check(items(box), kept, "an empty box is kept like any other");
settle();

// The keys of the commands.
menu("mnuGoHome");
settle();
check([paneAddress(), text(box)], [sites, sites], "home");
press(box, "Alt+Left");
settle();
const before = paneAddress();
ok(before !== sites, "Alt+Left goes back");
press(box, "Alt+Right");
settle();
check([paneAddress(), text(box)], [sites, sites], "Alt+Right forward");
writeText(appFile("sites.html"), "<p>changed</p>");
press(box, "F5");
settle();
check(paneText().trim(), "changed", "F5 reads again");
setText(box, "half typed");
writeText(appFile("sites.html"), "<title>another title</title><p>changed</p>");
press(box, "F5");
settle();
check(text(box), sites, "a title that comes sets the box to where the pane is");
check(boxes(), [], "nothing was said");
