// The first number of the table is read at the start alone; another dictionary goes by it as well.
const make = (name, skipped, words) => {
    const path = tempDir() + "/" + name + ".mdb";
    const rows = [];
    for (let i = 0; i < skipped; ++i)
        rows.push(["gone", null, 1, "消", null]);
    makeDictionary(path, rows.concat(words.map(word => [word, null, 1, "訳 " + word, null])));
    for (let i = 1; i <= skipped; ++i)
        deleteRow(path, i);
    return path;
};
const low = make("low", 0, ["alpha", "beta"]);
const high = make("high", 5, ["ant", "bee", "ant"]);
const empty = tempDir() + "/empty.mdb";
makeDictionary(empty);
const catalogue = selected => [
    {name: "低い", path: low, selected: selected === 0},
    {name: "高い", path: high, selected: selected === 1},
    {name: "空", path: empty, selected: selected === 2},
    {name: "ない", path: tempDir() + "/none.mdb", selected: selected === 3},
];
const listed = typed => {
    setText("frmFind.txtFind", typed);
    return items("frmFind.List1");
};

setCatalogue(catalogue(0));
start();
check(state("TableFirstAutoID"), 1, "the first number of the start's dictionary");
check(listed("alpha"), ["alpha", "beta"], "its first headword");
choose("frmFind.Combo1", "高い");
check(state("CurrentDicPath"), drivePath(high), "another dictionary");
check(items("frmFind.List1"), [], "with an empty list");
check(state("TableFirstWord"), "alpha", "the first headword is not read again");
check(listed("a"), ["ant", "ant", "bee"], "a place in the new table");
check(state("TableFirstWord"), "ant", "which the walk has met by then");
check(state("TableFirstAutoID"), 1, "the number is still the old one");
check(state("TableLastWord"), "beta", "and the last headword too");
navigations();
check(listed("ant"), [], "the first headword is sought by a number in front of its own: nothing");
check(navigations(), [], "and the page stays");
check(listed("bee"), ["bee"], "every other headword has its place");
check(boxes(), [], "no box");
exit();

// A number behind the first row's own stands on the last row up to it.
setCatalogue(catalogue(1));
start();
check(state("TableFirstAutoID"), 6, "the number of the start");
choose("frmFind.Combo1", "低い");
check(listed("alpha"), ["alpha", "beta"], "the first headword with a lower number is found");
exit();

// Without a first number the text is a place like any other.
for (const selected of [2, 3]) {
    setCatalogue(catalogue(selected));
    start();
    check(state("TableFirstWord"), "", "no first headword at the start");
    check(state("TableFirstAutoID"), 0, "and no number");
    choose("frmFind.Combo1", "高い");
    check(listed("ant"), ["ant", "ant", "bee"], "the first headword lists from itself");
    exit();
}
check(boxes(), [], "an empty and a missing dictionary start without a word");
