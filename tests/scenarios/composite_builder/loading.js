// What the dialog shows of the search that stands in the main window.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ab", null, 1, "語", "test"]]);
setCatalogue([{name: "<b>英和</b> & 和英", path: dictionary, selected: true}]);
start();
const openIn = mode => {
    menu(mode);
    menu("mnuAddSearchCondition");
};
const leave = () => click("frmAddCondition.Command2");
const parts = () => ["Text3", "Text1", "Text2"].map(name => text("frmAddCondition." + name));

// The modes that take conditions.
for (const [mode, number, name] of [
    ["mnuPreSrch", 1, "前方一致検索"],
    ["mnuMidSrch", 2, "中間一致検索"],
    ["mnuPostSrch", 3, "後方一致検索"],
    ["mnuWildCard", 6, "ワイルドカード検索"],
]) {
    openIn(mode);
    check(isOpen("frmAddCondition"), true, name + ": open");
    check(caption("frmAddCondition.Label12"), name, "the mode's name");
    check(state("SearchMode"), number, "the mode stays");
    check(enabled("frmFind"), false, "the main window takes no input");
    check(focused(), "frmAddCondition.Text3", "the focus is in the word");
    leave();
    check([isOpen("frmAddCondition"), enabled("frmFind")], [false, true], "closed");
}
check(caption("frmFind.Label1"), "単熟語：", "words and phrases");

// The targets.
for (const [target, name, label] of [
    ["mnuSrchFromWord", "単語のみ", "単語："],
    ["mnuSrchFromPhrase", "熟語のみ", "熟語："],
    ["mnuSrchFromAll", "単語と熟語の両方", "単熟語："],
]) {
    menu(target);
    menu("mnuAddSearchCondition");
    check(caption("frmAddCondition.Label11"), name, "the target's name");
    check(caption("frmAddCondition.Label8"), label, "labels the word");
    leave();
}

// The words around.
menu("mnuAddSearchCondition");
check(caption("frmAddCondition"), "複合検索ビルダ", "the caption");
check(caption("frmAddCondition.Label10"), "<b>英和</b> & 和英", "the dictionary's name as it is");
check(caption("frmAddCondition.Frame1"), "現在の見出し語の検索条件", "the frame");
check(["1", "2", "3", "4", "5", "6", "7", "9", "13"].map(number => caption("frmAddCondition.Label" + number)),
    ["選択中の辞書：", "検索対象：", "検索条件：", "上記の見出し語検索条件にさらに次の条件を加えた検索を実行：",
        "訳語項目中に文字列", "を含むレコード", "また／あるいは", "用例項目中に文字列", "を含むレコード"], "the labels");
check([caption("frmAddCondition.Command1"), caption("frmAddCondition.Command2")], ["OK", "キャンセル"], "the buttons");
leave();

// The text of the entry box is taken apart.
for (const [typed, expected, what] of [
    ["", ["", "", ""], "nothing"],
    ["ab", ["ab", "", ""], "a word"],
    [" ab ", [" ab ", "", ""], "with its blanks"],
    ["ab/T:語/E:test", ["ab", "語", "test"], "all three"],
    ["ab/t:x/e:y", ["ab", "x", "y"], "small markers"],
    ["ab/E:test", ["ab", "", "test"], "no meaning"],
    ["ab/T:xyz", ["ab", "XYZ", ""], "a meaning without an example comes in capitals"],
    ["/T:x/E:y", ["", "x", "y"], "no word"],
    ["a/b:c", ["a/b:c", "", ""], "what is no marker"],
]) {
    setText("frmFind.txtFind", typed);
    menu("mnuAddSearchCondition");
    check(parts(), expected, what);
    check(selectedText("frmAddCondition.Text3"), expected[0], "the word is selected");
    leave();
    check(text("frmFind.txtFind"), typed, "cancelling leaves the entry box");
}

// Markers in the wrong order.
setText("frmFind.txtFind", "ab/E:y/T:x");
answer("OK");
menu("mnuAddSearchCondition");
const shown = boxes();
check(shown.map(box => [box.title, box.icon, box.beep]), [["順序指定の誤り", 48, 48]], "is told");
check(parts(), ["", "", ""], "nothing is taken apart");
leave();
check(text("frmFind.txtFind"), "ab/E:y/T:x", "the entry box keeps it");

// Long parts end at 255 characters, in the boxes and on the way into them.
setText("frmFind.txtFind", "語".repeat(300) + "/T:" + "訳".repeat(300) + "/E:" + "例".repeat(300));
menu("mnuAddSearchCondition");
check(parts(), ["語".repeat(255), "訳".repeat(255), "例".repeat(255)], "at most 255 characters");
press("frmAddCondition.Text3", "End");
typeText("frmAddCondition.Text3", "x");
check(text("frmAddCondition.Text3").length, 255, "no more can be typed");
ok(bounds("frmAddCondition").width < 12000, "long texts leave the dialog's width");
leave();
check(boxes(), [], "no further box");
