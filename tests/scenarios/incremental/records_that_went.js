// Records that went since the list was filled, and a dictionary that can only be read.
const dictionary = tempDir() + "/going.mdb";
const make = () => makeDictionary(dictionary, [
    ["ant", null, 1, "蟻", null],
    ["bee", null, 1, "蜂", null],
    ["cat", null, 1, "猫", null],
    ["dog", null, 1, "犬", null],
]);
make();
setCatalogue([{name: "動物", path: dictionary, selected: true}]);
start();

const entries = () => (page().match(/sty3>[^<]*/g) || []).map(found => found.slice(5));

// In a limited list the record is left out without a word.
menu("mnuSrchFromWord");
typeText("frmFind.txtFind", "c");
check(items("frmFind.List1"), ["cat"], "a list");
deleteRow(dictionary, 3);
clickRow("frmFind.List1", 0);
check(entries(), [], "the record has gone from the page");
check(page().slice(-16), "</BODY></HTML>\r\n", "which is whole");
check(items("frmFind.List1"), ["cat"], "the list is as it was");
typeText("frmFind.txtFind", "c");
press("frmFind.txtFind", "Backspace");
press("frmFind.txtFind", "Backspace");
press("frmFind.txtFind", "Backspace");
check(items("frmFind.List1"), [], "the next search knows");

// In a place of the table what stands there now is shown: the row in front.
press("frmFind.txtFind", "Esc");
menu("mnuSrchFromAll");
make();
typeText("frmFind.txtFind", "b");
deleteRow(dictionary, 3);
clickRow("frmFind.List1", 1);
check(entries(), ["蜂", "犬"], "the row in front of the one that went");
check(items("frmFind.List1"), ["bee", "cat", "dog"], "the list stays until the next key");
setText("frmFind.txtFind", "b");
check(items("frmFind.List1"), ["bee", "dog"], "which knows");
check(boxes(), [], "nothing was said");

// A dictionary that cannot be written is searched all the same.
exit();
make();
makeReadOnly(dictionary);
start();
typeText("frmFind.txtFind", "c");
check(items("frmFind.List1"), ["cat", "dog"], "as a place");
clickRow("frmFind.List1", 1);
check(entries(), ["犬"], "by a click");
mouseDown("frmFind.Picture19");
check(entries(), ["蟻", "蜂", "猫"], "by paging");
menu("mnuSrchFromWord");
check(items("frmFind.List1"), ["dog"], "and limited");
