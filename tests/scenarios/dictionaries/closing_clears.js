// What the closing by the button clears away: pages of hits, their results, the page; and what it leaves.
const dictionary = tempDir() + "/many.mdb";
makeDictionary(dictionary, Array.from({length: 120}, (_, i) => ["word" + String(i).padStart(3, "0"), null, 1, "意味", null]));
setCatalogue([{name: "多い", path: dictionary, selected: true}]);
start();
const paging = ["Picture14", "Picture15", "Picture17", "Picture18"];
const shown = () => paging.map(name => visible("frmFind." + name));
const rename = name => {
    menu("mnuDicAdd");
    doubleClick("frmDicList.DicList", 0);
    setText("frmDicList.Text1", name);
    click("frmDicList.ButtonOK");
};

menu("mnuPreSrch");
typeText("frmFind.txtFind", "word");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1").length, 50, "a page of hits");
check(shown(), [true, true, true, true], "hits and entries can be paged through");
ok(status() !== "", "the status bar tells of them");
ok(page().includes("意味"), "the page shows entries");
rename("多数");
check([items("frmFind.List1").length, shown()], [50, [true, true, true, true]], "a change alone clears nothing");
settle();
navigations();
click("frmDicList.ButtonQuit");
check(shown(), [false, false, false, false], "the paging pictures are off");
check(exists(appFile("ListData.dat")), false, "the results are gone");
check([items("frmFind.List1"), text("frmFind.txtFind"), status()], [[], "", ""], "list, entry box and status bar are empty");
check(page().includes("意味"), false, "the page is blank");
check(navigations(), [drivePath(appFile("home.html"))], "and is shown, once");

// In incremental mode, with nothing typed: the page is shown all the same, and the results are let alone.
menu("mnuIncSrch");
press("frmFind.txtFind", "Esc");
check([text("frmFind.txtFind"), status()], ["", "Ready"], "nothing typed");
writeBytes(appFile("ListData.dat"), "results");
rename("許多");
settle();
navigations();
click("frmDicList.ButtonQuit");
check(navigations(), [drivePath(appFile("home.html"))], "the page is shown");
check(status(), "", "the status bar is emptied");
check(readBytes(appFile("ListData.dat")), "results", "the results stay");
check(["Picture19", "Picture20"].map(name => visible("frmFind." + name)), [true, true], "entries can be paged through");
