// Which pictures a search shows, by the number of its hits; and where.
const dictionary = tempDir() + "/bounds.mdb";
const rows = [];
for (const [letter, count] of [["a", 2], ["b", 3], ["c", 4], ["d", 5], ["e", 6]])
    for (let i = 1; i <= count; ++i)
        rows.push([letter + i, null, 1, "訳" + letter + i, null]);
makeDictionary(dictionary, rows);
setCatalogue([{name: "境", path: dictionary, selected: true}]);

const search = typed => {
    setText("frmFind.txtFind", typed);
    mouseDown("frmFind.Picture0");
};
const seen = () => [14, 15, 17, 18].filter(number => visible("frmFind.Picture" + number));
const left = number => bounds("frmFind.Picture" + number).left;
const lists = [14, 15], entries = [17, 18];

// 4 rows a page, 2 entries, so that a list of one page still has pages of entries.
writeText(appFile("ListDefi.dat"), "05015004005000203000\r\n");
start();
const own = [left(17), left(18)];
menu("mnuPreSrch");
for (const [typed, pictures] of [["a", []], ["b", entries], ["c", entries], ["d", lists.concat(entries)],
    ["e", lists.concat(entries)], ["c", entries], ["a", []]]) {
    search(typed);
    check(seen(), pictures, typed + ": the pictures");
    check([left(17), left(18)], pictures.includes(14) ? own : [left(15), left(14)], typed + ": the place of the entry pictures");
}
search("d");
mouseDown("frmFind.Picture15");
check(items("frmFind.List1"), ["d5"], "one more than a page: one row on the second");
search("nothing");
check(seen(), [], "no hits, no pictures");
search("e");
menu("mnuMidSrch");
check(seen(), [], "another mode hides them");
exit();

// 4 rows a page, 5 entries: a list of two pages whose entries fit one.
writeText(appFile("ListDefi.dat"), "05015004005000503000\r\n");
start();
menu("mnuPreSrch");
for (const [typed, pictures] of [["d", lists], ["c", []], ["e", lists.concat(entries)]]) {
    search(typed);
    check(seen(), pictures, typed + ": the pictures, with more entries a page");
}
press("frmFind.List1", "Esc");
check(text("frmFind.txtFind"), "", "Esc in the list");
check(exists(appFile("ListData.dat")), false, "deletes the hits");

// A hidden list is filled all the same.
menu("mnuHideListBox");
search("e");
check([visible("frmFind.List1"), items("frmFind.List1")], [false, ["e1", "e2", "e3", "e4"]], "hidden, but filled");
check([enabled("frmFind.Picture14"), enabled("frmFind.Picture15")], [false, false], "its pictures wait");
menu("mnuHideListBox");
check(visible("frmFind.List1"), true, "shown again");
mouseDown("frmFind.Picture15");
check(items("frmFind.List1"), ["e5", "e6"], "with its second page");
