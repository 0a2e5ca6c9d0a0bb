// What ends a list search mode, and what happens when a change of mode fails.
const make = name => {
    const path = tempDir() + "/" + name + ".mdb";
    makeDictionary(path, ["cat", "cat nap", "dog"].map(word => [word, null, word.includes(" ") ? 2 : 1, "訳 " + word, "例 " + word]));
    return path;
};
setCatalogue([{name: "一", path: make("one"), selected: true}, {name: "二", path: make("two")}]);
start();

const home = drivePath(appFile("home.html"));
const modes = [
    ["mnuPreSrch", 1, "- 前方一致検索"],
    ["mnuMidSrch", 2, "- 中間一致検索"],
    ["mnuPostSrch", 3, "- 後方一致検索"],
    ["mnuTxtInMeaning", 4, "- 訳語項目中の文字列検索"],
    ["mnuTxtInExample", 5, "- 用例項目中の文字列検索"],
    ["mnuWildCard", 6, "- ワイルドカード検索"],
];
const search = entry => {
    menu(entry);
    setText("frmFind.txtFind", entry === "mnuWildCard" ? "%cat%" : "cat");
    press("frmFind.txtFind", "Enter");
    check(exists(appFile("ListData.dat")), true, entry + ": a result");
};
const result = () => exists(appFile("ListData.dat"));

let other = 1;
for (const [entry, number, words] of modes) {
    // Another dictionary ends it.
    menu("mnuSrchFromWord");
    search(entry);
    navigations();
    choose("frmFind.Combo1", other);
    other = 1 - other;
    check([state("SearchMode"), checked("mnuIncSrch"), checked(entry), caption("frmFind")], [0, true, false, "Wordmere"],
        entry + ": another dictionary, the incremental mode");
    check([state("SearchTarget"), text("frmFind.Label1"), checked("mnuSrchFromAll")], [0, "単熟語：", true],
        entry + ": words and phrases");
    check(result(), false, entry + ": the result is deleted");
    check([text("frmFind.txtFind"), status(), items("frmFind.List1")], ["", "", []], entry + ": everything is empty");
    check(navigations().pop(), home, entry + ": and blank");
    check(visible("frmFind.Picture0"), false, entry + ": no search button");
    check([14, 15, 17, 18, 19, 20].map(each => visible("frmFind.Picture" + each)), [false, false, false, false, true, true],
        entry + ": the incremental mode's pictures");

    // Esc keeps it, from wherever it is pressed.
    for (const control of ["frmFind.txtFind", "frmFind.List1", "frmFind.Combo1"]) {
        search(entry);
        press(control, "Esc");
        check([state("SearchMode"), checked(entry), caption("frmFind")], [number, true, "Wordmere" + words],
            entry + ": Esc in " + control + " keeps the mode");
        check(result(), false, entry + ": but not its result");
        check([text("frmFind.txtFind"), status(), focused()], ["", "Ready", "frmFind.txtFind"], entry + ": ready");
    }

    // The incremental command ends it.
    search(entry);
    menu("mnuIncSrch");
    check([state("SearchMode"), caption("frmFind"), result(), text("frmFind.txtFind")], [0, "Wordmere", false, ""],
        entry + ": the incremental command");

    // Whatever fails on the way is told in one box, and the mode is the new one.
    for (const failure of [5, 61, -2147467259]) {
        menu("mnuIncSrch");
        typeText("frmFind.txtFind", "cat");
        failNext("write", failure);
        answer("OK");
        menu(entry);
        const shown = boxes();
        check(shown.length, 1, entry + ", failure " + failure + ": one box");
        check(shown[0].title, "エラー", entry + ", failure " + failure + ": its title");
        check(shown[0].text.indexOf("エラー番号 " + (failure < 0 ? "" : " ") + failure + " Wordmere でエラーが発生しました。\r"), 0,
            entry + ", failure " + failure + ": its text");
        check([shown[0].icon, shown[0].beep], [0, 0], entry + ", failure " + failure + ": plain");
        check([state("SearchMode"), checked(entry), items("frmFind.List1")], [number, true, []],
            entry + ", failure " + failure + ": what came before it is done");
        check(text("frmFind.txtFind"), "cat", entry + ", failure " + failure + ": the text stays");
    }
    menu(entry);
    check([focused(), boxes()], ["frmFind.txtFind", []], entry + ": works again");
}

// Clicks on the label count in the list modes too: the next search has the new target.
menu("mnuPreSrch");
setText("frmFind.txtFind", "ca");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1"), ["cat", "cat nap"], "both");
click("frmFind.Label1");
check(text("frmFind.Label1"), "単語：", "words");
check(items("frmFind.List1"), ["cat", "cat nap"], "no search begins by itself");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1"), ["cat"], "the next one has them alone");
check([visible("frmFind.Picture19"), visible("frmFind.Picture20")], [false, false], "no paging of the incremental mode");
