// Files that are no dictionaries: the start tells, each search tells what is wrong, and the file is not touched.
const target = tempDir() + "/words.mdb", good = tempDir() + "/good.mdb";
makeDictionary(good, [["moss", null, 1, "苔", null]]);
makeDictionary(target, [["x", null, 1, "x", null]]);
const whole = readBytes(target);
const cannotOpen = /^エラー番号 -2147467259 ADODB\.\w+ でエラーが発生しました。\r(データベースを開けません|辞書データベースが壊れています)。/;
const foreign = {
    "an empty file": "",
    "a text": "moss: a small green plant\r\n".repeat(40),
    "an image": "\x89PNG\r\n\x1a\n" + "\x00\x00\x00\rIHDR".repeat(700),
    "another program's database": "\x00\x01\x00\x00Standard Jet DB\x00\x01" + "\x00".repeat(8000),
    "the beginning of a dictionary": whole.slice(0, 100),
    "a dictionary without its end": whole.slice(0, 16384),
    "another table": whole.replace(/Dictionary/g, "Dicsionary"),
    "a header and rubbish": whole.slice(0, 100) + "\xa5".repeat(40000),
};
setCatalogue([{name: "怪しい", path: target, selected: true}, {name: "良い", path: good}]);

for (const what of Object.keys(foreign)) {
    writeBytes(target, foreign[what]);
    answer("OK");
    start();
    const shown = boxes();
    check(shown.map(box => box.title), ["エラー"], what + " is told at the start");
    ok(shown.length > 0 && cannotOpen.test(shown[0].text), what + ": " + (shown.length > 0 && shown[0].text));
    check(visible("frmFind"), true, "the window appears");
    check([state("CatalogueFlag1"), text("frmFind.Combo1")], [-1, "怪しい"], "with the catalogue");
    check(state("TableFirstWord"), "", "no headword was read");

    answer("OK");
    setText("frmFind.txtFind", "m");
    const [box] = boxes();
    check(box && box.title, "設定辞書「怪しい」の辞書データベースなし", "a search tells");
    ok(box && box.text.startsWith(drivePath(target) + "\r\n\r\n上記の辞書データベースが存在しないか"), "which file it is");
    check(box && [box.icon, box.beep], [16, 16], "with its icon and beep");
    choose("frmFind.Combo1", "良い");
    setText("frmFind.txtFind", "m");
    check(items("frmFind.List1"), ["moss"], "another dictionary works");
    choose("frmFind.Combo1", "怪しい");
    exit();
    ok(readBytes(target) === foreign[what], what + " is not touched");
}

// A folder with the name of a dictionary.
remove(target);
mkdir(target);
start();
check(boxes(), [], "a folder is no file: nothing to tell at the start");
answer("OK");
setText("frmFind.txtFind", "m");
check(boxes().map(box => box.title), ["設定辞書「怪しい」の辞書データベースなし"], "the search tells");
