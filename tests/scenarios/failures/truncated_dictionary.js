// A large dictionary cut off in its middle: told, never a crash, and the file is not touched.
const path = tempDir() + "/large.mdb", good = tempDir() + "/good.mdb";
const rows = [];
for (let i = 0; i < 20000; ++i)
    rows.push(["word" + String(i).padStart(5, "0"), null, 1, "意味".repeat(20) + i, null]);
makeDictionary(path, rows);
makeDictionary(good, [["reed", null, 1, "葦", null]]);
const whole = readBytes(path);
setCatalogue([{name: "切れた", path, selected: true}, {name: "良い", path: good}]);

for (const share of [0.1, 0.5, 0.9]) {
    const cut = whole.slice(0, Math.floor(whole.length * share / 16384) * 16384 + 100);
    writeBytes(path, cut);
    for (let i = 0; i < 5; ++i)
        answer("OK");
    start();
    for (const word of ["word00000", "word10000", "word19999", "zzz"])
        setText("frmFind.txtFind", word);
    const shown = boxes();
    ok(shown.length >= 1, "cut at " + share + ": told " + shown.length + " times");
    check(shown.filter(box => box.title !== "エラー" && box.title !== "設定辞書「切れた」の辞書データベースなし"), [],
        "as a failure or as a missing dictionary");
    check(visible("frmFind"), true, "the window stands");
    choose("frmFind.Combo1", 1);
    setText("frmFind.txtFind", "reed");
    check(items("frmFind.List1"), ["reed"], "another dictionary works");
    choose("frmFind.Combo1", 0);
    exit();
    ok(readBytes(path) === cut, "the file is not touched");
}
