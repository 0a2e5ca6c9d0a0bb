// The buttons of the editor by their mnemonics, and the one that has none after a saving.
const dictionary = tempDir() + "/letters.mdb";
makeDictionary(dictionary, [["a", null, 1, "一", null], ["b", null, 1, "二", null], ["c", null, 1, "三", null]]);
setCatalogue([{name: "字", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
const word = () => text("frmMstmnt.Text1");
// A button shows that it is pressed for a moment.
const alt = (key, done) => {
    press("frmMstmnt.Text3", "Alt+" + key);
    for (let i = 0; i < 30 && !done(); ++i)
        settle();
};
for (const [key, expected] of [["N", "b"], ["L", "c"], ["P", "b"], ["F", "a"]]) {
    alt(key, () => word() === expected);
    check(word(), expected, "Alt+" + key);
}
typeText("frmMstmnt.Text3", "x");
alt("U", () => text("frmMstmnt.Text3") === "一");
check(text("frmMstmnt.Text3"), "一", "Alt+U undoes");
typeText("frmMstmnt.Text3", "x");
answer("はい");
alt("V", () => !enabled("frmMstmnt.Command6"));
check([boxes().map(box => box.title), rows(dictionary)[0].Description], [["保存確認"], "x一"], "Alt+V saves");
setText("frmMstmnt.Text3", "y");
alt("U", () => text("frmMstmnt.Text3") === "x一");
check(text("frmMstmnt.Text3"), "y", "Alt+U means nothing behind a saving");
click("frmMstmnt.Command7");
typeText("frmMstmnt.Text3", "z");
alt("U", () => text("frmMstmnt.Text3") === "x一");
check(text("frmMstmnt.Text3"), "x一", "and is back behind an undoing");
answerInput("c");
alt("S", () => word() === "c");
check(word(), "c", "Alt+S searches");
answer("いいえ");
alt("D", () => focused() === "frmMstmnt.Text3" && boxes().length > 0);
check(rows(dictionary).length, 3, "Alt+D asks first");
alt("A", () => state("frmMstmnt.EditState") === 1);
check([state("frmMstmnt.EditState"), focused()], [1, "frmMstmnt.Text1"], "Alt+A adds");
alt("N", () => false);
check([word(), state("frmMstmnt.EditState")], ["", 1], "no moving meanwhile");
alt("U", () => state("frmMstmnt.EditState") === 0);
check(word(), "c", "Alt+U cancels");
alt("C", () => !isOpen("frmMstmnt"));
check(openForms(), ["frmFind"], "Alt+C closes");
