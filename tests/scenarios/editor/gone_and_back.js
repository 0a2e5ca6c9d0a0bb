// Records that others delete or bring back while one of them is shown.
const dictionary = tempDir() + "/words.mdb";
const words = ["w1", "w2", "w3", "w4"];
const make = () => makeDictionary(dictionary, words.map(word => [word, null, 1, "訳" + word, null]));
make();
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
const here = () => [text("frmMstmnt.Text1"), state("CurrentAutoID"), text("frmMstmnt.Text3")];
const titles = () => boxes().map(box => box.title);

// A record that is there again when the editor looks for it behind its deletion: the next one is shown.
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
doubleClick("frmFind.List1", 1);
failNext("delete", 70);
answer("はい");
answer(() => {
    make();
    return "OK";
});
click("frmMstmnt.Command8");
check(titles(), ["削除確認", "エラー"], "the store cannot be rewritten, and meanwhile the record comes back");
check([here(), focused(), rows(dictionary).length], [["w3", 3, "訳w3"], "frmMstmnt.Text3", 4], "the one behind it is shown");
click("frmMstmnt.Command9");

// The record shown has gone.
menu("mnuOpen");
click("frmMstmnt.Command3");
deleteRow(dictionary, 2);
answer("OK");
click("frmMstmnt.Command3");
check([titles(), here()], [["エラー"], ["w2", 2, "訳w2"]], "there is no next one");
click("frmMstmnt.Command2");
check([titles(), here()], [[], ["w4", 4, "訳w4"]], "the previous one of none is the last");
click("frmMstmnt.Command2");
deleteRow(dictionary, 3);
typeText("frmMstmnt.Text3", "x");
answer("OK");
click("frmMstmnt.Command7");
check([titles(), here(), enabled("frmMstmnt.Command7")], [["エラー"], ["w3", 3, "x訳w3"], true], "nothing to go back to: what was typed stays");
answer("いいえ");
click("frmMstmnt.Command4");
check([titles(), here()], [["変更確認"], ["w4", 4, "訳w4"]], "the last one can be shown");

// All have gone.
typeText("frmMstmnt.Text3", "y");
makeDictionary(dictionary, []);
click("frmMstmnt.Command7");
check([titles(), here(), state("frmMstmnt.EditState"), enabled("frmMstmnt.Command6")], [[], ["w4", 4, "y訳w4"], 0, true], "an undoing does nothing then");
answer("いいえ");
click("frmMstmnt.Command5");
check([titles(), here()[0], state("frmMstmnt.EditState")], [["変更確認"], "", 1], "a new one can be added");
setText("frmMstmnt.Text1", "new");
setText("frmMstmnt.Text3", "新");
answer("はい");
click("frmMstmnt.Command6");
check([titles(), rows(dictionary).map(row => row.Word), state("frmMstmnt.EditState")], [["保存確認"], ["new"], 0], "and is");
click("frmMstmnt.Command9");
check([openForms(), enabled("frmFind")], [["frmFind"], true], "closed");
