// The bytes of ListData.dat: a record of 520 bytes a hit, in the order of the list.
const dictionary = tempDir() + "/store.mdb";
const long = "x" + "é".repeat(254), wide = "x" + "犬".repeat(254);
makeDictionary(dictionary, [
    ["xb", null, 1, "二", null],
    ["xa", null, 1, "一", null],
    ["xé & &#x26;", null, 1, "三", null],
    ["x表", null, 1, "四", null],
    ["x spaced 　", null, 1, "五", null],
    ["　 xx", null, 1, "六", null],
    [long, null, 1, "七", null],
    [long, null, 1, "八", null],
    [wide, null, 1, "九", null],
]);
setCatalogue([{name: "蔵", path: dictionary, selected: true}]);
start();
menu("mnuWildCard");
setText("frmFind.txtFind", "%x%");
press("frmFind.txtFind", "Enter");

const store = appFile("ListData.dat");
const record = (bytes, autoID) => bytes.padEnd(512, " ") + String(autoID).padStart(8, "0");
const all = readBytes(store);
check(all.length, 9 * 520, "nine records");
const stored = Array.from({length: 9}, (_, i) => all.slice(i * 520, (i + 1) * 520)).sort();
check(stored, [
    record("xb", 1), record("xa", 2), record("x&#xE9; & &#x26;#x26;", 3), record("x\x95\x5c", 4), record("x spaced", 5),
    record("xx", 6), record("x" + "&#xE9;".repeat(85), 7), record("x" + "&#xE9;".repeat(85), 8),
    record("x" + "\x8c\xa2".repeat(254), 9),
].sort(), "word and number of each, trimmed, cut on a character");

// Every key finds its row again: in the list and on the page.
const numbers = () => (page().match(/sty3>[^<]*/g) || []).map(found => "一二三四五六七八九".indexOf(found.slice(5)));
const listed = items("frmFind.List1");
check(listed.length, 9, "nine rows");
check(listed.filter(word => word === long).length, 2, "words too long for the store are whole");
ok(listed.includes("xé & &#x26;") && listed.includes(wide), "others too");
check(numbers().sort(), [0, 1, 2, 3, 4, 5, 6, 7, 8], "every record is on the page");
for (const row of [0, 4, 8]) {
    clickRow("frmFind.List1", row);
    check(numbers().length, 9 - row, "a click shows the records from its row on");
}
check(boxes(), [], "no box");

// The records follow the order of the list.
menu("mnuPreSrch");
setText("frmFind.txtFind", "x");
press("frmFind.txtFind", "Enter");
check(readBytes(store).slice(0, 520), record("x spaced", 5), "the first in order");
check(items("frmFind.List1").slice(0, 3), ["x spaced 　", "xa", "xb"], "as in the list");

// A search that finds nothing leaves an empty file; leaving deletes it.
setText("frmFind.txtFind", "nothing");
press("frmFind.txtFind", "Enter");
check(size(store), 0, "no hits, no bytes");
setText("frmFind.txtFind", "x");
press("frmFind.txtFind", "Enter");
press("frmFind.txtFind", "Esc");
check(exists(store), false, "Esc deletes the store");
setText("frmFind.txtFind", "x");
press("frmFind.txtFind", "Enter");
menu("mnuMidSrch");
check(exists(store), true, "another list search leaves it until it searches");
menu("mnuIncSrch");
check(exists(store), false, "the incremental search deletes it");
menu("mnuPreSrch");
setText("frmFind.txtFind", "x");
mouseDown("frmFind.Picture0");
check(exists(store), true, "a store again");
exit();
check(exists(store), false, "the end deletes it");
