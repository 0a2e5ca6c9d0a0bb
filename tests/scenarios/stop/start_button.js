// The start button and the Enter key.
const dictionary = tempDir() + "/start.mdb";
makeDictionary(dictionary, [["cats", null, 1, "猫", null], ["cater", null, 1, "賄う", null]]);
setCatalogue([{name: "始", path: dictionary, selected: true}]);
start();
menu("mnuPreSrch");

// Without a text.
answer("OK");
mouseDown("frmFind.Picture0");
const [box] = boxes();
check([box.text, box.title, box.icon, box.beep, box.buttons], ["検索文字列が入力されていません！", "Wordmere", 0, 0, ["OK"]],
    "no text: a plain box");
check([visible("frmFind.Picture0"), visible("frmFind.Picture00"), statements()], [true, false, []], "and no search");
press("frmFind.txtFind", "Enter");
check([boxes(), statements(), status()], [[], [], ""], "Enter without a text does nothing");

// While it runs.
const during = () => ({
    buttons: [visible("frmFind.Picture0"), visible("frmFind.Picture00")],
    list: items("frmFind.List1"),
    blank: page().includes("<FONT COLOR"),
    paging: [14, 15, 17, 18].filter(number => visible("frmFind.Picture" + number)),
    says: status(),
    pointer: pointer(),
    open: [state("SearchConnection"), state("SearchRecordset")],
    place: JSON.stringify(bounds("frmFind.Picture00")) === JSON.stringify(bounds("frmFind.Picture0")),
});
for (const [by, action] of [["button", () => mouseDown("frmFind.Picture0")], ["Enter", () => press("frmFind.txtFind", "Enter")]]) {
    setText("frmFind.txtFind", "cat");
    focusOn("frmFind.List1");
    if (by === "Enter")
        focusOn("frmFind.txtFind");
    let seen;
    atYield(1, () => { seen = during(); });
    navigations();
    action();
    check(seen, {buttons: [false, true], list: [], blank: true, paging: [], says: "検索中...", pointer: 11, open: [true, true],
        place: true}, by + ": while it runs");
    check([visible("frmFind.Picture0"), visible("frmFind.Picture00"), pointer()], [true, false, 0], by + ": behind it");
    check(items("frmFind.List1"), ["cater", "cats"], by + ": the hits");
    check(selectedRow("frmFind.List1"), -1, by + ": none selected");
    check(focused(), "frmFind.txtFind", by + ": the focus");
    check([state("SearchConnection"), state("SearchRecordset"), state("ViewConnection")], [false, false, false], "all closed");
    check(["ListPageNo", "ListFirstPos", "ListLastPos", "EntryFirstPos", "HitCount"].map(state), [1, 1, 2, 1, 2], by + ": the place");
    typeText("frmFind.txtFind", "e");
    check(text("frmFind.txtFind"), "cate", by + ": the caret behind the text");
    check(items("frmFind.List1"), ["cater", "cats"], by + ": typing leaves the hits");
}
check(toolTip("frmFind.Picture0"), "検索開始", "the start button's tool tip");
check(toolTip("frmFind.Picture00"), "検索中断", "and the stop button's");

// Enter leaves the focus where it is, and searches nothing in the incremental mode.
menu("mnuIncSrch");
typeText("frmFind.txtFind", "cat");
statements();
press("frmFind.txtFind", "Enter");
check([statements(), status(), exists(appFile("ListData.dat"))], [[], "", false], "no list search in the incremental mode");

// A store that cannot be deleted.
menu("mnuPreSrch");
setText("frmFind.txtFind", "cat");
press("frmFind.txtFind", "Enter");
for (const action of [() => mouseDown("frmFind.Picture0"), () => press("frmFind.txtFind", "Enter")]) {
    failNext("delete", 70);
    answer("OK");
    action();
    const [failed] = boxes();
    check([failed.title, failed.icon], ["エラー", 16], "told");
    ok(failed.text.startsWith("エラー番号  70 "), "with its number");
    check([visible("frmFind.Picture0"), visible("frmFind.Picture00"), pointer()], [true, false, 0], "ready");
    action();
    check(items("frmFind.List1"), ["cater", "cats"], "the next one works");
}
