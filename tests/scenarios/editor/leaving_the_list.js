// The end of an editor that has taken rows out of the incremental list: the program's end, a dictionary
// that went, the frame.
const dictionary = tempDir() + "/words.mdb";
const words = ["w1", "w2", "w3", "w4", "w5"];
makeDictionary(dictionary, words.map(word => [word, null, 1, "訳" + word, null]));
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
const erase = () => {
    answer("はい");
    click("frmMstmnt.Command8");
    boxes();
};
typeText("frmFind.txtFind", "w");
doubleClick("frmFind.List1", 1);
erase();
closeForm("frmMstmnt");
check([items("frmFind.List1"), text("frmFind.txtFind"), openForms(), enabled("frmFind"), boxes()],
    [["w3", "w4", "w5"], "w2", ["frmFind"], true, []], "by the frame: searched again");
doubleClick("frmFind.List1", 1);
erase();
typeText("frmMstmnt.Text3", "x");
exit();
check([boxes(), rows(dictionary).map(row => row.Description)], [[], ["訳w1", "訳w3", "訳w5"]], "at the program's end nothing is asked nor stored");
start();
typeText("frmFind.txtFind", "w");
doubleClick("frmFind.List1", 1);
erase();
remove(dictionary);
answer("OK");
click("frmMstmnt.Command9");
check(boxes().map(box => box.title), ["設定辞書「語」の辞書データベースなし"], "a dictionary that went: told by the search");
check([items("frmFind.List1"), text("frmFind.txtFind"), openForms(), enabled("frmFind")], [[], "w3", ["frmFind"], true], "and the main window is back");
