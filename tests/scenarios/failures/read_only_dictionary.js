// A dictionary on a medium that cannot be written is searched like any other.
const folder = tempDir() + "/medium", path = folder + "/words.mdb";
makeDictionary(path, [["crow", "kroʊ", 1, "烏", "as the crow flies"], ["crow's nest", null, 2, "見張り台", null]]);
const bytes = readBytes(path);
makeReadOnly(path);
makeReadOnly(folder);
setCatalogue([{name: "媒体", path, selected: true}]);
start();
check([state("TableFirstWord"), state("TableLastWord")], ["crow", "crow's nest"], "the table is read");
typeText("frmFind.txtFind", "crow");
check(items("frmFind.List1"), ["crow", "crow's nest"], "found");
ok(page().includes("as the crow flies"), "and shown");
menu("mnuSrchFromPhrase");
check(items("frmFind.List1"), ["crow's nest"], "phrases alone");
exit();
ok(readBytes(path) === bytes, "the file is not touched");
