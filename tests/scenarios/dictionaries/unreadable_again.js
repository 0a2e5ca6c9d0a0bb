// The catalogue was written and cannot be read again: told, the dialog stays, and the next try goes through.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
setCatalogue([{name: "甲", path: dictionary, selected: true}, {name: "乙", path: dictionary}]);
start();
menu("mnuDicAdd");
clickRow("frmDicList.DicList", 0);
answer("はい");
click("frmDicList.ButtonDelete");
boxes();
failNext("read", 57);
answer("OK");
click("frmDicList.ButtonQuit");
check(boxes().map(box => box.text), ["エラー番号  57 Wordmere でエラーが発生しました。\rデバイス I/O エラーです。"], "told");
check([isOpen("frmDicList"), state("frmDicList.IsDicListDirty")], [true, -1], "the dialog stays");
check([items("frmFind.Combo1"), state("CurrentDicName"), state("CatalogueFlag1")], [["甲", "乙"], "甲", -1],
      "the main window is as it was");
check(size(appFile("lexicons.dat")), 309, "the file is written");
click("frmDicList.ButtonQuit");
check([isOpen("frmDicList"), items("frmFind.Combo1"), state("CurrentDicName")], [false, ["乙"], "乙"], "the next try");
check(size(appFile("lexicons.dat")), 309, "writes the same");
