// An edit without an entry on a catalogue that never held one: it counts as a change, and the closing finds
// nothing to write.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
start();
menu("mnuDicAdd");
doubleClick("frmDicList.DicList");
check(caption("frmDicList"), "編集 - ", "a double click on the empty list");
setText("frmDicList.Text1", "氷");
answerFile(dictionary);
click("frmDicList.Command1");
boxes();
click("frmDicList.ButtonOK");
check([state("Lexicons"), state("frmDicList.IsDicListDirty"), items("frmDicList.DicList")], [null, -1, []],
      "nothing is stored, yet it counts");
click("frmDicList.ButtonQuit");
check([isOpen("frmDicList"), enabled("frmFind")], [false, true], "the dialog closes");
check([state("CatalogueFlag1"), enabled("frmFind.txtFind"), size(appFile("lexicons.dat"))], [0, false, 0], "the catalogue is empty");
check(boxes(), [], "no box");
exit();
check(size(appFile("lexicons.dat")), 0, "and stays so");
