// The store of hits is damaged behind the program's back: no crash, no wrong record.
const dictionary = tempDir() + "/store.mdb";
makeDictionary(dictionary, ["w1", "w2", "w3", "w4"].map((word, i) => [word, null, 1, "訳" + (i + 1), null]));
setCatalogue([{name: "蔵", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015003005000203000\r\n");
start();
menu("mnuPreSrch");
const store = appFile("ListData.dat");
const search = () => {
    setText("frmFind.txtFind", "w");
    press("frmFind.txtFind", "Enter");
};
const shown = () => (page().match(/訳\d/g) || []).map(found => Number(found.slice(1)));
search();
const whole = readBytes(store);

for (const [what, damage, first, second] of [
    ["deleted", () => remove(store), [], []],
    ["emptied", () => writeBytes(store, ""), [], []],
    ["cut after a record", () => writeBytes(store, whole.slice(0, 520)), [1], []],
    ["cut within a record", () => writeBytes(store, whole.slice(0, 520 + 514)), [1], []],
    ["other bytes", () => writeBytes(store, "\xff".repeat(4 * 520)), [], []],
    ["digits that are none", () => writeBytes(store, whole.replace(/0000000\d/g, "????????")), [], []],
]) {
    search();
    damage();
    clickRow("frmFind.List1", 0);
    check(shown(), first, what + ": the first page");
    check(page().slice(-16), "</BODY></HTML>\r\n", what + ": is whole");
    mouseDown("frmFind.Picture17");
    check(shown(), second, what + ": the next");
    answer("OK");
    doubleClick("frmFind.List1", 2);
    check(boxes().map(box => box.title), ["削除"], what + ": a double click finds no record");
    mouseDown("frmFind.Picture15");
    check(items("frmFind.List1").length, 1, what + ": the list keeps its places");
    check([pointer(), state("ViewConnection")], [0, false], what + ": nothing stays behind");
}
check(boxes(), [], "no other box");

// One that cannot be written stops a search before anything is stored.
search();
makeReadOnly(store);
answer("OK");
search();
const [box] = boxes();
check([box.title, box.icon], ["エラー", 16], "read-only: told");
check([pointer(), visible("frmFind.Picture0"), visible("frmFind.Picture00"), status()], [0, true, false, ""], "the window is ready");
check(rows(dictionary).length, 4, "the dictionary is untouched");
answer("OK");
exit();
check(boxes().map(box => box.title), ["エラー"], "the end cannot delete it either");
