// A double click does not ask for a selection: beside the rows it sends the selected row, and with none it empties the box.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run", null, 1, "走る", null], ["zoo", null, 1, "動物園", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const list = "frmHistory.List1";
typeText("frmFind.txtFind", "zoo");
menu("mnuHistory");
answerInput("run");
click("frmHistory.Command1");
check([items(list), selectedRow(list)], [["run"], 0], "a row is selected");
doubleClick(list);
check(text("frmFind.txtFind"), "run", "a double click beside the rows sends the selected one");
answer("はい");
click("frmHistory.Command2");
doubleClick(list);
check(text("frmFind.txtFind"), "", "with nothing selected the box is emptied");
check(boxes().map(box => box.kind), ["input", "message"], "and no box");
