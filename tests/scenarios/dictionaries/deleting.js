// Deletions: asked for, slot by slot, down to the last entry.
const path = name => tempDir() + "/" + name + ".mdb";
for (const name of ["a", "b"])
    makeDictionary(path(name), [[name, null, 1, "文字", null]]);
setCatalogue([{name: "一", path: path("a"), selected: true}, {name: "二", path: path("b")}]);
start();
menu("mnuDicAdd");

answer("OK");
click("frmDicList.ButtonDelete");
const [nothing] = boxes();
check([nothing.title, nothing.text],
      ["辞書の未選択", "削除する辞書が選択されていません！\r\n\r\nリストの中から辞書クリックして選択してください。"],
      "nothing is selected");
check([nothing.icon, nothing.beep, nothing.buttons], [48, 48, ["OK"]], "icon, beep, button");

clickRow("frmDicList.DicList", 0);
answer("いいえ");
click("frmDicList.ButtonDelete");
const [question] = boxes();
check([question.title, question.text], ["削除確認", "設定済み辞書「一」を削除してもよろしいですか？"], "the question");
check([question.icon, question.beep, question.buttons, question.defaultButton], [32, 32, ["はい", "いいえ"], "はい"],
      "icon, beep, buttons");
check(items("frmDicList.DicList"), ["一", "二"], "no: nothing changes");
check(text("frmDicList.Text1"), "一", "the fields neither");
check(state("frmDicList.IsDicListDirty"), 0, "nor the flag");

answer("はい");
click("frmDicList.ButtonDelete");
check(items("frmDicList.DicList"), ["二"], "yes: the row goes");
check(selectedRow("frmDicList.DicList"), -1, "none is selected");
check(state("Lexicons")[0], {DicName: "", DicPath: "", IsSelected: 0, IsDeleted: -1}, "the slot is free");
check(["Text1", "Text2", "Label1", "Label2"].map(name => text("frmDicList." + name)), ["", "", "", ""],
      "the fields are emptied");
check(state("frmDicList.IsDicListDirty"), -1, "something has changed");
check(exists(path("a")), true, "the database itself is not touched");
clickRow("frmDicList.DicList", 0);
answer("はい");
click("frmDicList.ButtonDelete");
boxes();
click("frmDicList.ButtonQuit");
check(size(appFile("lexicons.dat")), 0, "the last one gone, the file holds no record");
check([enabled("frmFind.Combo1"), enabled("frmFind.txtFind")], [false, false], "there is nothing to search");
check([text("frmFind.Combo1"), state("CurrentDicName"), state("CurrentDicPath")], ["", "", ""], "nor in use");
check([state("CatalogueFlag1"), state("CatalogueFlag2")], [0, 0], "the flags");
check(exists(path("b")), true, "both databases are there");
check(isOpen("frmDicList"), false, "the dialog has closed");
exit();
check(size(appFile("lexicons.dat")), 0, "and stays empty");
start();
check(state("Lexicons"), null, "also at the next start");
menu("mnuDicAdd");
check(items("frmDicList.DicList"), [], "an empty list");
answerFile(path("b"));
click("frmDicList.ButtonAdd");
click("frmDicList.Command1");
boxes();
click("frmDicList.ButtonOK");
click("frmDicList.ButtonQuit");
check(items("frmFind.Combo1"), ["新しい辞書"], "a new beginning");
