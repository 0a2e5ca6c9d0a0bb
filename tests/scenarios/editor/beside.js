// The editor is not modal: the help works beside it, the main window alone takes no input.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["", null, 1, null, null], ["cow", null, 1, "牛", null]]);
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
click("frmMstmnt.Command4");
press("frmMstmnt.Text3", "F1");
check(openForms(), ["frmFind", "frmMstmnt", "frmHelp"], "F1 opens the help");
ok(caption("frmHelp").includes("レコードの編集"), "on the editor's topic");
typeText("frmMstmnt.Text3", "x");
check(text("frmMstmnt.Text3"), "x牛", "the editor takes keys");
click("frmMstmnt.Command7");
check(text("frmMstmnt.Text3"), "牛", "and clicks");
check([enabled("frmMstmnt"), enabled("frmHelp"), enabled("frmFind")], [true, true, false], "the main window takes none");
closeForm("frmHelp");
check([openForms(), enabled("frmFind")], [["frmFind", "frmMstmnt"], false], "nor when the help goes");

// From a record without any text: nothing is emptied, so there is nothing to cancel.
click("frmMstmnt.Command1");
check(text("frmMstmnt.Text1"), "", "a word of nothing");
click("frmMstmnt.Command5");
check([1, 2, 3, 4, 5, 6, 7, 8, 9, 10].filter(number => enabled("frmMstmnt.Command" + number)), [9], "closing is left");
typeText("frmMstmnt.Text4", "e");
check([6, 7].filter(number => enabled("frmMstmnt.Command" + number)), [6, 7], "until something is typed");
click("frmMstmnt.Command7");
check([state("frmMstmnt.EditState"), state("CurrentAutoID")], [0, 1], "then it can be cancelled");
