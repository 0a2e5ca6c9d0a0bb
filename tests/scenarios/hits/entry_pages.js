// More hits than a page of entries: the pictures that turn the entries.
const dictionary = tempDir() + "/seven.mdb";
makeDictionary(dictionary, Array.from({length: 7}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
setCatalogue([{name: "七", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015005005000303000\r\n"); // 5 rows a page, 3 entries
start();
menu("mnuWildCard");
setText("frmFind.txtFind", "w_");
press("frmFind.txtFind", "Enter");

const shown = () => (page().match(/訳\d/g) || []).map(found => Number(found.slice(1)));
const place = () => [state("EntryFirstPos"), state("EntryLastPos")];
const next = () => mouseDown("frmFind.Picture17"), previous = () => mouseDown("frmFind.Picture18");
const end = (action, words) => {
    const before = page();
    navigations();
    answer("OK");
    action();
    const [box] = boxes();
    check([box.title, box.text, box.icon, box.beep], ["見出し語内容", words, 48, 48], "the end is told");
    check([page(), navigations()], [before, []], "the page stays");
};

check(shown(), [1, 2, 3], "the first page");
check(state("EntryFirstPos"), 1, "its place");
end(previous, "該当データの先頭に到達しました！");
check(place(), [1, 0], "the place, and a last one of none");
next();
check([shown(), place()], [[4, 5, 6], [4, 6]], "the next, across the page of the list");
next();
check([shown(), place()], [[7], [7, 7]], "the last is short");
end(next, "該当データの末尾に到達しました！");
check(place(), [7, 7], "the place is put back");
previous();
check([shown(), place()], [[4, 5, 6], [4, 6]], "back");
clickRow("frmFind.List1", 2);
check([shown(), state("EntryFirstPos")], [[3, 4, 5], 3], "a click begins at its row");
previous();
check([shown(), place()], [[1, 2], [1, 2]], "the page before it reaches the first hit");
end(previous, "該当データの先頭に到達しました！");
next();
check(shown(), [4, 5, 6], "forward by whole pages");
check(items("frmFind.List1"), ["w1", "w2", "w3", "w4", "w5"], "the list stays");
check(selectedRow("frmFind.List1"), 2, "with its row");

// A click shows no more than the list's page holds.
clickRow("frmFind.List1", 4);
check(shown(), [5], "the last row of the page: one entry");
clickRow("frmFind.List1", 3);
check(shown(), [4, 5], "the row before it: two");
next();
check(shown(), [7], "the next page counts from the row");
press("frmFind.List1", "Home");
check(shown(), [1, 2, 3], "the keys of the list show entries too");
press("frmFind.List1", "Down");
check([shown(), state("EntryFirstPos")], [[2, 3, 4], 2], "row by row");
