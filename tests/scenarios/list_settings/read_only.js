// A file that is read-only: told at each try to save, and nothing that was typed is lost.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run", null, 1, "走る", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const file = appFile("ListDefi.dat");
writeBytes(file, "06015050005001503000\r\n");
start();
makeReadOnly(file);
menu("mnuListSettings");
setText("frmListSettings.Text1", "70");
for (const [what, act] of [["保存", () => click("frmListSettings.Command1")],
    ["閉じる", () => click("frmListSettings.Command2")], ["the frame", () => closeForm("frmListSettings")]]) {
    if (what !== "保存")
        answer("はい");
    answer("OK");
    act();
    const shown = boxes();
    check([shown[shown.length - 1].title, shown[shown.length - 1].icon], ["エラー", 16], "read-only, " + what);
    check([readBytes(file), state("IncListCount"), isOpen("frmListSettings")], ["06015050005001503000\r\n", 60, true],
        "the dialog stays with what was typed");
}
answer("いいえ");
closeForm("frmListSettings");
boxes();
check([isOpen("frmListSettings"), enabled("frmFind")], [false, true], "it can be closed without saving");
