// A new record that is stored but cannot be shown again: it is edited from then on, with the buttons of editing.
const dictionary = tempDir() + "/w.mdb";
makeDictionary(dictionary, [["a", null, 1, "一", null]]);
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
click("frmMstmnt.Command5");
setText("frmMstmnt.Text1", "e");
setText("frmMstmnt.Text3", "五");
failNext("Seek", -2147467259);
answer("はい");
answer("OK");
click("frmMstmnt.Command6");
check([state("frmMstmnt.EditState"), rows(dictionary).map(row => row.Word)], [0, ["a", "e"]], "stored, and edited");
check([1, 2, 3, 4, 5, 8, 9, 10].filter(number => !enabled("frmMstmnt.Command" + number)), [], "every way is open");
check(caption("frmMstmnt.Command7"), "元に戻す", "there is no adding left to cancel");
