// From the three boxes to the text in the entry box.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [
    ["abc", null, 1, "語一", "a test"],
    ["abd", null, 1, "語二", "nothing"],
    ["abe", null, 1, "別", "a test"],
]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
menu("mnuPreSrch");
const compose = (word, meaning, example) => {
    menu("mnuAddSearchCondition");
    setText("frmAddCondition.Text3", word);
    setText("frmAddCondition.Text1", meaning);
    setText("frmAddCondition.Text2", example);
    click("frmAddCondition.Command1");
    return text("frmFind.txtFind");
};
for (const [word, meaning, example, expected] of [
    ["ab", "語", "test", "ab/T:語/E:test"],
    ["ab", "語", "", "ab/T:語"],
    ["ab", "", "test", "ab/E:test"],
    [" ab　", " 語 ", "　a test ", "ab/T:語/E:a test"],
    ["ab", "  ", "　", "ab"],
    ["ab/T:x", "語", "", "ab/T:x/T:語"],
    ["語".repeat(255), "訳".repeat(255), "例".repeat(255),
        "語".repeat(255) + "/T:" + "訳".repeat(255) + "/E:" + "例".repeat(255)],
]) {
    check(compose(word, meaning, example), expected, expected.slice(0, 30));
    check([isOpen("frmAddCondition"), enabled("frmFind")], [false, true], "the dialog goes");
}
setText("frmFind.txtFind", "ab/T:語/E:test");
menu("mnuAddSearchCondition");
setText("frmAddCondition.Text1", "");
setText("frmAddCondition.Text2", "");
click("frmAddCondition.Command1");
check(text("frmFind.txtFind"), "ab", "both boxes emptied: the conditions are gone");

// No word: told, and the dialog stays.
for (const word of ["", "  ", "　"]) {
    setText("frmFind.txtFind", "kept");
    menu("mnuAddSearchCondition");
    setText("frmAddCondition.Text3", word);
    setText("frmAddCondition.Text1", "語");
    answer("OK");
    click("frmAddCondition.Command1");
    check(boxes(), [{
        kind: "message", title: "検索文字列なし", icon: 48, beep: 48, buttons: ["OK"], defaultButton: "OK", answer: "OK",
        text: "見出し語の検索文字列が指定されていません！\r\n\r\n検索しようとする見出し語に含まれる文字列を入力してください。",
    }], "no word");
    check([isOpen("frmAddCondition"), text("frmFind.txtFind")], [true, "kept"], "the dialog stays");
    check(text("frmAddCondition.Text1"), "語", "with what was typed");
    check(focused(), "frmAddCondition.Text3", "the focus goes to the word");
    click("frmAddCondition.Command2");
    check(text("frmFind.txtFind"), "kept", "cancelled");
}

// No search starts here; the user starts it.
check(compose("ab", "語", "test"), "ab/T:語/E:test", "all three");
check(items("frmFind.List1"), [], "nothing is searched yet");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1"), ["abc"], "the search heeds all three");
compose("ab", "", "test");
press("frmFind.txtFind", "Enter");
check(items("frmFind.List1"), ["abc", "abe"], "and two");

// By the keyboard alone.
menu("mnuAddSearchCondition");
const order = [];
for (let i = 0; i < 5; ++i) {
    order.push(focused().replace("frmAddCondition.", ""));
    press("frmAddCondition", "Tab");
}
check(order, ["Text3", "Text1", "Text2", "Command1", "Command2"], "the tab order");
check(focused(), "frmAddCondition.Text3", "and round");
check(selectedText("frmAddCondition.Text3"), "ab", "the word is selected, ready to be typed over");
typeText("frmAddCondition.Text3", "abd");
press("frmAddCondition.Text2", "Enter");
check([isOpen("frmAddCondition"), text("frmFind.txtFind")], [false, "abd/E:test"], "Enter is OK");
menu("mnuAddSearchCondition");
press("frmAddCondition.Text1", "Esc");
check([isOpen("frmAddCondition"), text("frmFind.txtFind")], [false, "abd/E:test"], "Esc cancels");
menu("mnuAddSearchCondition");
press("frmAddCondition.Command2", "Enter");
check(isOpen("frmAddCondition"), false, "Enter on the cancel button cancels");
menu("mnuAddSearchCondition");
setText("frmAddCondition.Text3", "other");
closeForm("frmAddCondition");
check([isOpen("frmAddCondition"), enabled("frmFind"), text("frmFind.txtFind")], [false, true, "abd/E:test"],
    "the window frame cancels");
check(boxes(), [], "no further box");
