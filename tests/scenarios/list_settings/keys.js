// What can be typed, and the keyboard alone.
start();
menu("mnuListSettings");
const type = (name, words) => {
    setText("frmListSettings." + name, "");
    typeText("frmListSettings." + name, words);
    return text("frmListSettings." + name);
};
for (const [name, limit] of [["Text1", 3], ["Text4", 3], ["Text2", 5], ["Text3", 4]]) {
    check(type(name, "1a-2 語.３x"), "123", name + ": digits alone, full-width ones made half-width");
    check(type(name, "９８７６５４３２１"), "987654321".slice(0, limit), name + ": at most " + limit + " digits");
    check(type(name, "あいう"), "", name + ": no letters");
}
for (const name of ["Combo1", "Combo2"]) {
    check(type(name, "2a語５"), "25", name + ": digits may be typed");
    check(type(name, "７"), "7", name + ": full-width ones too");
    check(type(name, "1"), "1", name + ": nothing is completed");
    choose("frmListSettings." + name, "30");
    check(text("frmListSettings." + name), "30", name + ": or chosen");
}

// A discarded key leaves a selection alone; backspace and the keys that type nothing work.
check(type("Text1", "123"), "123", "three digits");
press("frmListSettings.Text1", "Ctrl+A");
typeText("frmListSettings.Text1", "x");
check([text("frmListSettings.Text1"), selectedText("frmListSettings.Text1")], ["123", "123"], "a letter is discarded");
typeText("frmListSettings.Text1", "4");
check(text("frmListSettings.Text1"), "4", "a digit takes the place of the selection");
press("frmListSettings.Text1", "Backspace");
check(text("frmListSettings.Text1"), "", "backspace");
setClipboard(" １２\n");
press("frmListSettings.Text1", "Ctrl+V");
check(text("frmListSettings.Text1"), "12", "digits are pasted");
setClipboard("9z9");
press("frmListSettings.Text1", "Ctrl+A");
press("frmListSettings.Text1", "Ctrl+V");
check(text("frmListSettings.Text1"), "12", "others are not");
press("frmListSettings.Combo1", "Ctrl+A");
typeText("frmListSettings.Combo1", "x");
check(text("frmListSettings.Combo1"), "30", "so in the boxes");
press("frmListSettings.Combo1", "Ctrl+V");
check(text("frmListSettings.Combo1"), "30", "with the clipboard too");
press("frmListSettings.Combo1", "Up");
check(text("frmListSettings.Combo1"), "29", "the arrow keys choose");

// The tab order.
const order = [];
focusOn("frmListSettings.Text1");
for (let i = 0; i < 9; ++i) {
    order.push(focused().replace("frmListSettings.", ""));
    press("frmListSettings", "Tab");
}
check(order, ["Text1", "Combo1", "Text4", "Combo2", "Text2", "Text3", "Option1", "Command1", "Command2"], "the tab order");
check(focused(), "frmListSettings.Text1", "and round");
press("frmListSettings.Option1", "Right");
check([checked("frmListSettings.Option2"), focused()], [true, "frmListSettings.Option2"], "the arrow keys choose an option");
press("frmListSettings.Option2", "Space");

// Enter saves, Esc closes.
setText("frmListSettings.Text1", "50");
setText("frmListSettings.Text4", "50");
setText("frmListSettings.Text2", "500");
setText("frmListSettings.Text3", "300");
press("frmListSettings.Text1", "Enter");
check(readBytes(appFile("ListDefi.dat")), "05029050005003003001\r\n", "Enter saves");
setText("frmListSettings.Text1", "60");
press("frmListSettings.Combo2", "Enter");
check([readBytes(appFile("ListDefi.dat")), text("frmListSettings.Combo2"), items("frmListSettings.Combo2").length],
    ["06029050005003003001\r\n", "30", 30], "from a box too");
press("frmListSettings.Combo1", "Esc");
check(isOpen("frmListSettings"), false, "Esc closes");
check(boxes(), [], "no box");
