// The version dialog under the hands: focus, keys, closing, and the main window meanwhile.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
start();
typeText("frmFind.txtFind", "c");

const closings = [
    ["Enter", () => press("frmAbout.Command1", "Enter")],
    ["Esc", () => press("frmAbout.Command1", "Esc")],
    ["the space bar on OK", () => press("frmAbout.Command1", "Space")],
    ["a click on OK", () => click("frmAbout.Command1")],
    ["the window frame", () => closeForm("frmAbout")],
    ["Esc on the other button", () => press("frmAbout.Command2", "Esc")],
    ["Esc in the text", () => press("frmAbout.Label5", "Esc")],
    ["Enter in the text", () => press("frmAbout.Label5", "Enter")],
];
for (const [what, close] of closings) {
    menu("mnuAbout");
    check(focused(), "frmAbout.Command1", "OK has the focus");
    check(enabled("frmFind"), false, "the main window takes no input");
    close();
    check(openForms(), ["frmFind"], what + " closes it");
    check(enabled("frmFind"), true, "the main window takes input again");
    check(focused(), "frmFind.txtFind", "where it was left");
}

menu("mnuAbout");
press("frmAbout.Command1", "Tab");
check(focused(), "frmAbout.Command2", "Tab leads to the second button");
press("frmAbout.Command2", "Enter");
check(caption("frmAbout.Label2"), "システム情報:", "Enter presses the button that has the focus");
check(isOpen("frmAbout"), true, "and not OK");
press("frmAbout.Command2", "Tab");
check(focused(), "frmAbout.Label5", "then to the text, which can be selected");
press("frmAbout.Label5", "Ctrl+A");
check(selectedText("frmAbout.Label5").length > 0, true, "all of it");
press("frmAbout.Label5", "Ctrl+C");
ok(clipboard().startsWith("Windows バージョン: "), "and copied");
press("frmAbout.Label5", "Tab");
check(focused(), "frmAbout.Command1", "and round to OK");
press("frmAbout", "Alt+S");
// The button shows that it is pressed for a moment.
for (let i = 0; i < 20 && caption("frmAbout.Label2") === "システム情報:"; ++i)
    settle();
ok(caption("frmAbout.Label2") !== "システム情報:", "the second button by its mnemonic");

// The main window is blocked.
typeText("frmFind.txtFind", "at");
check(text("frmFind.txtFind"), "c", "what is typed there does not arrive");
menu("mnuAbout");
closeForm("frmFind");
check(openForms(), ["frmFind", "frmAbout"], "nor can it be closed, or a second dialog opened");
check(boxes(), [], "without a word");
press("frmAbout.Command1", "Esc");
exit();
