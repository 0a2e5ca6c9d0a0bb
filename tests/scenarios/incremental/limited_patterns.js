// Signs in the text of a limited search: percent, underscore and quote are literal, brackets live.
const dictionary = tempDir() + "/signs.mdb";
makeDictionary(dictionary, [
    ["100% sure", null, 1, "確か", null],
    ["100 men", null, 1, "百人", null],
    ["a_b", null, 1, "下線", null],
    ["axb", null, 1, "エックス", null],
    ["o'clock", null, 1, "時", null],
    ["oats", null, 1, "燕麦", null],
    ["bat", null, 1, "蝙蝠", null],
    ["cat", null, 1, "猫", null],
    ["[sic]", null, 1, "原文のまま", null],
    ["a\"b", null, 1, "引用符", null],
]);
setCatalogue([{name: "記号", path: dictionary, selected: true}]);
start();
menu("mnuSrchFromWord");

const found = typed => {
    setText("frmFind.txtFind", typed);
    return items("frmFind.List1");
};
const pattern = () => statements().map(text => /like '(.*)' ORDER BY/.exec(text)[1]);

check(found("100%"), ["100% sure"], "a percent sign");
check(pattern(), ["100[%]%"], "is put in brackets");
check(found("a_"), ["a_b"], "an underscore");
check(pattern(), ["a[_]%"], "too");
check(found("o'"), ["o'clock"], "a quote");
check(pattern(), ["o''%"], "is doubled");
check(found("'%_"), [], "all three");
check(pattern(), ["''[%][_]%"], "one after the other");
check(found("a\""), ["a\"b"], "a double quote stands for itself");
pattern();
check(found("[bc]at"), ["bat", "cat"], "a class of characters works");
check(found("[a-b]"), ["a\"b", "a_b", "axb", "bat"], "a range too");
check(found("[[]s"), ["[sic]"], "and a bracket in brackets");
check(pattern(), ["[bc]at%", "[a-b]%", "[[]s%"], "as they were typed");
check(found("sic]"), [], "a closing bracket alone is literal");

// An unbalanced bracket is told, key by key.
let atTheBox = null;
answer(() => {
    atTheBox = [pointer(), status()];
    return "OK";
});
check(found("["), [], "an open bracket is no pattern");
const shown = boxes();
check(shown.length, 1, "one box");
check(shown[0].title, "エラー", "its title");
check(shown[0].text,
    "エラー番号 -2147217900 ADODB.Recordset でエラーが発生しました。\r検索条件の書き方が正しくありません。",
    "its text");
check(shown[0].buttons, ["OK"], "its button");
check(shown[0].icon, 0, "no icon");
check(shown[0].beep, 0, "no beep");
check(atTheBox, [0, ""], "pointer and status bar are the usual ones while it is read");
check(status(), "", "and behind it");
check(text("frmFind.txtFind"), "[", "the text stays");
check(found("cat"), ["cat"], "and the next change works");
check(status(), "", "with an empty status bar");

menu("mnuSrchFromAll");
check(found("["), ["[sic]", "100 men"].concat(items("frmFind.List1").slice(2)), "as a place a bracket is a sign");
