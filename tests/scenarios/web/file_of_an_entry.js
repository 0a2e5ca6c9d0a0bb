// An entry asks for no files: no box comes up for one.
const dictionary = tempDir() + "/hostile.mdb";
makeDictionary(dictionary, [["trap", null, 1, "ENTRY <input type=file>", null]]);
setCatalogue([{name: "罠", path: dictionary, selected: true}]);
start();
setText("frmFind.txtFind", "trap");
settle();
focusOn("frmFind.WebBrowser1");
press("frmFind.WebBrowser1", "Tab");
press("frmFind.WebBrowser1", "Space");
for (let turn = 0; turn < 10; ++turn)
    settle();
check(boxes(), [], "no box");
