// The command and the picture of the incremental search start it afresh.
const dictionary = tempDir() + "/two.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["dog nap", null, 2, "犬の昼寝", null]]);
setCatalogue([{name: "二", path: dictionary, selected: true}]);
start();

const home = drivePath(appFile("home.html"));
const checkFresh = what => {
    check(state("SearchMode"), 0, what + ": the mode");
    check(caption("frmFind"), "Wordmere", what + ": the caption");
    check(["mnuIncSrch", "mnuPreSrch", "mnuMidSrch", "mnuPostSrch", "mnuTxtInMeaning", "mnuTxtInExample", "mnuWildCard"]
        .map(name => checked(name)), [true, false, false, false, false, false, false], what + ": the check marks");
    check(text("frmFind.txtFind"), "", what + ": an empty box");
    check(focused(), "frmFind.txtFind", what + ": with the focus");
    check(items("frmFind.List1"), [], what + ": an empty list");
    check(status(), "", what + ": an empty status bar");
    ok(page().indexOf("<FONT COLOR") > 0, what + ": the blank page");
    check(navigations().pop(), home, what + ": which is shown");
    for (const number of [14, 15, 17, 18])
        check(visible("frmFind.Picture" + number), false, what + ": picture " + number);
    for (const number of [19, 20])
        check(visible("frmFind.Picture" + number), state("SearchTarget") === 0, what + ": picture " + number);
    check(exists(appFile("ListData.dat")), false, what + ": no result of a list search");
};

for (const [what, action] of [["menu", () => menu("mnuIncSrch")], ["picture", () => mouseDown("frmFind.Picture1")]]) {
    typeText("frmFind.txtFind", "cat");
    writeText(appFile("ListData.dat"), "old");
    focusOn("frmFind.List1");
    action();
    checkFresh(what);
}
menu("mnuSrchFromPhrase");
typeText("frmFind.txtFind", "d");
menu("mnuIncSrch");
checkFresh("with phrases alone");
check(state("SearchTarget"), 2, "the target stays");
typeText("frmFind.txtFind", "d");
check(items("frmFind.List1"), ["dog nap"], "and counts");
press("frmFind.txtFind", "Esc");

// Whatever fails on the way is told in one box, and the window stays usable.
for (const number of [5, 61, -2147467259]) {
    failNext("write", number);
    answer("OK");
    menu("mnuIncSrch");
    const shown = boxes();
    check(shown.length, 1, "failure " + number + ": one box");
    check(shown[0].title, "エラー", "failure " + number + ": its title");
    check(shown[0].text.indexOf("エラー番号 " + (number < 0 ? "" : " ") + number + " Wordmere でエラーが発生しました。\r"), 0,
        "failure " + number + ": its text");
    check(shown[0].icon, 0, "failure " + number + ": no icon");
}
menu("mnuIncSrch");
checkFresh("after the failures");
