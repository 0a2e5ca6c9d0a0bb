// ListDefi.dat: seven numbers without separators in a line of twenty characters.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, ["a", "b", "c", "d", "e"].map(letter => ["x" + letter, null, 1, "語" + letter, null]));
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const names = ["IncListCount", "IncEntriesPerPage", "ListPageSize", "MaxListCount", "EntriesPerPage", "WordBookMax",
    "SearchTarget"];
const sizes = () => names.map(state);
const standard = [50, 15, 50, 500, 15, 300, 0];
const startWith = bytes => {
    if (bytes === null)
        remove(appFile("ListDefi.dat"));
    else
        writeBytes(appFile("ListDefi.dat"), bytes);
    start();
};

for (const [bytes, expected, what] of [
    ["05015050005001503000\r\n", standard, "the defaults"],
    ["00302004123450999991\r\n", [3, 2, 4, 12345, 9, 9999, 1], "each field has its own"],
    ["99999999327679999992\r\n", [999, 99, 999, 32767, 99, 9999, 2], "the greatest"],
    ["00000000000000000000\r\n", [0, 0, 0, 0, 0, 0, 0], "the smallest"],
    ["05105050005001503000", [51, 5, 50, 500, 15, 300, 0], "no line end is needed"],
    ["05205050005001503000\nmore\r\n", [52, 5, 50, 500, 15, 300, 0], "only the first line counts"],
    [" 53 5  5  500 5  3001\r\n", standard, "twenty-one characters"],
    [" 53 5  5  500 5 3001\r\n", [53, 5, 5, 500, 5, 300, 1], "blanks in front of a number"],
    ["0501505000500150300\r\n", standard, "nineteen characters"],
    ["", standard, "an empty file"],
    ["\r\n05215050005001503000\r\n", standard, "an empty first line"],
    ["\x8c\xea".repeat(10) + "\r\n", standard, "twenty bytes are not twenty characters"],
]) {
    startWith(bytes);
    check(sizes(), expected, what);
    exit();
    check(readBytes(appFile("ListDefi.dat")), bytes, "the file is left as it was: " + what);
}

startWith(null);
check(sizes(), standard, "a missing file means the defaults");
check(readBytes(appFile("ListDefi.dat")), "05015050005001503000\r\n", "and is made with them");
check(size(appFile("ListDefi.dat")), 22, "of 22 bytes");
exit();

// What the sizes do.
startWith("00302004123450999990\r\n");
check(toolTip("frmFind.Picture19"), "見出し語内容を2件前へ移動", "the tool tip names the entries of a page");
check(toolTip("frmFind.Picture20"), "見出し語内容を2件先へ移動", "so does the other");
typeText("frmFind.txtFind", "x");
check(items("frmFind.List1"), ["xa", "xb", "xc"], "three rows");
ok(page().includes("語b") && !page().includes("語c"), "two entries");
exit();
startWith("00100004123450999990\r\n");
typeText("frmFind.txtFind", "x");
check(items("frmFind.List1"), ["xa"], "one row");
ok(!page().includes("語"), "no entry");
