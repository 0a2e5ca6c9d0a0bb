// A headword that ends with NUL is a hit whose key finds no row.
const dictionary = tempDir() + "/nul.mdb";
makeDictionary(dictionary, [["wa", null, 1, "訳1", null], ["wb\u0000", null, 1, "訳2", null], ["wc\u0000 ", null, 1, "訳3", null]]);
setCatalogue([{name: "零", path: dictionary, selected: true}]);
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
check(page().match(/訳\d/g), ["訳1", "訳2", "訳3"], "every hit is on the page");
answer("OK");
doubleClick("frmFind.List1", 1);
check(boxes().map(box => box.title), [], "the record has not been deleted");
if (isOpen("frmMstmnt"))
    closeForm("frmMstmnt");
