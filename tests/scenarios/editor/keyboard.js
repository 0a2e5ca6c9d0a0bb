// The way through the editor by the keyboard.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["bee", null, 1, "蜂", null], ["cow", null, 2, "牛", null]]);
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
const way = [];
for (let i = 0; i < 14; ++i) {
    way.push(focused().replace("frmMstmnt.", ""));
    press(focused(), "Tab");
}
check(way, ["Text1", "Text2", "Text3", "Text4", "Option1", "Command1", "Command2", "Command3", "Command4", "Command10", "Command5", "Command8", "Command9", "Text1"],
    "Tab goes through boxes, choice and the buttons that can be pressed");
focusOn("frmMstmnt.Text2");
press("frmMstmnt.Text2", "Tab");
typeText("frmMstmnt.Text3", "a");
press("frmMstmnt.Text3", "Tab");
check([focused(), text("frmMstmnt.Text3")], ["frmMstmnt.Text4", "a蜂"], "out of a box of several lines too");
press("frmMstmnt.Text3", "Enter");
press("frmMstmnt.Text3", "Esc");
press("frmMstmnt.Text1", "Enter");
press("frmMstmnt.Text1", "Esc");
check([boxes(), isOpen("frmMstmnt"), text("frmMstmnt.Text3")], [[], true, "a\r\n蜂"], "Enter and Esc press no button");
press("frmMstmnt.Option1", "Right");
check([checked("frmMstmnt.Option2"), focused()], [true, "frmMstmnt.Option2"], "arrows choose the kind");
answer("はい");
press("frmMstmnt.Command6", "Enter");
check([boxes().length, rows(dictionary)[0].Description, rows(dictionary)[0].WordPhrase], [1, "a\r\n蜂", 2], "Enter presses the button that has the focus");
check(focused(), "frmMstmnt.Text3", "which hands it to the meaning when it is disabled");
press("frmMstmnt.Command3", "Space");
check(text("frmMstmnt.Text1"), "cow", "so does the space bar");
press("frmMstmnt.Command9", "Enter");
check(openForms(), ["frmFind"], "closed");
