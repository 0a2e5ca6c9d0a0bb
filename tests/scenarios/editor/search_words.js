// What may be typed into the box of the search.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [
    ["'", null, 1, "一", null], ["''x", null, 1, "二", null], ["😀x", null, 1, "顔", null], ["[y]", null, 1, "角", null],
    ["カメラ", null, 1, "写", null], ["Coat", null, 1, "着", null], ["x]", null, 1, "右", null],
]);
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
const find = word => {
    answerInput(word);
    statements();
    click("frmMstmnt.Command10");
    return [text("frmMstmnt.Text1"), boxes().map(box => box.title).slice(1), statements().slice(-1)[0]];
};
const select = "SELECT TOP 1 * FROM Dictionary WHERE Word ";
check(find("'"), ["'", [], select + "= ''''"], "an apostrophe alone");
check(find("''"), ["''x", [], select + "like '''''%' ORDER BY Word ASC"], "two of them, each doubled");
check(find("😀"), ["😀x", [], select + "like '😀%' ORDER BY Word ASC"], "a character of two code units is no single one");
check(find("[[]y"), ["[y]", [], select + "like '[[]y%' ORDER BY Word ASC"], "a bracket of the user's own is active");
check(find("[!a-z']"), ["[y]", [], select + "like '[!a-z'']%' ORDER BY Word ASC"], "a class too: the first word in order");
check(find("ｶﾒ"), ["カメラ", [], select + "like 'ｶﾒ%' ORDER BY Word ASC"], "width does not count");
check(find("ＣＯ"), ["Coat", [], select + "like 'ＣＯ%' ORDER BY Word ASC"], "nor case");
check(find("x]"), ["x]", [], select + "= 'x]'"], "a closing bracket is itself");
for (const word of ["*", "?", "''; --", "a".repeat(300), "z"]) {
    answer("OK");
    check(find(word).slice(0, 2), ["x]", ["該当データなし"]], word.slice(0, 10) + ": not found, the record stays");
}
