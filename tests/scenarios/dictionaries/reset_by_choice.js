// Pointing the dictionary in use at another file, seen from the page and the results.
const path = name => tempDir() + "/" + name + ".mdb";
for (const name of ["apple", "birch"])
    makeDictionary(path(name), [[name, null, 1, "木", null]]);
setCatalogue([{name: "木", path: path("apple"), selected: true}]);
start();
const pointAt = name => {
    menu("mnuDicAdd");
    doubleClick("frmDicList.DicList", 0);
    settle();
    navigations();
    answerFile(path(name));
    click("frmDicList.Command1");
    boxes();
};
menu("mnuPreSrch");
typeText("frmFind.txtFind", "a");
press("frmFind.txtFind", "Enter");
ok(page().includes("木"), "an entry is shown");
pointAt("birch");
check(page().includes("木"), false, "the page is blank");
check(navigations(), [drivePath(appFile("home.html"))], "and shown");
check([exists(appFile("ListData.dat")), text("frmFind.txtFind")], [false, "a"], "the results go, what was typed stays");
check(state("CurrentDicPath"), drivePath(path("apple")), "the path in use is still the old one");
check(state("frmDicList.IsDicListDirty"), 0, "nothing has changed yet");

// The path in the field counts, not the one in use: back to the first file is a reset too.
writeBytes(appFile("ListData.dat"), "results");
settle();
navigations();
answerFile(path("apple"));
click("frmDicList.Command1");
boxes();
check(navigations(), [drivePath(appFile("home.html"))], "the way back");
check(exists(appFile("ListData.dat")), false, "clears the results as well");
closeForm("frmDicList");

// In incremental mode the results are let alone.
menu("mnuIncSrch");
typeText("frmFind.txtFind", "apple");
check(items("frmFind.List1"), ["apple"], "a list");
writeBytes(appFile("ListData.dat"), "results");
pointAt("birch");
check([items("frmFind.List1"), status()], [[], "Ready"], "the list is cleared");
check(readBytes(appFile("ListData.dat")), "results", "the results stay");

// Given up, nothing of it stays.
click("frmDicList.ButtonCancel");
check(state("Lexicons")[0].DicPath, drivePath(path("apple")), "the entry is as it was");
click("frmDicList.ButtonQuit");
check(text("frmFind.txtFind"), "apple", "and the closing has nothing to do");
