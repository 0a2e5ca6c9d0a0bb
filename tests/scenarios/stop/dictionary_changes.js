// The dictionary changes in the middle of a search.
const dictionary = tempDir() + "/changing.mdb";
const make = () => makeDictionary(dictionary, Array.from({length: 6}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
make();
setCatalogue([{name: "変", path: dictionary, selected: true}]);
start();
menu("mnuPreSrch");
const search = (yieldNo, action) => {
    setText("frmFind.txtFind", "w");
    if (action)
        atYield(yieldNo, action);
    press("frmFind.txtFind", "Enter");
};
const shown = () => (page().match(/訳\d/g) || []).map(found => Number(found.slice(1)));
const checkReady = what => {
    check([pointer(), visible("frmFind.Picture0"), visible("frmFind.Picture00"), enabled("frmFind")], [0, true, false, true],
        what + ": the window is ready");
    check([state("SearchConnection"), state("SearchRecordset")], [false, false], what + ": nothing stays open");
};

// Another connection writes while the search reads.
search(2, () => deleteRow(dictionary, 6));
check(rows(dictionary).length, 5, "a row behind the search's place is deleted at once");
check(items("frmFind.List1"), ["w1", "w2", "w3", "w4", "w5"], "and not found");
checkReady("a row ahead");
search(4, () => deleteRow(dictionary, 2));
check(items("frmFind.List1"), ["w1", "w2", "w3", "w4", "w5"], "one in front of it was found, and keeps its row");
check(shown(), [1, 3, 4, 5], "but not its entry");
checkReady("a row behind");

// Another file in its place.
make();
search(3, () => { remove(dictionary); makeDictionary(dictionary, [["w1", null, 1, "訳1", null], ["z", null, 1, "訳9", null]]); });
check(state("HitCount"), items("frmFind.List1").length, "replaced: as many rows as hits");
check(shown(), [1], "the page shows what is there");
checkReady("replaced");
check(boxes(), [], "without a box");

// No file any more.
make();
answer("OK");
search(3, () => remove(dictionary));
const gone = boxes();
check(gone.map(box => box.title), ["エラー"], "deleted: told once");
ok(gone[0].text.startsWith("エラー番号 -2147467259 "), "with its number");
check(exists(dictionary), false, "nothing is made in its place");
checkReady("deleted");

// Failures of the engine and of the disk between two rows.
make();
for (const [operation, number] of [["MoveNext", -2147467259], ["Close", -2147467259], ["write", 61], ["Seek", -2147467259],
    ["read", 57]]) {
    answer("OK");
    search(2, () => failNext(operation, number));
    const told = boxes();
    check(told.length, 1, operation + ": told once");
    ok(told[0].title === "エラー", operation + ": in the generic box");
    ok(told[0].text.startsWith("エラー番号 " + (number < 0 ? "" : " ") + number + " "), operation + ": with its number");
    checkReady(operation);
    check([state("StopRequested"), status()], [0, ""], operation + ": nothing is left of it");
    search();
    check([items("frmFind.List1").length, shown().length], [6, 6], operation + ": the next search is whole");
}

// A failure told in between, by something else, gives the search up.
answer("OK");
search(2, () => { failNext("delete", 70); press("frmFind.txtFind", "Esc"); });
check(boxes().map(box => box.title), ["エラー"], "a failing Esc is told");
checkReady("a failing Esc");
check(items("frmFind.List1"), [], "and the search is given up");
search();
check(items("frmFind.List1").length, 6, "the next one is whole");
check(rows(dictionary).length, 6, "the dictionary is whole");
