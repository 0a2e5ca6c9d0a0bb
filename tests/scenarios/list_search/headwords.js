// Prefix, middle and suffix searches: what they find, what they send, what they say.
const dictionary = tempDir() + "/animals.mdb";
makeDictionary(dictionary, [
    ["cat", null, 1, "猫", null],
    ["CATTLE", null, 1, "牛", null],
    ["cat nap", null, 2, "うたた寝", null],
    ["concat", null, 1, "連結", null],
    ["scatter", null, 1, "撒く", null],
    ["bob cats", null, 2, "山猫", null],
    ["カタ", null, 1, "型", null],
    ["ｶﾀﾛｸﾞ", null, 1, "目録", null],
]);
setCatalogue([{name: "動物", path: dictionary, selected: true}]);
start();

const search = (mode, typed) => {
    menu(mode);
    setText("frmFind.txtFind", typed);
    statements();
    press("frmFind.txtFind", "Enter");
    return items("frmFind.List1");
};
const found = count => count + "件の見出し語が見つかりました。";
const none = "該当する見出し語は見つかりませんでした。";
const statement = pattern => "SELECT TOP 500 * FROM Dictionary WHERE Word Like '" + pattern + "' ORDER BY Word ASC";

for (const [mode, typed, pattern, expected] of [
    ["mnuPreSrch", "cat", "cat%_%", ["cat nap", "CATTLE"]],
    ["mnuMidSrch", "cat", "%_%cat%_%", ["bob cats", "scatter"]],
    ["mnuPostSrch", "cat", "%_%cat", ["concat"]],
    ["mnuPreSrch", "CAT", "CAT%_%", ["cat nap", "CATTLE"]],
    ["mnuPreSrch", "ｃａｔ", "ｃａｔ%_%", ["cat nap", "CATTLE"]],
    ["mnuPreSrch", "かた", "かた%_%", ["ｶﾀﾛｸﾞ"]],
    ["mnuPostSrch", "グ", "%_%グ", ["ｶﾀﾛｸﾞ"]],
    ["mnuPreSrch", "[bs]", "[bs]%_%", ["bob cats", "scatter"]],
]) {
    check(search(mode, typed), expected, mode + " " + typed);
    check(statements()[0], statement(pattern), mode + " " + typed + ": the statement");
    check(status(), found(expected.length), mode + " " + typed + ": the count");
    check(state("HitCount"), expected.length, "is kept");
    check(state("WordPattern"), pattern, "so is the pattern");
    check(state("SearchText"), typed, "and the text as it was typed");
    check(pointer(), 0, "the pointer is the usual one");
}

for (const [mode, typed, pattern] of [
    ["mnuPreSrch", "concat", "concat%_%"],
    ["mnuPostSrch", "concat", "%_%concat"],
    ["mnuMidSrch", "concat", "%_%concat%_%"],
    ["mnuMidSrch", "CATTLE", "%_%CATTLE%_%"],
    ["mnuPreSrch", "50%", "50[%]%_%"],
    ["mnuPreSrch", "a_b", "a[_]b%_%"],
    ["mnuPreSrch", "it's", "it''s%_%"],
]) {
    check(search(mode, typed), [], mode + " " + typed + " is no hit");
    check(statements(), [statement(pattern)], mode + " " + typed + ": the one statement");
    check(status(), none, mode + " " + typed + ": told in the status bar");
    check(size(appFile("ListData.dat")), 0, "an empty store");
    ok(page().includes("<FONT COLOR"), "the blank page stays");
    check(pointer(), 0, "the pointer is the usual one");
    check([state("SearchConnection"), state("SearchRecordset")], [false, false], "nothing stays open");
    check(visible("frmFind.Picture0"), true, "the start button is back");
}
check(boxes(), [], "no box for any of it");

// Limited to words or to phrases.
menu("mnuSrchFromWord");
check(search("mnuPreSrch", "cat"), ["CATTLE"], "words");
check(statements()[0], "SELECT TOP 500 * FROM Dictionary WHERE WordPhrase = 1 AND Word Like 'cat%_%' ORDER BY Word ASC",
    "their statement");
menu("mnuSrchFromPhrase");
check(items("frmFind.List1"), ["CATTLE"], "another target does not search by itself");
check(search("mnuMidSrch", "cat"), ["bob cats"], "phrases");
check(statements()[0], "SELECT TOP 500 * FROM Dictionary WHERE WordPhrase = 2 AND Word Like '%_%cat%_%' ORDER BY Word ASC",
    "their statement");
