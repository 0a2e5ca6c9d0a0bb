// The blank page, byte for byte, and the moments at which it is shown.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["cat nap", null, 2, "うたた寝", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
writeText(appFile("home.html"), "a page of the last run");
start();

const home = drivePath(appFile("home.html"));
const blank = '<html lang="ja"><head><meta http-equiv="Content-Type" content="text/html;CHARSET=x-sjis">' +
    '<title></title></head><BODY oncontextmenu="return false"<p>\r\n' +
    '<FONT COLOR="#0000FF"></FONT></p></body></html>\r\n';

check(readBytes(appFile("home.html")), blank, "the page of the start");
check(navigations(), [home], "which is shown");
settle();
check(paneText().trim(), "", "and blank");
check(paneAddress().slice(-9), "home.html", "in the pane");

const blankAfter = (action, what) => {
    setText("frmFind.txtFind", "cat");
    ok(readBytes(appFile("home.html")) !== blank, what + ": there was a page");
    navigations();
    action();
    check(readBytes(appFile("home.html")), blank, what);
    ok(navigations().length > 0, what + ": it is shown");
    check(items("frmFind.List1"), [], what + ": the list is empty");
};
blankAfter(() => setText("frmFind.txtFind", ""), "an emptied box");
blankAfter(() => setText("frmFind.txtFind", "  "), "a box of blanks");
blankAfter(() => press("frmFind.txtFind", "Esc"), "Esc in the box");
blankAfter(() => press("frmFind.List1", "Esc"), "Esc in the list");
blankAfter(() => press("frmFind.Combo1", "Esc"), "Esc in the dictionary box");
blankAfter(() => choose("frmFind.Combo1", "一"), "a change of dictionary");
blankAfter(() => menu("mnuIncSrch"), "a change of mode");
settle();
check(paneText().trim(), "", "the pane shows nothing");
check(exists(appFile("home.html")), true, "the file stays");

exit();
check(readBytes(appFile("home.html")), blank, "also after the end");
check(boxes(), [], "no box");
