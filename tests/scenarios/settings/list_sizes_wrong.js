// A line of the right length that holds no numbers: told, the initial values stay, and nothing is written.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["dawn", null, 1, "暁", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const names = ["IncListCount", "IncEntriesPerPage", "ListPageSize", "MaxListCount", "EntriesPerPage", "WordBookMax",
    "SearchTarget"];
const standard = [50, 15, 50, 500, 15, 300, 0];
const mismatch = "エラー番号  13 Wordmere でエラーが発生しました。\r型が一致しません。";
const overflow = "エラー番号  6 Wordmere でエラーが発生しました。\rオーバーフローしました。";

for (const [line, told, what] of [
    ["o5015050005001503000", mismatch, "a letter in the first field"],
    ["0991505000500150300x", mismatch, "a letter in the last field"],
    ["099150500050015    0", mismatch, "a field of blanks"],
    ["09915050999991503000", overflow, "more results than a 16-bit number counts"],
    ["\x8c\xea".repeat(20), mismatch, "twenty kanji"],
    ["\x00".repeat(20), mismatch, "twenty NUL"],
]) {
    writeBytes(appFile("ListDefi.dat"), line + "\r\n");
    answer("OK");
    start();
    const shown = boxes();
    check(shown.map(box => [box.title, box.text, box.icon]), [["エラー", told, 16]], what);
    check(names.map(state), standard, "every initial value stays");
    check(visible("frmFind"), true, "the window comes");
    check(text("frmFind.Combo1"), "英和", "the steps behind it run");
    typeText("frmFind.txtFind", "d");
    check(items("frmFind.List1"), ["dawn"], "and the search works");
    exit();
    check(readBytes(appFile("ListDefi.dat")), line + "\r\n", "the file stays");
}

// Numbers below zero are numbers; no list has that length, and the program stands it.
writeBytes(appFile("ListDefi.dat"), "-50-5-50-0500-5-3000\r\n");
start();
check(state("IncListCount"), -50, "below zero");
answer("OK");
typeText("frmFind.txtFind", "d");
check(boxes().map(box => box.text), ["エラー番号  9 Wordmere でエラーが発生しました。\rインデックスが有効範囲にありません。"],
    "a list of that length cannot be");
check(text("frmFind.txtFind"), "d", "what was typed stays");
menu("mnuIncSrch");
