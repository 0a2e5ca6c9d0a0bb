// The six list searches are chosen from menu and toolbar.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["cat nap", null, 2, "うたた寝", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
start();

const home = drivePath(appFile("home.html"));
const menus = ["mnuIncSrch", "mnuPreSrch", "mnuMidSrch", "mnuPostSrch", "mnuTxtInMeaning", "mnuTxtInExample", "mnuWildCard"];
const pictures = [1, 2, 3, 4, 6, 7, 5];
const captions = ["", "- 前方一致検索", "- 中間一致検索", "- 後方一致検索", "- 訳語項目中の文字列検索", "- 用例項目中の文字列検索",
    "- ワイルドカード検索"];
const wide = bounds("frmFind.txtFind");
const paging = [14, 15, 17, 18, 19, 20];

const checkMode = (mode, what) => {
    check(state("SearchMode"), mode, what + ": the mode");
    check(caption("frmFind"), "Wordmere" + captions[mode], what + ": the caption");
    check(menus.map(name => checked(name)), menus.map((_, i) => i === mode), what + ": the check marks");
    check(["mnuSrchFromAll", "mnuSrchFromWord", "mnuSrchFromPhrase"].map(name => enabled(name)), [true, true, true],
        what + ": the targets can be chosen");
    check(visible("frmFind.Picture0"), mode !== 0, what + ": the start button");
    check(visible("frmFind.Picture00"), false, what + ": no stop button");
    check(paging.filter(number => visible("frmFind.Picture" + number)), [], what + ": no paging pictures");
    check(items("frmFind.List1"), [], what + ": an empty list");
    check(status(), "", what + ": an empty status bar");
    check(navigations().pop(), home, what + ": the page is shown");
    ok(page().includes("<FONT COLOR=\"#0000FF\"></FONT>"), what + ": the blank one");
    check(focused(), "frmFind.txtFind", what + ": the focus");
    const box = bounds("frmFind.txtFind"), button = bounds("frmFind.Picture0");
    ok(Math.abs(box.left + box.width + 50 - button.left) <= 15, what + ": the entry box ends 50 in front of the button");
    ok(Math.abs(button.left + button.width - wide.left - wide.width) <= 15, what + ": which ends with the pane");
};

for (const by of ["menu", "picture"])
    for (let mode = 1; mode <= 6; ++mode) {
        menu("mnuIncSrch");
        typeText("frmFind.txtFind", "cat");
        check(items("frmFind.List1"), ["cat", "cat nap"], "a list to be emptied");
        focusOn("frmFind.List1");
        navigations();
        if (by === "menu")
            menu(menus[mode]);
        else
            mouseDown("frmFind.Picture" + pictures[mode]);
        checkMode(mode, by + " " + mode);
        check(text("frmFind.txtFind"), "cat", "the text stays");
    }

// From one list search to the next, and twice the same.
for (const mode of [1, 6, 2, 2, 5, 3, 4]) {
    menu(menus[mode]);
    checkMode(mode, "then " + mode);
}
check(selectedText("frmFind.txtFind"), "cat", "the text is selected, for the next one to be typed over it");
press("frmFind.txtFind", "End");
typeText("frmFind.txtFind", "x");
check(items("frmFind.List1"), [], "typing searches nothing");
check(statements(), [], "not even behind the scenes");

// The target: its pictures belong to the incremental search of all.
menu("mnuSrchFromWord");
check([visible("frmFind.Picture19"), visible("frmFind.Picture20")], [false, false], "words: no pictures");
menu("mnuSrchFromAll");
check([visible("frmFind.Picture19"), visible("frmFind.Picture20")], [false, false], "all: none in a list search");
check(text("frmFind.txtFind"), "catx", "the text is put back");
click("frmFind.Label1");
check(text("frmFind.Label1"), "単語：", "the label cycles");
check(items("frmFind.List1"), [], "without a search");
menu("mnuIncSrch");
check([visible("frmFind.Picture19"), visible("frmFind.Picture20")], [false, false], "back, with words alone: none");
check(visible("frmFind.Picture0"), false, "no start button");
check(bounds("frmFind.txtFind"), wide, "the entry box has its room again");
menu("mnuSrchFromAll");
check([visible("frmFind.Picture19"), visible("frmFind.Picture20")], [true, true], "with all: both");

// A failure is told in the generic box and ends the change.
for (const mode of [1, 4]) {
    focusOn("frmFind.List1");
    failNext("write", 61);
    answer("OK");
    menu(menus[mode]);
    const [box] = boxes();
    check([box.title, box.text, box.icon, box.beep], ["エラー",
        "エラー番号  61 Wordmere でエラーが発生しました。\rディスクの空き容量が不足しています。", 0, 0], "a full disk is told");
    check([state("SearchMode"), caption("frmFind")], [mode, "Wordmere" + captions[mode]], "what came before stands");
    menu(menus[mode]);
    checkMode(mode, "again " + mode);
}
