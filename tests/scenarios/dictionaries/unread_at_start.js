// A catalogue that could not be read at the start is read before the dialog may save another in its place.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
setCatalogue(["一", "二", "三"].map(name => ({name, path: dictionary, selected: name === "二"})));
const catalogue = appFile("lexicons.dat");
const entries = readBytes(catalogue);
remove(catalogue);
mkdir(catalogue);
answer("OK");
start();
check(boxes().map(box => box.title), ["エラー"], "told at the start");
check(state("Lexicons"), null, "there are no entries");

answer("OK");
menu("mnuDicAdd");
check([boxes().map(box => box.title), isOpen("frmDicList"), enabled("frmFind")], [["エラー"], false, true],
      "as long as it cannot be read the dialog does not open");

remove(catalogue);
writeBytes(catalogue, entries);
menu("mnuDicAdd");
check(items("frmDicList.DicList"), ["一", "二", "三"], "then it has the entries");
check([items("frmFind.Combo1"), text("frmFind.Combo1"), enabled("frmFind.txtFind")], [["一", "二", "三"], "二", true],
      "and so has the main window");
click("frmDicList.ButtonAdd");
setText("frmDicList.Text1", "四");
answerFile(dictionary);
click("frmDicList.Command1");
boxes();
click("frmDicList.ButtonOK");
click("frmDicList.ButtonQuit");
check(readBytes(catalogue).slice(0, entries.length), entries, "what was there is there");
check(size(catalogue), 4 * 309, "with the new one");
typeText("frmFind.txtFind", "ice");
check(items("frmFind.List1"), ["ice"], "and can be looked into");
