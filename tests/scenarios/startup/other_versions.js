// Dictionaries of another version or with other marks: refused and left alone, or made fit.
const path = tempDir() + "/words.mdb";
makeDictionary(path, [["pine", null, 1, "松", null], ["pin", null, 1, "針", null]]);
const whole = readBytes(path);
const put = (at, bytes) => whole.slice(0, at) + bytes + whole.slice(at + bytes.length);
const version = whole.slice(60, 64);
setCatalogue([{name: "版", path, selected: true}]);

for (const [what, bytes] of [
    ["a later format", put(60, "\x00\x02" + version.slice(2))],
    ["no format", put(60, "\x00\x00\x00\x00")],
    ["another program's mark", put(68, "ABCD")],
    ["a page too few", whole.slice(0, whole.length - 16384)],
    ["half a page more", whole + "\x00".repeat(8192)],
]) {
    writeBytes(path, bytes);
    answer("OK");
    start();
    const shown = boxes();
    check(shown.map(box => box.title), ["エラー"], what + ": told at the start");
    ok(shown[0].text.startsWith("エラー番号 -2147467259 "), what + ": " + shown[0].text);
    check(state("TableFirstWord"), "", what + ": no headword was read");
    answer("OK");
    setText("frmFind.txtFind", "pi");
    check(boxes().map(box => box.title), ["設定辞書「版」の辞書データベースなし"], what + ": a search tells");
    exit();
    ok(readBytes(path) === bytes, what + ": the file is not touched");
}

// An order of headwords that is not the program's: the index is built anew.
writeBytes(path, put(60, version.slice(0, 2) + "\x00\x63"));
start();
check(boxes(), [], "another order: nothing to tell");
check([state("TableFirstWord"), state("TableLastWord")], ["pin", "pine"], "the table is read");
setText("frmFind.txtFind", "pi");
check(items("frmFind.List1"), ["pin", "pine"], "and searched");
exit();
check(readBytes(path).slice(60, 64), version, "under the present order");
check(rows(path).map(row => [row.Word, row.AutoID]), [["pin", 2], ["pine", 1]], "with every record");
