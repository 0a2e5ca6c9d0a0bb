// Behind Esc the paging pictures stand: they must not bring up rows of nothing, nor a store that Esc deleted.
const dictionary = tempDir() + "/seven.mdb";
makeDictionary(dictionary, Array.from({length: 7}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
setCatalogue([{name: "七", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015003005000203000\r\n");
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
press("frmFind.txtFind", "Esc");
mouseDown("frmFind.Picture15");
check(items("frmFind.List1").filter(word => word === ""), [], "no rows of nothing");
check(exists(appFile("ListData.dat")), false, "no store");
