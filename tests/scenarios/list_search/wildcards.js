// The wildcard search takes the text as a pattern.
const dictionary = tempDir() + "/patterns.mdb";
makeDictionary(dictionary, ["50%", "50", "500", "a_b", "axb", "cat", "cot", "cut", "coat", "it's", "[x", "x", "", "犬", "ＣＡＴ"]
    .map(word => [word, null, 1, "訳 " + word, null]));
setCatalogue([{name: "型", path: dictionary, selected: true}]);
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "ca");
press("frmFind.txtFind", "Enter");
menu("mnuWildCard");

const search = typed => {
    setText("frmFind.txtFind", typed);
    statements();
    press("frmFind.txtFind", "Enter");
    return items("frmFind.List1");
};
for (const [typed, pattern, expected] of [
    ["cat", "cat", ["cat", "ＣＡＴ"]],
    ["c_t", "c_t", ["cat", "ＣＡＴ", "cot", "cut"]],
    ["c%t", "c%t", ["cat", "ＣＡＴ", "coat", "cot", "cut"]],
    ["c[ou]t", "c[ou]t", ["cot", "cut"]],
    ["c[a-o]t", "c[a-o]t", ["cat", "ＣＡＴ", "cot"]],
    ["c[!a]t", "c[!a]t", ["cot", "cut"]],
    ["50%", "50%", ["50", "50%", "500"]],
    ["50[%]", "50[%]", ["50%"]],
    ["a_b", "a_b", ["a_b", "axb"]],
    ["it's", "it''s", ["it's"]],
    ["[[]x", "[[]x", ["[x"]],
    ["_", "_", ["x", "犬"]],
]) {
    check(search(typed), expected, typed);
    check(statements()[0], "SELECT TOP 500 * FROM Dictionary WHERE Word Like '" + pattern + "' ORDER BY Word ASC",
        typed + ": the statement");
    check(state("SearchText"), "ca", typed + ": the text to be marked is left alone");
    ok(page().includes("<SPAN ID=sty1>" + expected[0] + "</SPAN>") && !page().includes("sty5>"), typed + ": nothing is marked");
}
check(search("%").length, 15, "the empty headword is one too");
check(boxes(), [], "no box so far");

// A bracket without its end is no pattern: told, and the window goes on.
for (const by of ["Enter", "button"]) {
    setText("frmFind.txtFind", "c[at");
    answer("OK");
    if (by === "Enter")
        press("frmFind.txtFind", "Enter");
    else
        mouseDown("frmFind.Picture0");
    const [box] = boxes();
    check(box.title, "エラー", by + ": the title");
    ok(/^エラー番号 -2147217900 .* でエラーが発生しました。\r./.test(box.text), by + ": the text");
    check(box.icon, 16, by + ": critical");
    check([pointer(), visible("frmFind.Picture0"), visible("frmFind.Picture00"), enabled("frmFind")], [0, true, false, true],
        by + ": the window is ready");
    check([state("SearchConnection"), state("SearchRecordset")], [false, false], by + ": nothing stays open");
    check(status(), "", by + ": the status bar no longer says that it searches");
    check(text("frmFind.txtFind"), "c[at", by + ": the text stays to be mended");
    check(items("frmFind.List1"), [], by + ": an empty list");
    check(search("c[a]t"), ["cat", "ＣＡＴ"], by + ": mended, it is searched");
}
// In the other searches a bracket is active too.
menu("mnuMidSrch");
answer("OK");
check(search("[a"), [], "a bracket without its end in a middle search");
check(boxes().map(box => box.title), ["エラー"], "is told");
