// Copying from the pane, and putting the clipboard's text into the box.
const dictionary = tempDir() + "/two.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["dog", null, 1, "犬", null]]);
setCatalogue([{name: "二", path: dictionary, selected: true}]);
start();

setClipboard("  　dog \u3000");
mouseDown("frmFind.Picture12");
check(text("frmFind.txtFind"), "dog", "the clipboard's text, trimmed");
check(items("frmFind.List1"), ["dog"], "is searched at once");
setClipboard("cat");
click("frmFind.Picture12");
check(text("frmFind.txtFind"), "cat", "it replaces what was there");
setClipboardImage();
mouseDown("frmFind.Picture12");
check(text("frmFind.txtFind"), "cat", "an image leaves the box");
setClipboard(null);
mouseDown("frmFind.Picture12");
check(text("frmFind.txtFind"), "cat", "so does an empty clipboard");
setClipboard("   ");
mouseDown("frmFind.Picture12");
check(text("frmFind.txtFind"), "", "blanks empty it");
check(items("frmFind.List1"), [], "with the list");

// Several lines are one text for the box.
setClipboard("cat\r\n");
mouseDown("frmFind.Picture12");
check(items("frmFind.List1"), ["cat", "dog"], "a line's end does not spoil the search");
check(text("frmFind.txtFind"), "cat", "nor stay in the box");

setClipboard("\n cat\n\nnap ");
mouseDown("frmFind.Picture12");
check(text("frmFind.txtFind"), "cat nap", "lines come one behind the other");
setText("frmFind.txtFind", "");
setClipboard("cat\r\n");
press("frmFind.txtFind", "Ctrl+V");
check(text("frmFind.txtFind"), "cat", "pasted by the keys it is the same");
check(items("frmFind.List1"), ["cat", "dog"], "and finds its place");

// Copy takes the pane's selection, and nothing when there is none.
settle();
setClipboard("before");
menu("mnuCopy");
check(clipboard(), "before", "nothing selected, nothing copied");
execs();
menu("mnuSelectAll");
settle();
menu("mnuCopy");
check(execs(), [17, 12], "select all, copy");
ok(clipboard().indexOf("cat") >= 0 && clipboard().indexOf("犬") >= 0, "the whole page: " + clipboard());
mouseDown("frmFind.Picture11");
check(execs(), [12], "the picture copies too");
check(boxes(), [], "no box");
