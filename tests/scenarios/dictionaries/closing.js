// Closing by the button saves and refreshes; by the window frame it does not.
const path = name => tempDir() + "/" + name + ".mdb";
for (const name of ["apple", "birch"])
    makeDictionary(path(name), [[name, null, 1, "木", null], [name + "s", null, 1, "木々", null]]);
setCatalogue([{name: "林檎", path: path("apple"), selected: true}, {name: "樺", path: path("birch")}]);
start();
const rename = (row, name) => {
    doubleClick("frmDicList.DicList", row);
    setText("frmDicList.Text1", name);
    click("frmDicList.ButtonOK");
};

// Nothing changed: nothing happens.
typeText("frmFind.txtFind", "apple");
settle();
navigations();
let before = readBytes(appFile("lexicons.dat"));
menu("mnuDicAdd");
click("frmDicList.ButtonQuit");
check([items("frmFind.List1"), text("frmFind.txtFind")], [["apple", "apples"], "apple"], "the search stands");
check(navigations(), [], "so does the page");
check([enabled("frmFind"), isOpen("frmDicList")], [true, false], "the main window takes input");

// Something changed, in incremental mode.
menu("mnuDicAdd");
rename(0, "りんご");
click("frmDicList.ButtonQuit");
check([items("frmFind.List1"), text("frmFind.txtFind"), status()], [[], "", ""], "the main window is cleared");
settle();
check(paneText().trim(), "", "its page too");
ok(navigations().length > 0, "which is shown");
check(items("frmFind.Combo1"), ["りんご", "樺"], "its box shows the names");
check(["Picture14", "Picture15", "Picture17", "Picture18", "Picture19", "Picture20"].map(name => visible("frmFind." + name)),
      [false, false, false, false, true, true], "the paging pictures");
ok(readBytes(appFile("lexicons.dat")) !== before, "the file is written");

// In another mode, with results on the disk.
menu("mnuPreSrch");
typeText("frmFind.txtFind", "a");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1"), ["apple", "apples"], "a list search");
check(exists(appFile("ListData.dat")), true, "has its results");
menu("mnuDicAdd");
rename(1, "白樺");
check(exists(appFile("ListData.dat")), true, "they stay until the dialog is closed");
click("frmDicList.ButtonQuit");
check(exists(appFile("ListData.dat")), false, "then they go");
check([items("frmFind.List1"), text("frmFind.txtFind"), status()], [[], "", ""], "the main window is cleared");
check(state("SearchMode"), 1, "the mode stays");
check(["Picture14", "Picture15", "Picture17", "Picture18", "Picture19", "Picture20"].map(name => visible("frmFind." + name)),
      [false, false, false, false, false, false], "no paging picture");
menu("mnuIncSrch");

// By the frame.
before = readBytes(appFile("lexicons.dat"));
typeText("frmFind.txtFind", "apple");
menu("mnuDicAdd");
rename(0, "アップル");
closeForm("frmDicList");
check([isOpen("frmDicList"), enabled("frmFind")], [false, true], "the dialog has gone");
check(items("frmFind.Combo1"), ["りんご", "白樺"], "the box is not refreshed");
check([items("frmFind.List1"), text("frmFind.txtFind")], [["apple", "apples"], "apple"], "the search stands");
check(readBytes(appFile("lexicons.dat")), before, "nothing is written yet");
menu("mnuDicAdd");
check(items("frmDicList.DicList"), ["アップル", "白樺"], "the array has the change");
closeForm("frmDicList");
exit();
ok(readBytes(appFile("lexicons.dat")) !== before, "the end of the program writes it");
start();
check(items("frmFind.Combo1"), ["アップル", "白樺"], "the next start reads it");
check(boxes(), [], "no box was shown");
