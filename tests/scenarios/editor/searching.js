// The search of the editor: the exact word, then its beginning.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [
    ["it's me", null, 2, "私", null],
    ["catalogue", null, 1, "目録", null],
    ["cat", null, 1, "猫", null],
    ["cat", null, 1, "猫の二", null],
    ["100%", null, 1, "全部", null],
    ["100 per cent", null, 2, "百", null],
    ["a_b", null, 1, "下線", null],
    ["axb", null, 1, "斜め", null],
]);
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
const here = () => [text("frmMstmnt.Text1"), state("CurrentAutoID")];
const find = word => {
    answerInput(word);
    statements();
    click("frmMstmnt.Command10");
};
const select = "SELECT TOP 1 * FROM Dictionary WHERE Word ";

find("cat");
let [box] = boxes();
check([box.kind, box.title, box.prompt, box.defaultText], ["input", "検索", "検索する辞書レコードの見出し語を入力してください...", ""], "the input box");
check([here(), statements()], [["cat", 3], [select + "= 'cat'"]], "the exact word, the first of namesakes");
check([enabled("frmMstmnt.Command6"), enabled("frmMstmnt"), isOpen("frmProcessing"), state("ViewConnection")], [false, true, false, false], "all is put back");
find("　CATA ");
check([here(), statements()], [["catalogue", 2], [select + "= 'CATA'", select + "like 'CATA%' ORDER BY Word ASC"]], "the first that begins so, blanks aside");
find("ca");
check(here(), ["cat", 3], "in the order of words");
find("c");
check(here()[0].startsWith("c"), true, "a single character finds some word that begins with it");
check(statements(), [select + "= 'c'", select + "like 'c%'"], "in no order");
find("it's");
check([here(), statements()[0]], [["it's me", 1], select + "= 'it''s'"], "an apostrophe is doubled");
find("100%");
check([here(), statements()], [["100%", 5], [select + "= '100[%]'", select + "like '100[%]%' ORDER BY Word ASC"]], "a percent sign is itself");
answer("OK");
find("%");
check([here(), statements()[1]], [["100%", 5], select + "like '[%]%' ORDER BY Word ASC"], "alone it begins no word here, in brackets");
boxes();
find("a_");
check([here(), statements()[1]], [["a_b", 7], select + "like 'a[_]%' ORDER BY Word ASC"], "an underline is itself");

// Not found.
answer(shown => {
    check([isOpen("frmProcessing"), enabled("frmMstmnt"), state("ViewConnection")], [true, false, false], "told while the small window stands");
    return "OK";
});
boxes();
find("zebra");
box = boxes()[1];
check([box.title, box.text, box.icon, box.beep, box.buttons], ["該当データなし", "指定のレコードは見つかりませんでした。", 48, 48, ["OK"]], "the notice");
check([here(), isOpen("frmProcessing"), enabled("frmMstmnt"), isOpen("frmMstmnt")], [["a_b", 7], false, true, true], "the record stays");

// The small window, and what can happen while it is painted.
atYield(1, () => {
    check([isOpen("frmProcessing"), caption("frmProcessing.Label1"), caption("frmProcessing.Label2")],
        [true, "検索中です．．．", "しばらくお待ちください．．．"], "the small window");
    check([enabled("frmMstmnt"), enabled("frmFind")], [false, false], "nothing takes input");
    typeText("frmMstmnt.Text1", "x");
    closeForm("frmProcessing");
    check(isOpen("frmProcessing"), true, "its frame does not close it");
});
find("cat");
check(here(), ["cat", 3], "found behind it");
atYield(1, () => closeForm("frmMstmnt"));
find("100%");
check(openForms(), ["frmFind"], "the editor may be closed meanwhile");
check([enabled("frmFind"), state("ViewConnection")], [true, false], "and the main window is back");
menu("mnuOpen");

// No answer, blanks.
boxes();
find(null);
check([here(), statements(), boxes().length], [["100 per cent", 6], [], 1], "cancelled");
find("");
check(statements(), [], "an empty answer");
click("frmMstmnt.Command4");
find("　 ");
check([here(), statements()[1]], [["100 per cent", 6], select + "like '%' ORDER BY Word ASC"], "blanks find the first of all");

// A bracket that is not closed is a bad pattern.
boxes();
answer("OK");
find("cat[");
check(boxes().map(shown => shown.title), ["検索", "エラー"], "told by the default handling");
check([here(), isOpen("frmProcessing"), enabled("frmMstmnt"), enabled("frmFind"), openForms()],
    [["100 per cent", 6], false, true, false, ["frmFind", "frmMstmnt"]], "the small window goes, the form takes input");

// A changed record.
typeText("frmMstmnt.Text3", "x");
answer("キャンセル");
click("frmMstmnt.Command10");
[box] = boxes();
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["変更確認", "内容が変更されています。検索開始前に変更した内容を保存しますか？", 32, 32, ["はい", "いいえ", "キャンセル"]], "the question");
check([focused(), text("frmMstmnt.Text3")], ["frmMstmnt.Text3", "x百"], "cancelled");
answer("いいえ");
answerInput(null);
click("frmMstmnt.Command10");
check([text("frmMstmnt.Text3"), caption("frmMstmnt.Command7"), enabled("frmMstmnt.Command6")], ["百", "元に戻す(&U)", false], "dropped at once");
typeText("frmMstmnt.Text3", "y");
answer("はい");
find("cat");
check([here(), rows(dictionary).find(row => row.AutoID === 6).Description], [["cat", 3], "y百"], "saved before the search");
setText("frmMstmnt.Text1", "");
answer("はい");
answer("OK");
boxes();
click("frmMstmnt.Command10");
check(boxes().map(shown => shown.title), ["変更確認", "入力必須項目"], "no search without a word");

// A dictionary that has become empty is not searched.
click("frmMstmnt.Command7");
makeDictionary(dictionary, []);
answer("OK");
boxes();
find("cat");
check([boxes()[1].title, statements(), text("frmMstmnt.Text1")], ["該当データなし", [], "cat"], "not found");
