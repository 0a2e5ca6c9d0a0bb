// A dictionary whose index is of an older kind gets a new one when a search opens it: under the hourglass, which stays
// as long as the search runs.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["bat", null, 1, "蝙蝠", null], ["cat", null, 1, "猫", null], ["hat", null, 1, "帽子", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();

// The version of the index, in the file's header.
const versionAt = 63;
const versionOf = bytes => bytes.charCodeAt(versionAt);
const current = versionOf(readBytes(dictionary));
const outdate = () => {
    const bytes = readBytes(dictionary);
    writeBytes(dictionary, bytes.slice(0, versionAt) + "\0" + bytes.slice(versionAt + 1));
};

menu("mnuMidSrch");
setText("frmFind.txtFind", "a");
for (const isOutdated of [false, true, true]) {
    if (isOutdated)
        outdate();
    check(versionOf(readBytes(dictionary)), isOutdated ? 0 : current, "the version before");
    const seen = [];
    for (const row of [1, 2, 3])
        atYield(row, () => seen.push([pointer(), versionOf(readBytes(dictionary))]));
    press("frmFind.txtFind", "Enter");
    check(seen, [[11, current], [11, current], [11, current]], "the hourglass between the rows, and the new index");
    check(items("frmFind.List1"), ["bat", "cat", "hat"], "the hits");
    check(pointer(), 0, "the pointer behind the search");
}

// Typing opens the dictionary too, without an hourglass of its own.
menu("mnuIncSrch");
outdate();
typeText("frmFind.txtFind", "c");
check([pointer(), versionOf(readBytes(dictionary))], [0, current], "the pointer is the default one again");
check(items("frmFind.List1"), ["cat", "hat"], "the list");
