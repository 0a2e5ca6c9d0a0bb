// Changes to a record, and its renaming.
const dictionary = tempDir() + "/words.mdb";
const make = () => makeDictionary(dictionary, [
    ["bee", "biː", 1, "蜂", "a busy bee"],
    ["cow", null, 1, "牛\n二", null],
    ["it's", null, 2, "それは", "x\ry"],
    [" pad ", " p ", 1, " 訳 ", "　例　"],
]);
make();
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
const stored = () => rows(dictionary).map(row => [row.Word, row.Pronunciation, row.WordPhrase, row.Description, row.Example, row.AutoID]);
const original = stored();
const save = () => click("frmMstmnt.Command6"), next = () => click("frmMstmnt.Command3");
const fields = () => [1, 2, 3, 4].map(number => text("frmMstmnt.Text" + number));
const row = autoID => stored().find(candidate => candidate[5] === autoID);
menu("mnuOpen");
check(fields(), [" pad ", " p ", " 訳 ", "　例　"], "blanks are shown");

// A change of one field leaves the others as they are, byte for byte.
next();
next();
check(fields(), ["cow", "", "牛\r\n二", ""], "the second word");
typeText("frmMstmnt.Text2", " kau ");
answer("いいえ");
save();
const [box] = boxes();
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["保存確認", "変更した内容で保存してよろしいですか？", 32, 32, ["はい", "いいえ"]], "the question");
check([focused(), stored()], ["frmMstmnt.Text3", original], "not saved");
answer("はい");
save();
check(row(2), ["cow", "kau", 1, "牛\n二", null, 2], "saved: trimmed, and what was not touched as it was");
check([fields(), enabled("frmMstmnt.Command6"), enabled("frmMstmnt.Command7")], [["cow", "kau", "牛\r\n二", ""], false, false], "and shown");
check([caption("frmMstmnt.Command7"), enabled("frmMstmnt.Command5"), enabled("frmMstmnt.Command8")], ["元に戻す", true, true], "the buttons");
check(focused(), "frmMstmnt.Text3", "the focus does not fall on another button");
check(boxes().length, 1, "one question");
typeText("frmMstmnt.Text3", "一");
answer("はい");
save();
check(row(2)[3], "一牛\r\n二", "a touched text has its lines ended by CR LF");
setText("frmMstmnt.Text4", "例\r\n\r\n");
answer("はい");
save();
check(row(2)[4], "例\r\n\r\n", "ends of lines are no blanks");

// Nothing changed after all, and only blanks changed.
typeText("frmMstmnt.Text3", "z");
press("frmMstmnt.Text3", "Backspace");
answer("はい");
save();
check([row(2)[3], state("frmMstmnt.DirtyKind")], ["一牛\r\n二", 0], "typed and taken back: saved as it is");
typeText("frmMstmnt.Text1", " ");
answer("はい");
save();
check([row(2)[0], state("frmMstmnt.DirtyKind")], ["cow", 0], "blanks around the word are no renaming");
boxes();

// Undo.
setText("frmMstmnt.Text1", "x");
setText("frmMstmnt.Text4", "y");
click("frmMstmnt.Option2");
click("frmMstmnt.Command7");
check([fields(), checked("frmMstmnt.Option1"), caption("frmMstmnt.Command7")],
    [["cow", "kau", "一牛\r\n二", "例\r\n\r\n"], true, "元に戻す(&U)"], "undone");
check([enabled("frmMstmnt.Command6"), enabled("frmMstmnt.Command7"), boxes()], [false, false, []], "without a question");

// A word of blanks around: its key changes with it.
click("frmMstmnt.Command1");
typeText("frmMstmnt.Text3", "新");
answer("はい");
save();
check(row(4), [" pad ", " p ", 1, "新 訳", "　例　", 4], "not touched, not trimmed");
setText("frmMstmnt.Text1", "pad  ");
answer("はい");
save();
check([row(4)[0], state("CurrentWord"), fields()[0]], ["pad", "pad", "pad"], "touched, trimmed, and found again");
check(row(4)[5], 4, "with its number");
boxes();

// Renaming to a word of its own: a new record with a new number.
make();
click("frmMstmnt.Command1");
next();
setText("frmMstmnt.Text1", "wasp");
answer("はい");
statements();
save();
check(boxes().length, 1, "only one question");
check(statements(), ["SELECT TOP 1 * FROM Dictionary WHERE Word = 'wasp'"], "the word was looked for");
check(stored().map(values => [values[0], values[5]]), [[" pad ", 4], ["cow", 2], ["it's", 3], ["wasp", 5]], "a new number");
check(row(5), ["wasp", "biː", 1, "蜂", "a busy bee", 5], "with all its fields");
check([state("CurrentWord"), state("CurrentAutoID"), state("frmMstmnt.DirtyKind")], ["wasp", 5, 2], "it is the current one");
check(enabled("frmMstmnt.Command3"), true, "moving goes on");

// To one that is there.
setText("frmMstmnt.Text1", "ＣＯＷ");
answer("はい");
answer(shown => {
    check([shown.title, shown.text, shown.icon, shown.beep, shown.buttons],
        ["重複保存確認", "同じ単語･熟語名が既登録にされています。保存しますか？", 32, 32, ["はい", "いいえ"]], "the question");
    return "いいえ";
});
save();
check([focused(), stored().length, row(5)[0]], ["frmMstmnt.Text1", 4, "wasp"], "not saved");
check([enabled("frmMstmnt.Command6"), caption("frmMstmnt.Command7")], [true, "元に戻す"], "still to be saved");
answer("はい");
answer("はい");
save();
check(row(6), ["ＣＯＷ", "biː", 1, "蜂", "a busy bee", 6], "saved beside the other");
check([row(5), row(2)[0]], [undefined, "cow"], "the old one has gone, the namesake stays");
boxes();

// A change of case alone is a renaming too.
setText("frmMstmnt.Text1", "cow");
answer("はい");
answer("はい");
save();
check(boxes().map(shown => shown.title), ["保存確認", "重複保存確認"], "its own word is there");
check(row(7)[0], "cow", "and renamed");

// Apostrophes: harmless in other fields, but not in a renaming.
setText("frmMstmnt.Text3", "it's '' \"quoted\"");
answer("はい");
save();
check(row(7)[3], "it's '' \"quoted\"", "in a meaning");
boxes();
const before = stored();
setText("frmMstmnt.Text1", "cow's");
answer("はい");
answer("OK");
save();
check(boxes().map(shown => [shown.title, shown.icon]), [["保存確認", 32], ["エラー", 16]], "in a word: the statement fails");
check([stored(), fields()[0]], [before, "cow's"], "nothing is lost, and what was typed stays");
check([enabled("frmMstmnt"), enabled("frmFind"), isOpen("frmMstmnt")], [true, false, true], "the form can be used");
click("frmMstmnt.Command7");
check(fields()[0], "cow", "undone");
for (const word of ["100% [a]_b", "[", "]", "%", "\"", "a".repeat(255)]) {
    setText("frmMstmnt.Text1", word);
    answer("はい");
    save();
    check([boxes().length, row(state("CurrentAutoID"))[0]], [1, word], "renamed to " + word.slice(0, 12));
}
