// The menus stay alive while a list search runs: the editor opens in one of its yields, and can write.
const dictionary = tempDir() + "/words.mdb";
const words = [];
for (let i = 0; i < 40; ++i)
    words.push(["w" + String(i).padStart(2, "0"), null, 1, "訳", null]);
makeDictionary(dictionary, words);
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
let stored = null;
atYield(5, () => {
    menu("mnuOpen");
    typeText("frmMstmnt.Text3", "新");
    answer("はい");
    click("frmMstmnt.Command6");
    stored = rows(dictionary)[0].Description;
});
press("frmFind.txtFind", "Enter");
check(stored, "新訳", "saved in the midst of the search");
check([items("frmFind.List1").length, state("HitCount"), isOpen("frmMstmnt"), enabled("frmFind")], [40, 40, true, false], "which went on to its end");
check(boxes().map(box => box.title), ["保存確認"], "nothing failed");
answer("はい");
click("frmMstmnt.Command8");
check([items("frmFind.List1").length, size(appFile("ListData.dat"))], [40, 40 * 520], "opened from the menu it takes nothing out");
click("frmMstmnt.Command9");
check([openForms(), enabled("frmFind")], [["frmFind"], true], "closed");
