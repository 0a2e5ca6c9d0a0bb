// Behind every operation, and while every question stands, no dictionary is open: others can write in it.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ant", null, 1, "蟻", null], ["bee", null, 1, "蜂", null], ["cow", null, 1, "牛", null]]);
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
const isOpenView = () => state("ViewConnection") !== false || state("ViewRecordset") !== false;
const asked = [];
/// Answers the next box, and keeps what was open meanwhile.
const reply = word => answer(box => {
    asked.push([box.title, isOpenView()]);
    return word;
});
menu("mnuOpen");
check(isOpenView(), false, "opened");
click("frmMstmnt.Command3");
check(isOpenView(), false, "moved");
reply("OK");
click("frmMstmnt.Command1");
click("frmMstmnt.Command2");
check(asked.splice(0), [["先頭レコード", false]], "at the first one");
typeText("frmMstmnt.Text3", "x");
reply("はい");
click("frmMstmnt.Command6");
check([asked.splice(0), isOpenView()], [[["保存確認", false]], false], "saved");
setText("frmMstmnt.Text1", "bee");
reply("はい");
reply("いいえ");
click("frmMstmnt.Command6");
check([asked.splice(0), isOpenView()], [[["保存確認", false], ["重複保存確認", false]], false], "a word that is there");
setText("frmMstmnt.Text1", "wasp");
reply("はい");
click("frmMstmnt.Command6");
check([asked.splice(0), isOpenView(), state("CurrentWord")], [[["保存確認", false]], false, "wasp"], "renamed");
click("frmMstmnt.Command5");
click("frmMstmnt.Command7");
check(isOpenView(), false, "cancelled");
click("frmMstmnt.Command5");
setText("frmMstmnt.Text1", "dog");
setText("frmMstmnt.Text3", "犬");
reply("はい");
click("frmMstmnt.Command6");
check([asked.splice(0), isOpenView()], [[["保存確認", false]], false], "added");
let opened = null;
answerInput(() => {
    opened = isOpenView();
    return "nothing";
});
reply("OK");
click("frmMstmnt.Command10");
check([opened, asked.splice(0), isOpenView()], [false, [["該当データなし", false]], false], "searched");
for (let left = 4; left > 0; --left) {
    reply("はい");
    click("frmMstmnt.Command8");
    check([asked.splice(0), isOpenView(), rows(dictionary).length], [[["削除確認", false]], false, left - 1], "deleted");
}
click("frmMstmnt.Command7");
check([isOpenView(), state("frmMstmnt.EditState")], [false, 1], "a cancel that leads nowhere");
setText("frmMstmnt.Text1", "elk");
setText("frmMstmnt.Text3", "鹿");
reply("はい");
click("frmMstmnt.Command9");
check([asked.splice(0), isOpenView(), rows(dictionary).length], [[["保存確認", false]], false, 1], "added at the closing");
boxes();
