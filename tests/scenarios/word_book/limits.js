// How many rows the book may have.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run", null, 1, "走る", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const book = appFile("WordBook.dat");
const field = bytes => bytes + " ".repeat(255 - bytes.length);
const name = number => "word" + String(number).padStart(4, "0");
const fill = count => writeBytes(book, Array.from({length: count}, (_, i) => field(name(i))).join(""));
const list = "frmHistory.List1";
const add = answerText => {
    answerInput(answerText);
    click("frmHistory.Command1");
};
fill(300);
start();
check(state("WordBookMax"), 300, "the default limit");
menu("mnuHistory");
check(items(list).length, 300, "300 rows");
clickRow(list, 7);
answer("OK");
add("one more");
check(boxes().slice(1), [{kind: "message", title: "登録可能件数オーバー", icon: 48, beep: 48, buttons: ["OK"], defaultButton: "OK",
    answer: "OK", text: "登録可能件数を超えました！現在の登録可能数は300件に設定されています。\r\n\r\n" +
    "登録可能件数を増やすには既存のデータを検索するか、または\r\nメニューバーから [ツール] ＞ [検索結果のリスト件数設定] を選択して\r\n" +
    "マイ ワードブックの最大登録・表示件数の設定変更をおこなってください。"}], "no more than the limit");
check([items(list).length, selectedRow(list)], [300, 7], "nothing is added");
answer("OK");
add("WORD0299");
check([boxes()[1].title, selectedRow(list)], ["マイ ワードブックに登録済み", 299], "a word that is there is told as such");
answer("はい");
click("frmHistory.Command2");
add("one more");
check([items(list).length, text(list)], [300, "one more"], "there is room again");
boxes();
click("frmHistory.Command3");
check(size(book), 300 * 255, "all are written");
check(readBytes(book).slice(-255), field("one more"), "the new one last");
exit();

// A book of a thousand rows with a limit of ten.
fill(1000);
writeBytes(appFile("ListDefi.dat"), "05015050005001500100\r\n");
start();
menu("mnuHistory");
check(items(list).length, 10, "only the first ten are read");
check([items(list)[0], items(list)[9]], [name(0), name(9)], "in order");
check(size(book), 255000, "the file is as it was");
answer("OK");
add("eleventh");
ok(boxes()[1].text.includes("現在の登録可能数は10件に"), "the message names the limit");
closeForm("frmHistory");
check(readBytes(book), Array.from({length: 10}, (_, i) => field(name(i))).join(""), "the rest is dropped at the end");
check(enabled("frmFind"), true, "the main window takes input");
exit();

// The greatest limit, and none.
fill(1000);
writeBytes(appFile("ListDefi.dat"), "05015050005001510000\r\n");
start();
menu("mnuHistory");
check(items(list).length, 1000, "a thousand rows");
click("frmHistory.Command5");
check([items(list)[0], items(list)[999]], [name(0), name(999)], "sorted, in the same order");
press(list, "End");
check(selectedRow(list), 999, "the last row can be reached");
click("frmHistory.Command3");
check(size(book), 255000, "all are written");
exit();
writeBytes(appFile("ListDefi.dat"), "05015050005001500000\r\n");
fill(3);
start();
menu("mnuHistory");
check(items(list), [], "a limit of nothing");
answer("OK");
add("x");
ok(boxes()[1].text.includes("0件に設定されています"), "takes no word");
click("frmHistory.Command3");
check(exists(book), false, "and empties the book");
check(enabled("frmFind"), true, "the main window takes input");
check(boxes(), [], "no further box");
