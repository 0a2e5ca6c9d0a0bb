// An application folder that nobody may write: the program comes up, shows, and loses nothing.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["oak", null, 1, "楢", null], ["oar", null, 1, "櫂", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}, {name: "二", path: dictionary}]);
start();
exit();
const files = ["FontDefi.dat", "sscDefi.dat", "ListDefi.dat", "lexicons.dat", "AgentDefi.dat", "home.html"];
const before = files.map(file => readBytes(appFile(file)));
makeReadOnly(appFile(""));

const denied = "エラー番号  70 Wordmere でエラーが発生しました。\r書き込みできません。";
answer("OK");
start();
check(boxes().map(box => [box.title, box.text]), [["エラー", denied]], "the page alone is to be written");
check(visible("frmFind"), true, "the window appears");
check(text("frmFind.Combo1"), "英和", "the catalogue is read");
check(state("FontSizes"), [9, 9, 9, 9, 9, 9, 9, 9, 9], "the fonts are read");

answer("OK");
setText("frmFind.txtFind", "oa");
check(boxes().map(box => [box.title, box.text]), [["エラー", denied]], "a page that cannot be written is told");
check(text("frmFind.txtFind"), "oa", "what was typed stays");
check(enabled("frmFind"), true, "the window takes input");

answer("OK");
answer("OK");
choose("frmFind.Combo1", 1);
check(boxes().map(box => box.text), [denied, denied], "the page is to be cleared with the box and with the list");
check(state("CurrentDicName"), "二", "another dictionary can be chosen");
answer("OK");
exit();
check(boxes().map(box => box.text), [denied], "the catalogue cannot be saved, and that is told");
check(files.map(file => readBytes(appFile(file))), before, "every file is as it was");
