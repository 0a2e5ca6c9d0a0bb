// The first entry of a catalogue that had none, and the window frame: the flags of the catalogue are as they
// were, and with them the list; the array has the entry, and the end writes it.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
start();
const add = () => {
    click("frmDicList.ButtonAdd");
    answerFile(dictionary);
    click("frmDicList.Command1");
    boxes();
    click("frmDicList.ButtonOK");
};
menu("mnuDicAdd");
add();
check(items("frmDicList.DicList"), ["新しい辞書"], "the entry");
closeForm("frmDicList");
check([state("CatalogueFlag1"), state("CatalogueFlag2")], [0, 0], "the flags");
check([enabled("frmFind.Combo1"), enabled("frmFind.txtFind"), items("frmFind.Combo1")], [false, false, []],
      "the main window is not refreshed");
check(size(appFile("lexicons.dat")), 0, "nothing is written");
menu("mnuDicAdd");
check(items("frmDicList.DicList"), [], "without the flag the list is not filled");
click("frmDicList.ButtonAdd");
check(text("frmDicList.Text1"), "新しい辞書1", "the name is known");
setText("frmDicList.Text1", "新しい辞書");
answerFile(dictionary);
click("frmDicList.Command1");
boxes();
answer("OK");
click("frmDicList.ButtonOK");
check(boxes().map(box => box.title), ["辞書名の重複"], "and taken");
closeForm("frmDicList");
exit();
check(size(appFile("lexicons.dat")), 309, "the end writes the entry");
start();
check([items("frmFind.Combo1"), state("CurrentDicName")], [["新しい辞書"], "新しい辞書"], "the next start opens it");

// All entries deleted, and the window frame.
menu("mnuDicAdd");
clickRow("frmDicList.DicList", 0);
answer("はい");
click("frmDicList.ButtonDelete");
boxes();
closeForm("frmDicList");
check([items("frmFind.Combo1"), enabled("frmFind.txtFind"), state("CurrentDicName")], [["新しい辞書"], true, "新しい辞書"],
      "the main window still has it");
menu("mnuDicAdd");
check(items("frmDicList.DicList"), [], "the list leaves a free slot out");
add();
check(state("Lexicons").map(entry => [entry.DicName, entry.IsDeleted]), [["新しい辞書", 0], ["", 0]],
      "the name is free again, and so is the slot");
closeForm("frmDicList");
menu("mnuDicAdd");
clickRow("frmDicList.DicList", 0);
answer("はい");
click("frmDicList.ButtonDelete");
boxes();
closeForm("frmDicList");
exit();
check(size(appFile("lexicons.dat")), 0, "the end writes a catalogue without entries");
