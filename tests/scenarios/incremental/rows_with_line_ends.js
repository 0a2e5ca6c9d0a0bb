// A click shows the row's own record, also where its headword holds a line's end.
const dictionary = tempDir() + "/lines.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["cats\neye", null, 2, "一", null], ["cats\r\neye", null, 2, "二", null], ["dog", null, 1, "犬", null]]);
setCatalogue([{name: "行", path: dictionary, selected: true}]);
start();
for (const [row, meaning] of [[1, null], [2, null], [3, "犬"]]) {
    setText("frmFind.txtFind", "cat");
    const word = items("frmFind.List1")[row];
    clickRow("frmFind.List1", row);
    const expected = meaning || rows(dictionary).find(each => each.Word === word).Description;
    check((page().match(/sty3>([^<]*)/) || [])[1], expected, JSON.stringify(word) + ": its record comes first");
}
