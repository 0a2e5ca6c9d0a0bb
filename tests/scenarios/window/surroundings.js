// What the window meets: no room, no page, no file, too much of everything.
const rows = [["cat", null, 1, "猫", null], ["dog", null, 1, "犬", null]];
const dictionary = tempDir() + "/two.mdb";
makeDictionary(dictionary, rows);
setCatalogue([{name: "二", path: dictionary, selected: true}]);
start();

const usable = what => {
    setText("frmFind.txtFind", "");
    typeText("frmFind.txtFind", "dog");
    check(items("frmFind.List1"), ["dog"], what + ": the search works");
    settle();
    ok(paneText().includes("犬"), what + ": and its page is shown");
};

// Shrunk to nothing, and larger than any screen.
const size = () => [bounds("frmFind").width, bounds("frmFind").height];
for (const [width, height] of [[0, 0], [15, 15], [15, 9000], [12000, 15]]) {
    resize("frmFind", width, height);
    check(size(), [12000, 9000], width + " by " + height + ": refused");
}
resize("frmFind", 3840 * 15, 2160 * 15);
check(size(), [57600, 32400], "as large as a large screen");
ok(bounds("frmFind.WebBrowser1").width > 50000, "the pane takes what there is");
resize("frmFind", 12000, 9000);
menu("mnuHideListBox");
resize("frmFind", 330, 1100 + bounds("frmFind").height - bounds("frmFind.Surface").height);
menu("mnuPreSrch");
ok(bounds("frmFind.txtFind").width >= 0, "a narrow window leaves the box what it can");
menu("mnuIncSrch");
menu("mnuHideListBox");
resize("frmFind", 12000, 9000);
usable("after all sizes");

// The page is missing.
remove(appFile("home.html"));
execs();
for (const entry of ["mnuCopy", "mnuSelectAll", "mnuPrint", "mnuPrintView", "mnuPageSettings"])
    menu(entry);
check(execs(), [12, 17, 6, 7, 8], "the pane goes on with what it shows");
menu("mnuFind");
press("frmFind.WebBrowser1", "Esc");
check(boxes(), [], "without a word");
usable("without the page's file");

// The clipboard holds a book.
const book = "cat " + "語".repeat(10 * 1024 * 1024);
setClipboard(book);
mouseDown("frmFind.Picture12");
ok(text("frmFind.txtFind").startsWith("cat 語"), "its beginning is taken");
ok(text("frmFind.txtFind").length < 40000, "as much as the box holds: " + text("frmFind.txtFind").length);
press("frmFind.txtFind", "Esc");
press("frmFind.txtFind", "Ctrl+V");
ok(text("frmFind.txtFind").startsWith("cat 語"), "by the keys too");
menu("mnuSrchFromWord");
menu("mnuSrchFromAll");
for (const mode of ["mnuPreSrch", "mnuWildCard", "mnuTxtInMeaning"]) {
    menu(mode);
    press("frmFind.txtFind", "Enter");
    check(items("frmFind.List1"), [], mode + ": nothing begins with a book");
}
setClipboard(null);
menu("mnuIncSrch");
check(boxes(), [], "nothing was said");
usable("after a book");
exit();

// A thousand dictionaries, and the file of one vanishes.
const many = [];
for (let i = 1; i <= 1000; ++i)
    many.push({name: "辞書" + i, path: dictionary, selected: i === 1});
const last = tempDir() + "/last.mdb";
makeDictionary(last, rows);
many[999].path = last;
setCatalogue(many);
start();
check(items("frmFind.Combo1").length, 1000, "a thousand names");
check(text("frmFind.Combo1"), "辞書1", "the selected one");
choose("frmFind.Combo1", "辞書1000");
check(state("CurrentDicPath"), drivePath(last), "the last one");
usable("the last of a thousand");
press("frmFind.Combo1", "Home");
check(text("frmFind.Combo1"), "辞書1", "Home leads to the first");
press("frmFind.Combo1", "End");
check(text("frmFind.Combo1"), "辞書1000", "End to the last");

remove(last);
choose("frmFind.Combo1", "辞書1000");
check(boxes(), [], "choosing it says nothing");
answer("OK");
typeText("frmFind.txtFind", "d");
let shown = boxes();
check(shown.length, 1, "the first key does");
check(shown[0].title, "設定辞書「辞書1000」の辞書データベースなし", "of which one");
ok(shown[0].text.startsWith(drivePath(last) + "\r\n\r\n"), "and which file");
check([shown[0].icon, shown[0].beep], [16, 16], "critical");
check(text("frmFind.txtFind"), "d", "what was typed stays");
menu("mnuPreSrch");
answer("OK");
press("frmFind.txtFind", "Enter");
shown = boxes();
check(shown.length, 1, "a list search tells it too");
check(shown[0].title, "設定辞書「辞書1000」の辞書データベースなし", "the same");
check(text("frmFind.txtFind"), "d", "and keeps the text");
choose("frmFind.Combo1", "辞書2");
usable("another dictionary");
exit();
start();
check(items("frmFind.Combo1").length, 1000, "none was lost");
check(text("frmFind.Combo1"), "辞書2", "and the choice is kept");
