// The dialog by the keyboard alone.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ab", null, 1, "語", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
menu("mnuWildCardBuilder");
const order = [];
for (let i = 0; i < 8; ++i) {
    order.push(focused().replace("frmSearch.", ""));
    press("frmSearch", "Tab");
}
check(order.slice(0, 6), ["Text1", "Combo1", "Text2", "Text3", "Command1", "Command2"], "while there is one gap");
check(order.slice(6, 8), ["Command3", "Text1"], "and round");
setText("frmSearch.Text2", "x");
focusOn("frmSearch.Text2");
press("frmSearch.Text2", "Tab");
check(focused(), "frmSearch.Combo2", "the second gap comes behind the middle");
press("frmSearch.Combo2", "Tab");
check(focused(), "frmSearch.Text3", "then the end");
press("frmSearch.Text3", "Shift+Tab");
check(focused(), "frmSearch.Combo2", "and back");
press("frmSearch.Combo2", "Down");
press("frmSearch.Combo2", "Down");
check(text("frmSearch.Combo2"), "1", "the arrow keys choose a length");
press("frmSearch.Combo2", "Enter");
check([isOpen("frmSearch"), text("frmFind.txtFind")], [false, "%_x_"], "Enter is OK, from a combo too");
check(focused(), "frmFind.txtFind", "the focus is in the entry box");
menu("mnuWildCardBuilder");
focusOn("frmSearch.Command3");
press("frmSearch.Command3", "Enter");
check([isOpen("frmSearch"), text("frmSearch.Text2")], [true, ""], "Enter on a button presses that button");
focusOn("frmSearch.Combo1");
press("frmSearch.Combo1", "Esc");
check([isOpen("frmSearch"), text("frmFind.txtFind")], [false, "%_x_"], "Esc cancels");
