// Records are deleted after a question; the last one of the table follows, or the adding of a new one.
const dictionary = tempDir() + "/letters.mdb";
makeDictionary(dictionary, [["a", null, 1, "一", null], ["b", null, 1, "二", null], ["c", null, 2, "三", null]]);
setCatalogue([{name: "字", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
const words = () => rows(dictionary).map(row => row.Word);
const erase = () => click("frmMstmnt.Command8");

focusOn("frmMstmnt.Text1");
answer("いいえ");
erase();
const [box] = boxes();
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["削除確認", "表示中のデータを削除してよろしいですか？", 32, 32, ["はい", "いいえ"]], "the question");
check([words(), text("frmMstmnt.Text1"), focused()], [["a", "b", "c"], "a", "frmMstmnt.Text3"], "not deleted");
answer("はい");
erase();
check([words(), text("frmMstmnt.Text1"), state("CurrentAutoID")], [["b", "c"], "c", 3], "deleted: the last record is shown");
check([focused(), checked("frmMstmnt.Option2")], ["frmMstmnt.Text3", true], "the focus is on its meaning");
check(state("ViewConnection"), false, "nothing stays open");

// Changes that are not saved go with the record.
setText("frmMstmnt.Text3", "四");
answer("はい");
erase();
check([words(), boxes().length, text("frmMstmnt.Text3")], [["b"], 2, "二"], "no question but the one");
check([enabled("frmMstmnt.Command6"), enabled("frmMstmnt.Command7")], [false, false], "nothing to save");

// The only record.
answer("はい");
erase();
check([words(), state("frmMstmnt.EditState"), focused()], [[], 1, "frmMstmnt.Text1"], "the last one has gone: adding");
check(caption("frmMstmnt"), "辞書データベース メンテナンス （字） - 新規追加", "the caption of adding");
check([1, 2, 3, 4].map(number => text("frmMstmnt.Text" + number)), ["", "", "", ""], "empty boxes");
check([1, 2, 3, 4, 5, 6, 7, 8, 9, 10].filter(number => enabled("frmMstmnt.Command" + number)), [7, 9], "cancel and close are left");
boxes();
click("frmMstmnt.Command7");
check([state("frmMstmnt.EditState"), caption("frmMstmnt.Command7"), boxes()], [1, "キャンセル(&U)", []], "and cancel does nothing");
setText("frmMstmnt.Text1", "d");
setText("frmMstmnt.Text3", "四");
answer("はい");
click("frmMstmnt.Command6");
check(rows(dictionary).map(row => [row.Word, row.AutoID]), [["d", 4]], "numbers are never given again");
check([1, 2, 3, 4, 5, 6, 7, 8, 9, 10].filter(number => enabled("frmMstmnt.Command" + number)), [1, 2, 3, 4, 5, 8, 9, 10], "all is well again");
