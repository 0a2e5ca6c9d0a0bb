// Records that went since the search, and the double click that tells of them.
const dictionary = tempDir() + "/going.mdb";
const make = () => makeDictionary(dictionary, ["w1", "w2", "w3", "w4"].map((word, i) => [word, null, 1, "訳" + (i + 1), null]));
make();
setCatalogue([{name: "去", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015003005001503000\r\n");
start();
menu("mnuPreSrch");
const search = () => {
    setText("frmFind.txtFind", "w");
    press("frmFind.txtFind", "Enter");
};
const shown = () => (page().match(/訳\d/g) || []).map(found => Number(found.slice(1)));
search();

// A double click opens the record in the editor.
const openRow = row => {
    doubleClick("frmFind.List1", row);
    closeForm("frmMstmnt");
};
openRow(1);
check([state("CurrentWord"), state("CurrentAutoID"), state("EditOpenMode")], ["w2", 2, 1], "a double click takes the record");
check(shown(), [2, 3], "behind its click");
check(state("ViewConnection"), false, "nothing stays open");

deleteRow(dictionary, 2);
clickRow("frmFind.List1", 0);
check(shown(), [1, 3], "a page leaves out a record that has gone");
check(page().slice(-16), "</BODY></HTML>\r\n", "and is whole");
clickRow("frmFind.List1", 1);
check([shown(), boxes()], [[3], []], "a click on it says nothing");
answer("OK");
doubleClick("frmFind.List1", 1);
const [box] = boxes();
check([box.title, box.text], ["削除", "この見出し語は検索後に削除されたため存在しません！"], "the double click tells");
check([box.icon, box.beep, box.buttons], [48, 48, ["OK"]], "an exclamation with its beep");
check(state("ViewConnection"), false, "nothing stays open");
check([state("CurrentWord"), state("CurrentAutoID")], ["w2", 2], "the record taken before stays");
mouseDown("frmFind.Picture15");
mouseDown("frmFind.Picture14");
check(items("frmFind.List1"), ["w1", "w2", "w3"], "the list keeps the stored word, so that rows stay in step");
openRow(2);
check([state("CurrentWord"), state("CurrentAutoID")], ["w3", 3], "the row behind it is the right one");
check(state("HitCount"), 4, "the count stays");
search();
check(items("frmFind.List1"), ["w1", "w3", "w4"], "the next search knows");

// In the incremental search.
menu("mnuIncSrch");
typeText("frmFind.txtFind", "w");
openRow(1);
check(["CurrentWord", "CurrentAutoID", "SavedIncSearchText", "EditOpenMode"].map(state), ["w3", 3, "w3", 1], "takes the record");
menu("mnuSrchFromWord");
setText("frmFind.txtFind", "w");
deleteRow(dictionary, 4);
answer("OK");
doubleClick("frmFind.List1", 2);
check(boxes().map(box => [box.title, box.icon, box.beep]), [["削除", 48, 48]], "and tells of one that went");

// A double click on nothing, or with the dictionary gone.
press("frmFind.txtFind", "Esc");
menu("mnuSrchFromAll");
doubleClick("frmFind.List1");
check(boxes(), [], "an empty list");
menu("mnuPreSrch");
search();
remove(dictionary);
answer("OK");
answer("OK");
doubleClick("frmFind.List1", 0);
check(boxes().map(box => box.title), ["設定辞書「去」の辞書データベースなし", "エラー"],
    "the click tells of the dictionary, the double click of its failure");
check([enabled("frmFind"), pointer()], [true, 0], "the window is usable");
make();
search();
check(shown(), [1, 2, 3], "all is well again");
