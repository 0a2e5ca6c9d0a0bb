// The book is saved by whatever ends the dialog, and what counts as the same word.
const book = appFile("WordBook.dat");
const list = "frmHistory.List1";
const field = bytes => bytes + " ".repeat(255 - bytes.length);
const add = word => {
    answerInput(word);
    click("frmHistory.Command1");
};
start();
menu("mnuHistory");
add("kept");
boxes();
exit();
check(readBytes(book), field("kept"), "saved at the end of the program");
start();
menu("mnuHistory");
check(items(list), ["kept"], "there again");

// Capitals and small letters are the same, wide ones and accented ones too; nothing else is.
for (const [first, second] of [["ＡＢ", "ａｂ"], ["Été", "éTÉ"], ["Ж", "ж"]]) {
    add(first);
    answer("OK");
    add(second);
    check(boxes().slice(-1)[0].title, "マイ ワードブックに登録済み", second + " is there as " + first);
    check(text(list), first, "and selected");
}
const before = items(list).length;
for (const word of ["ab", "ete", "ガ", "ｶﾞ", "が", "kept "])
    add(word);
boxes();
check(items(list).length, before + 6, "width, accents, kana and blanks tell words apart");
check(selectedRow(list), before + 5, "the last one is selected");

// Pasted lines are one word; nothing but line ends is an empty answer.
add("one\r\ntwo\n");
check(text(list), "one two", "one word");
add("\r\n");
check(items(list).length, before + 7, "an empty answer");
boxes();
click("frmHistory.Command3");
check(size(book), 255 * (before + 7), "each row is a record");
check(boxes(), [], "no further box");
