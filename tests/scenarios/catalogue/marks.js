// Which dictionary comes up: the first that is marked, else the first of all.
const names = ["甲", "乙", "丙"];
const paths = ["a", "b", "c"].map(letter => tempDir() + "/" + letter + ".mdb");
paths.forEach((path, i) => makeDictionary(path, [["word" + i, null, 1, "語", null]]));
const catalogue = marks => setCatalogue(names.map((name, i) => ({name, path: paths[i], selected: marks[i]})));

for (const [marks, current] of [
    [[false, false, false], 0],
    [[true, false, false], 0],
    [[false, false, true], 2],
    [[false, true, true], 1],
]) {
    catalogue(marks);
    start();
    check(state("CurrentDicName"), names[current], "marks " + marks);
    check(state("CurrentDicPath"), drivePath(paths[current]), "its path");
    check(text("frmFind.Combo1"), names[current], "its name in the box");
    check(state("TableFirstWord"), "word" + current, "its table is read");
    check(items("frmFind.Combo1"), names, "all in the file's order");
    check([enabled("frmFind.Combo1"), enabled("frmFind.txtFind")], [true, true], "boxes are open");
    check([state("CatalogueFlag1"), state("CatalogueFlag2")], [-1, -1], "both flags");
    check(state("Lexicons").length, 4, "a spare slot on top");
    const before = readBytes(appFile("lexicons.dat"));
    exit();
    check(readBytes(appFile("lexicons.dat")), before, "the end writes what was read");
}

// Only -1 marks; a deleted mark in the file does not delete.
const bytes = readBytes(appFile("lexicons.dat"));
const flags = (one, two) => bytes.slice(0, 305) + one + two + bytes.slice(309);
catalogue([false, false, true]);
writeBytes(appFile("lexicons.dat"), flags("\x01\x00", "\xff\xff").slice(0, 309) + readBytes(appFile("lexicons.dat")).slice(309));
start();
check(text("frmFind.Combo1"), "丙", "1 is no mark");
check(state("Lexicons").map(entry => entry.IsDeleted), [0, 0, 0, 0], "no entry of the file is deleted");
check(items("frmFind.Combo1"), names, "all are offered");
exit();
check(readBytes(appFile("lexicons.dat")).slice(305, 309), "\x01\x00\x00\x00", "and written as not deleted");
