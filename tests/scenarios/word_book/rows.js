// Adding, finding, deleting and sorting rows.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run", null, 1, "走る", null], ["runner", null, 1, "走者", null], ["zoo", null, 1, "動物園", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const list = "frmHistory.List1";
const book = appFile("WordBook.dat");
const field = (bytes) => bytes + " ".repeat(255 - bytes.length);
const add = answerText => {
    answerInput(answerText);
    click("frmHistory.Command1");
};
const notice = (title, words) => ({kind: "message", title: title, text: words, icon: 48, beep: 48, buttons: ["OK"],
    defaultButton: "OK", answer: "OK"});

typeText("frmFind.txtFind", "run ");
menu("mnuHistory");
check(caption("frmHistory"), "マイ ワードブック", "the caption");
check(["1", "2", "4", "5", "3"].map(number => caption("frmHistory.Command" + number)),
    ["追加", "削除", "検索", "ソート", "閉じる"], "the buttons");
check(["1", "2", "4", "5", "3"].map(number => toolTip("frmHistory.Command" + number)),
    ["検索語入力ボックス中の単語／熟語をマイ ワードブックの項目に追加します", "",
        "マイ ワードブック中の選択項目を検索語入力ボックスに移動します", "見出し語を並び替えます", ""], "their tool tips");
check(items(list), [], "an empty book");
check(size(book), 0, "the file is made");
check(enabled("frmFind"), false, "the main window takes no input");

// Adding.
answerInput(null);
click("frmHistory.Command1");
check(boxes().map(box => [box.kind, box.prompt, box.title, box.defaultText]),
    [["input", "マイ ワードブックに追加する見出し語を入力してください...", "追加", "run"]], "the question, with the trimmed text");
check(items(list), [], "cancelled");
add("");
boxes();
check(items(list), [], "an empty answer adds nothing");
add("run");
check([items(list), selectedRow(list)], [["run"], 0], "a word is added and selected");
add(" zoo ");
check([items(list), selectedRow(list)], [["run", " zoo "], 1], "as it was typed");
add("  ");
check(items(list), ["run", " zoo ", "  "], "blanks are a word");
add("長い日本語の見出し語");
check(selectedRow(list), 3, "the new row is the last");
boxes();
for (const [word, row] of [["run", 0], ["RUN", 0], ["長い日本語の見出し語", 3], [" ZOO ", 1], ["  ", 2]]) {
    answer("OK");
    add(word);
    check(boxes().slice(1), [notice("マイ ワードブックに登録済み", "見出し語は既にマイ ワードブックに登録されています！")],
        "it is there already: " + word);
    check([items(list).length, selectedRow(list)], [4, row], "and selected");
}
add("zoo");
add("ru");
add("ｒｕｎ");
check(items(list).slice(4), ["zoo", "ru", "ｒｕｎ"], "only the whole text is the same");
boxes();
check(readBytes(book), "", "nothing is written before the end");

// Deleting.
clickRow(list, 5);
answer("いいえ");
click("frmHistory.Command2");
check(boxes(), [{kind: "message", title: "削除確認", text: "選択中のマイ ワードブックの項目を削除してよろしいですか？", icon: 48,
    beep: 48, buttons: ["はい", "いいえ"], defaultButton: "はい", answer: "いいえ"}], "the question");
check([items(list).length, selectedRow(list)], [7, 5], "no");
answer("はい");
click("frmHistory.Command2");
check([items(list).includes("ru"), items(list).length, selectedRow(list)], [false, 6, -1], "yes");
boxes();
answer("OK");
click("frmHistory.Command2");
check(boxes(), [notice("削除見出し語未選択", "削除する見出し語が選択されていません！")], "nothing is selected");

// Sending to the entry box.
answer("OK");
click("frmHistory.Command4");
check(boxes(), [notice("検索見出し語未選択", "検索する見出し語が選択されていません！")], "nothing is selected");
clickRow(list, 1);
click("frmHistory.Command4");
check(text("frmFind.txtFind"), "zoo", "the row, trimmed");
check(items("frmFind.List1"), ["zoo"], "is searched at once in incremental mode");
check([isOpen("frmHistory"), enabled("frmFind")], [true, false], "the dialog stays");
doubleClick(list, 0);
check([text("frmFind.txtFind"), selectedRow(list)], ["run", 0], "so does a double click");
press(list, "Down");
press(list, "Enter");
check(text("frmFind.txtFind"), "zoo", "and Enter on a row");
clickRow(list, 2);
click("frmHistory.Command4");
check(text("frmFind.txtFind"), "", "a row of blanks empties it");

// Sorting.
clickRow(list, 4);
check(text(list), "zoo", "a row is selected");
click("frmHistory.Command5");
check(items(list), ["  ", " zoo ", "run", "zoo", "長い日本語の見出し語", "ｒｕｎ"], "in the order of the characters");
check(text(list), "zoo", "the same word stays selected");
click("frmHistory.Command5");
check(items(list), ["  ", " zoo ", "run", "zoo", "長い日本語の見出し語", "ｒｕｎ"], "again");
add("Apple");
add("apple pie");
clickRow(list, 0);
answer("はい");
click("frmHistory.Command2");
boxes();
click("frmHistory.Command5");
check(items(list), [" zoo ", "Apple", "apple pie", "run", "zoo", "長い日本語の見出し語", "ｒｕｎ"], "case does not count");
check(selectedRow(list), -1, "nothing was selected");

click("frmHistory.Command3");
check([isOpen("frmHistory"), enabled("frmFind")], [false, true], "closed");
check(readBytes(book), [" zoo ", "Apple", "apple pie", "run", "zoo",
    "\x92\xb7\x82\xa2\x93\xfa\x96\x7b\x8c\xea\x82\xcc\x8c\xa9\x8f\x6f\x82\xb5\x8c\xea", "\x82\x92\x82\x95\x82\x8e"].map(field).join(""),
    "records of 255 bytes in the order of the list");
menu("mnuHistory");
check(items(list), ["zoo", "Apple", "apple pie", "run", "zoo", "長い日本語の見出し語", "ｒｕｎ"], "read again, trimmed");
click("frmHistory.Command3");
check(boxes(), [], "no further box");
