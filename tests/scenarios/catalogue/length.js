// A catalogue whose length is no multiple of a record: the count is rounded to the nearest whole.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["sky", null, 1, "空", null]]);
setCatalogue([{name: "空", path: dictionary, selected: true}, {name: "another", path: "C:\\b.mdb"}]);
const both = readBytes(appFile("lexicons.dat"));
const names = () => items("frmFind.Combo1");
const startWith = bytes => {
    writeBytes(appFile("lexicons.dat"), bytes);
    start();
};

for (const [length, count] of [[309 + 154, 1], [309 + 155, 2], [617, 2], [619, 2], [618 + 154, 2]]) {
    startWith((both + " ".repeat(309)).slice(0, length));
    check(names().length, count, length + " bytes");
    check(state("CurrentDicName"), "空", "the first is whole");
    typeText("frmFind.txtFind", "s");
    check(items("frmFind.List1"), ["sky"], "and searched");
    exit();
    check(size(appFile("lexicons.dat")), count * 309, "the end writes whole records");
}

startWith(both.slice(0, 309 + 155));
check(names(), ["空", "another"], "a cut record keeps what is left of it");
check(state("Lexicons")[1], {DicName: "another", DicPath: "C:\\b.mdb", IsSelected: 0, IsDeleted: 0}, "blanks go");
exit();

for (const length of [1, 154]) {
    startWith(both.slice(0, length));
    check([names(), enabled("frmFind.Combo1"), state("Lexicons")], [[], false, null], length + " bytes hold no record");
    exit();
    check(readBytes(appFile("lexicons.dat")), both.slice(0, length), "and are not touched");
}

// Half a record in a file of its own: a name and the beginning of a path.
startWith(both.slice(0, 155));
check(names(), ["空"], "155 bytes are a record");
check(state("CurrentDicPath"), drivePath(dictionary).slice(0, 105), "with what stands of its path");
exit();

// Fields padded with NUL, as other writers leave them.
startWith(both.slice(0, 309).replace(/ /g, "\x00"));
check(state("CurrentDicPath"), drivePath(dictionary), "NUL pads like a blank");
check(text("frmFind.Combo1"), "空", "names too");
exit();
check(readBytes(appFile("lexicons.dat")), both.slice(0, 309), "written with blanks");
