// The way of the focus, and the keys that stand for menu entries.
const dictionary = tempDir() + "/three.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["dog", null, 1, "犬", null], ["eel", null, 1, "鰻", null]]);
setCatalogue([{name: "三", path: dictionary, selected: true}]);
start();

check(focused(), "frmFind.txtFind", "the box has the focus at the start");
press("frmFind.txtFind", "Down");
check(focused(), "frmFind.txtFind", "an empty list takes no focus");
typeText("frmFind.txtFind", "c");
navigations();
press("frmFind.txtFind", "Down");
check(focused(), "frmFind.List1", "Down leads into the list");
check(selectedRow("frmFind.List1"), 0, "to its first row");
check(text("frmFind.txtFind"), "cat", "which is a click");
check(navigations().length, 1, "and shows its entry");
press("frmFind.List1", "Down");
check(text("frmFind.txtFind"), "dog", "Down again goes on");
check(items("frmFind.List1"), ["cat", "dog", "eel"], "in the same list");
focusOn("frmFind.txtFind");
press("frmFind.txtFind", "Down");
check(selectedRow("frmFind.List1"), 1, "a selected row is kept");
press("frmFind.List1", "Enter");
check(text("frmFind.txtFind"), "dog", "Enter in the list changes nothing");
check(focused(), "frmFind.List1", "not even the focus");
press("frmFind.List1", "End");
check(text("frmFind.txtFind"), "eel", "End");

// The focus selects the text, so that typing replaces it.
press("frmFind.Combo1", "Tab");
for (let i = 0; i < 5 && focused() !== "frmFind.txtFind"; ++i)
    press(focused(), "Tab");
check(focused(), "frmFind.txtFind", "Tab leads to the box");
check(selectedText("frmFind.txtFind"), "eel", "whose text is selected");
typeText("frmFind.txtFind", "d");
check(text("frmFind.txtFind"), "d", "typing replaces it");
click("frmFind.List1");
click("frmFind.txtFind");
check(selectedText("frmFind.txtFind"), "", "a click places the caret instead");

// Accelerators.
execs();
focusOn("frmFind.List1");
press("frmFind.List1", "Ctrl+C");
press("frmFind.List1", "Ctrl+P");
check(execs()[0], 12, "Ctrl+C copies from the pane");
focusOn("frmFind.txtFind");
press("frmFind.txtFind", "Ctrl+A");
check(selectedText("frmFind.txtFind"), "d", "Ctrl+A in the box is the box's own");
setClipboard("before");
press("frmFind.txtFind", "Ctrl+C");
check(clipboard(), "d", "so is Ctrl+C");
check(execs(), [], "the pane was not asked");
for (const key of ["F5", "Alt+Left", "Alt+Right"])
    press("frmFind.txtFind", key);
check(text("frmFind.txtFind"), "d", "keys of entries that wait do nothing");
check(boxes(), [], "and say nothing");

// Finding in the shown text: the pane has the focus then.
for (const find of [() => menu("mnuFind"), () => mouseDown("frmFind.Picture13"),
    () => press("frmFind.txtFind", "Ctrl+F")]) {
    focusOn("frmFind.txtFind");
    find();
    check(focused(), "frmFind.WebBrowser1", "the pane's find bar takes the keys");
    press("frmFind.WebBrowser1", "Esc");
    check(text("frmFind.txtFind"), "d", "Esc closes it and clears no search");
}
