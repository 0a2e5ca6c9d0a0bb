// A search that is given up leaves no trace: Esc, another mode, another dictionary, another target.
const dictionary = tempDir() + "/first.mdb", other = tempDir() + "/second.mdb";
makeDictionary(dictionary, Array.from({length: 6}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
makeDictionary(other, [["wolf", null, 1, "狼", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}, {name: "二", path: other}]);
start();
const go = {button: () => mouseDown("frmFind.Picture0"), Enter: () => press("frmFind.txtFind", "Enter")};
const reset = () => {
    choose("frmFind.Combo1", "一");
    menu("mnuPreSrch");
    setText("frmFind.txtFind", "w");
};
const checkNoTrace = (what, mode) => {
    check(items("frmFind.List1"), [], what + ": an empty list");
    check(exists(appFile("ListData.dat")), false, what + ": no store");
    ok(page().includes("<FONT COLOR"), what + ": the blank page");
    check([pointer(), state("StopRequested"), state("SearchMode")], [0, 0, mode], what + ": pointer, flag and mode");
    check([state("SearchConnection"), state("SearchRecordset")], [false, false], what + ": nothing stays open");
    check([visible("frmFind.Picture0"), visible("frmFind.Picture00")], [mode !== 0, false], what + ": the buttons");
    check([14, 15, 17, 18].filter(number => visible("frmFind.Picture" + number)), [], what + ": no pictures");
    check(enabled("frmFind"), true, what + ": the window is usable");
};

for (const by of ["button", "Enter"]) {
    for (const [what, action, mode, says] of [
        ["Esc in the box", () => press("frmFind.txtFind", "Esc"), 1, "Ready"],
        ["Esc in the list", () => press("frmFind.List1", "Esc"), 1, "Ready"],
        ["Esc in the dictionary box", () => press("frmFind.Combo1", "Esc"), 1, "Ready"],
        ["another mode", () => menu("mnuMidSrch"), 2, ""],
        ["the same mode", () => menu("mnuPreSrch"), 1, ""],
        ["the incremental mode", () => menu("mnuIncSrch"), 0, ""],
        ["another dictionary", () => choose("frmFind.Combo1", "二"), 0, ""],
        ["stop, then Esc", () => { click("frmFind.Picture00"); press("frmFind.txtFind", "Esc"); }, 1, "Ready"],
    ])
        for (const row of [1, 6]) {
            reset();
            atYield(row, action);
            go[by]();
            checkNoTrace(what + " at row " + row + " by " + by, mode);
            check(status(), says, what + ": the status bar");
        }
    // The next search is a whole one.
    reset();
    go[by]();
    check(items("frmFind.List1").length, 6, "the next search is whole");
}

// What the user does in its place is not disturbed.
reset();
atYield(2, () => { menu("mnuIncSrch"); typeText("frmFind.txtFind", "w5"); });
go.Enter();
check([text("frmFind.txtFind"), items("frmFind.List1")], ["w5", ["w5", "w6"]], "an incremental search in between stands");
ok(page().includes("訳5"), "with its page");
reset();
atYield(2, () => { choose("frmFind.Combo1", "二"); typeText("frmFind.txtFind", "w"); });
go.Enter();
check(items("frmFind.List1"), ["wolf"], "and one in another dictionary");

// Another target, the hidden list, a resize: the search goes on as it began.
reset();
atYield(1, () => menu("mnuSrchFromPhrase"));
atYield(2, () => menu("mnuHideListBox"));
atYield(3, () => resize("frmFind", 12000, 9000));
go.button();
check([items("frmFind.List1").length, state("SearchTarget")], [6, 2], "the hits of all, the target for the next");
check([visible("frmFind.List1"), status()], [false, "6件の見出し語が見つかりました。"], "the list stays hidden");
menu("mnuHideListBox");
go.button();
check(status(), "該当する見出し語は見つかりませんでした。", "which has no phrases");
check(boxes(), [], "no box in all this");
