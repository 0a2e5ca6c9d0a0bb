// A field that begins with U+FEFF (as where files with a byte order mark were joined) is read without it.
const dictionary = tempDir() + "/mark.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫一", null], ["\ufeffcat", null, 1, "猫二", null]]);
setCatalogue([{name: "印", path: dictionary, selected: true}]);
start();
check(rows(dictionary).map(row => row.Word), ["cat", "\ufeffcat"], "the words as they were stored");
menu("mnuWildCard");
setText("frmFind.txtFind", "%cat");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1").length, 2, "both are hits");
check(page().match(/猫./g), ["猫一", "猫二"], "both entries are on the page");
answer("OK");
doubleClick("frmFind.List1", 1);
check(boxes().map(box => box.title), [], "the record has not been deleted");
if (isOpen("frmMstmnt"))
    closeForm("frmMstmnt");
