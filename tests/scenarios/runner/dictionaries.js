// Dictionaries and the catalogue as scripts make and see them.
const dictionary = tempDir() + "/dic/animals.mdb";
makeDictionary(dictionary, [
    ["cat", null, 1, "猫", "a cat on the mat"],
    ["bear", "béər", 1, "熊", null],
    ["cat", undefined, 2, "\u00a0", ""],
]);
check(rows(dictionary), [
    {Word: "bear", Pronunciation: "béər", WordPhrase: 1, Description: "熊", Example: null, AutoID: 2},
    {Word: "cat", Pronunciation: null, WordPhrase: 1, Description: "猫", Example: "a cat on the mat", AutoID: 1},
    {Word: "cat", Pronunciation: null, WordPhrase: 2, Description: "\u00a0", Example: "", AutoID: 3},
], "rows in the order of the index");

deleteRow(dictionary, 1);
check(rows(dictionary).map(row => row.AutoID), [2, 3], "a row goes by its number");
let message = "";
try {
    deleteRow(dictionary, 1);
} catch (error) {
    message = error.message;
}
ok(message.indexOf("no record 1") >= 0, "a row that is not there");

makeDictionary(dictionary);
check(rows(dictionary), [], "made anew without rows");
check(statements(), [], "scripts' own work is no statement of the program");

setCatalogue([{name: "動物", path: dictionary}, {name: "b", path: "C:\\b.mdb", selected: true}]);
const records = readBytes(appFile("lexicons.dat"));
check(records.length, 618, "two records");
check(records.slice(0, 5), "\x93\xae\x95\xa8 ", "the name in Shift_JIS");
check(records.slice(50, 53), "Z:\\", "a host path is written as its drive path");
check(records.slice(305, 309), "\0\0\0\0", "not selected");
check(records.slice(309 + 305), "\xff\xff\0\0", "selected");
check(records.slice(309 + 50, 309 + 61), "C:\\b.mdb   ", "a drive path stays");
