// A new entry with a name in use is found out after the fields were disabled: only the window frame is left.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const before = readBytes(appFile("lexicons.dat"));
menu("mnuDicAdd");
click("frmDicList.ButtonAdd");
setText("frmDicList.Text1", "英和");
answerFile(dictionary);
click("frmDicList.Command1");
boxes();
answer("OK");
click("frmDicList.ButtonOK");
const [box] = boxes();
check([box.title, box.text], ["辞書名の重複", "辞書名「英和」は既に使用されています。\r\n\r\n別の名前をお使い下さい。"],
      "the duplicate is told");
check([box.icon, box.beep, box.buttons], [48, 48, ["OK"]], "icon, beep, button");
const of = (names, read) => names.map(name => read("frmDicList." + name));
const choosing = ["DicList", "ButtonAdd", "ButtonChange", "ButtonDelete", "ButtonQuit"];
check(of(["Text1", "Text2", "Command1", "ButtonOK", "ButtonCancel"], enabled), Array(5).fill(false),
      "the fields are disabled");
check(of(choosing, enabled), Array(5).fill(true), "the list and its buttons are enabled");
check(of(choosing, visible), Array(5).fill(false), "but hidden");
check(caption("frmDicList"), "新規追加", "the caption stays");
check(text("frmDicList.Text1"), "英和", "so does the text");
check(state("Lexicons").map(entry => entry.DicName), ["英和", ""], "no entry was added");
press("frmDicList", "Esc");
press("frmDicList", "Enter");
check(isOpen("frmDicList"), true, "neither key helps");
closeForm("frmDicList");
check(isOpen("frmDicList"), false, "the window frame does");
check(enabled("frmFind"), true, "the main window takes input");
typeText("frmFind.txtFind", "ice");
check(items("frmFind.List1"), ["ice"], "and goes on");
exit();
check(readBytes(appFile("lexicons.dat")), before, "the catalogue is as it was");
check(boxes(), [], "no other box");
