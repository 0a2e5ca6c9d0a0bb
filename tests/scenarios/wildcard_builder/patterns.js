// From the fields to the pattern in the entry box: the worked results, typed as a user types them.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ab", null, 1, "短い", null], ["abz", null, 1, "長い", null], ["50% off", null, 2, "半額", null],
    ["50 off", null, 2, "別", null], ["singing", null, 1, "歌う", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();

const history = appFile("Wildhist.dat");
const build = (text1, combo1, text2, combo2, text3) => {
    if (exists(history))
        remove(history);
    menu("mnuWildCardBuilder");
    typeText("frmSearch.Text1", text1);
    if (combo1 !== "")
        choose("frmSearch.Combo1", combo1);
    typeText("frmSearch.Text2", text2);
    if (combo2 !== "")
        choose("frmSearch.Combo2", combo2);
    typeText("frmSearch.Text3", text3);
    click("frmSearch.Command1");
    check(isOpen("frmSearch"), false, "the dialog goes");
    return text("frmFind.txtFind");
};
for (const [text1, combo1, text2, combo2, text3, pattern] of [
    ["", "", "", "", "", "%_"],
    ["ab", "", "", "", "", "ab_%"],
    ["", "", "", "", "ing", "%_ing"],
    ["", "", "x", "", "", "%_x_%"],
    ["a", "", "", "", "z", "a%z"],
    ["a", "3", "", "", "z", "a___z"],
    ["", "2", "", "", "", "__"],
    ["a", "2", "", "", "", "a__"],
    ["a", "", "b", "", "c", "a%b%c"],
    ["a", "1", "b", "2", "c", "a_b__c"],
    ["", "3", "x", "", "", "___x_%"],
    ["50%", "", "", "", "", "50[%]_%"],
    ["a_b", "", "%", "1", "_", "a[_]b%[%]_[_]"],
    [" a ", "99", "　", "", "　語", "a" + "_".repeat(99) + "語"],
])
    check(build(text1, combo1, text2, combo2, text3), pattern, pattern);

// The mode is set before the dialog comes; no search starts here, it is the user's to start.
check(state("SearchMode"), 6, "wildcard mode");
check(exists(appFile("ListData.dat")), false, "nothing was searched");
check(build("ab", "", "", "", ""), "ab_%", "begins with ab");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1"), ["abz"], "the bare ab is left out");
check(build("", "", "", "", ""), "%_", "all fields empty");
check(items("frmFind.List1"), [], "entering the mode empties the list");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1").length, 5, "finds every headword");
build("50%", "", "", "", "");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1"), ["50% off"], "a percent sign typed is one");
build("", "4", "", "", "ing");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1"), ["singing"], "four letters in front");

// The main window before and while the dialog is open.
for (const open of [() => menu("mnuWildCardBuilder"), () => mouseDown("frmFind.Picture8")]) {
    menu("mnuIncSrch");
    check(visible("frmFind.Picture19"), true, "entry pages in incremental mode");
    open();
    check(isOpen("frmSearch"), true, "open");
    check(caption("frmSearch"), "ワイルドカードビルダ", "its caption");
    check([14, 15, 17, 18, 19, 20].map(number => visible("frmFind.Picture" + number)),
        [false, false, false, false, false, false], "the paging pictures go");
    check(status(), "", "the status bar is cleared");
    check(state("SearchMode"), 6, "wildcard mode");
    check(caption("frmFind"), "Wordmere- ワイルドカード検索", "in the caption too");
    check(enabled("frmFind"), false, "the main window takes no input");
    check(state("frmSearch.IsCancelled"), 0, "not cancelled");
    check(focused(), "frmSearch.Text1", "the focus is in the first field");
    press("frmSearch.Text1", "Esc");
    check(enabled("frmFind"), true, "the main window takes input again");
}
check(boxes(), [], "no box in all of this");
