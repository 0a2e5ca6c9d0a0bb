// The file box; and the main window, when the dictionary in use is pointed at another file.
const path = name => tempDir() + "/" + name + ".mdb";
for (const name of ["apple", "birch"])
    makeDictionary(path(name), [[name, null, 1, "木", null]]);
setCatalogue([{name: "Tree", path: path("apple"), selected: true}, {name: "樺", path: path("birch")}]);
start();
typeText("frmFind.txtFind", "apple");

menu("mnuDicAdd");
doubleClick("frmDicList.DicList", 0);
answerFile(null);
click("frmDicList.Command1");
const [box] = boxes();
check([box.kind, box.title, box.filter, box.mustExist, box.createPrompt],
      ["file", "辞書データファイルの選択", "Wordmere Files (*.mdb) | *.mdb", true, false], "the box");
check(text("frmDicList.Text2"), drivePath(path("apple")), "cancelled: nothing happens");
check(items("frmFind.List1"), ["apple"], "in the main window neither");

answerFile(path("apple"));
click("frmDicList.Command1");
check(items("frmFind.List1"), ["apple"], "the same file resets nothing");
settle();
navigations();
answerFile(path("birch"));
click("frmDicList.Command1");
check([text("frmDicList.Text2"), toolTip("frmDicList.Text2")], Array(2).fill(drivePath(path("birch"))), "the path");
ok(text("frmDicList.Label1").startsWith("ファイルサイズ： "), "its length");
ok(text("frmDicList.Label2").startsWith("更新日時： "), "its time");
check([items("frmFind.List1"), status()], [[], "Ready"], "the main window is reset");
settle();
check(paneText().trim(), "", "its page is blank");
check(navigations(), [drivePath(appFile("home.html"))], "and shown");
check(text("frmFind.txtFind"), "apple", "what was typed stays");

// An entry that is not in use resets nothing; nor does a name that only looks like it.
closeForm("frmDicList");
setText("frmFind.txtFind", "");
typeText("frmFind.txtFind", "apple");
menu("mnuDicAdd");
doubleClick("frmDicList.DicList", 1);
answerFile(path("apple"));
click("frmDicList.Command1");
check(items("frmFind.List1"), ["apple"], "another entry resets nothing");
click("frmDicList.ButtonCancel");

// The name counts as it is typed, in any width and case; in a list mode the results go.
closeForm("frmDicList");
menu("mnuPreSrch");
setText("frmFind.txtFind", "a");
press("frmFind.txtFind", "Enter");
check(exists(appFile("ListData.dat")), true, "a list search has its results");
menu("mnuDicAdd");
click("frmDicList.ButtonAdd");
setText("frmDicList.Text1", "ｔＲＥＥ");
answerFile(path("birch"));
click("frmDicList.Command1");
check(exists(appFile("ListData.dat")), false, "they go with the reset");
check([items("frmFind.List1"), status()], [[], "Ready"], "the list too");
