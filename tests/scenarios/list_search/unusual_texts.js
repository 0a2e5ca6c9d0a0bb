// Search texts that nobody expects: very long ones, blanks, marks alone.
const dictionary = tempDir() + "/odd.mdb";
makeDictionary(dictionary, [
    ["a  b", null, 2, "空白  二つ", "x　y"],
    ["ab", null, 1, "なし", null],
    ["a 　　b", null, 2, "全角", null],
]);
setCatalogue([{name: "奇", path: dictionary, selected: true}]);
start();
const search = (mode, typed) => {
    menu(mode);
    setText("frmFind.txtFind", typed);
    statements();
    press("frmFind.txtFind", "Enter");
    return items("frmFind.List1");
};
const none = "該当する見出し語は見つかりませんでした。";
const modes = ["mnuPreSrch", "mnuMidSrch", "mnuPostSrch", "mnuTxtInMeaning", "mnuTxtInExample", "mnuWildCard"];

for (const mode of modes) {
    for (const [what, typed] of [["long", "a".repeat(10000)], ["long Japanese", "犬".repeat(10000)], ["quotes", "'''"],
        ["a statement", "x' OR '1'='1"], ["a semicolon", "a;DROP TABLE Dictionary"], ["control characters", "\u0001\u007f"],
        ["an emoji", "😀"], ["slashes", "//"], ["a lone marker's beginning", "/T"]]) {
        check(search(mode, typed), [], mode + ": " + what);
        check(status(), none, mode + ": " + what + " finds nothing");
        check(statements().length, 1, mode + ": " + what + " is one statement");
    }
    const conditions = "a/T:" + "b".repeat(5000) + "/E:" + "c".repeat(5000);
    search(mode, conditions);
    check(text("frmFind.txtFind"), conditions, mode + ": long conditions are searched");
}
check(boxes(), [], "without a box");

// Blanks pass for a text and are searched as they stand.
check(search("mnuMidSrch", "  "), ["a 　　b", "a  b"], "two blanks within a word, of any width");
check(status(), "2件の見出し語が見つかりました。", "are found");
ok(page().includes("<SPAN ID=sty1>a</SPAN><SPAN ID=sty5>  </SPAN><SPAN ID=sty1>b</SPAN>"), "and marked");
check(search("mnuTxtInMeaning", "  "), ["a  b"], "in a meaning");
check(search("mnuPreSrch", " "), [], "in front of a word: none");
check(text("frmFind.txtFind"), " ", "the blank stays in the box");
check(status(), none, "told");
check(rows(dictionary).length, 3, "the dictionary is untouched");

// Blanks alone in front of the markers.
check(search("mnuMidSrch", " /T:二"), ["a  b"], "a blank is a word part");
