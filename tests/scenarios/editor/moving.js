// First, previous, next and last record, and the question before a changed one is left.
const dictionary = tempDir() + "/letters.mdb";
makeDictionary(dictionary, [["c", null, 1, "三", null], ["a", null, 1, "一", null], ["b", null, 2, "二", null], ["a", null, 1, "一の二", null]]);
setCatalogue([{name: "字", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
const here = () => [text("frmMstmnt.Text1"), state("CurrentAutoID")];
const first = () => click("frmMstmnt.Command1"), previous = () => click("frmMstmnt.Command2");
const next = () => click("frmMstmnt.Command3"), last = () => click("frmMstmnt.Command4");
const meanings = () => rows(dictionary).map(row => row.Description);

check(here(), ["a", 2], "the first record");
next();
check(here(), ["a", 4], "equal words come by their numbers");
next();
check(here(), ["b", 3], "then the next word");
check(checked("frmMstmnt.Option2"), true, "with its kind");
last();
check(here(), ["c", 1], "the last");
answer("OK");
next();
let [box] = boxes();
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["最終レコード", "最終レコードです。これより先に移動できません！", 48, 48, ["OK"]], "behind the last one");
check(here(), ["c", 1], "it stays");
previous();
check(here(), ["b", 3], "back");
first();
check(here(), ["a", 2], "the first");
answer(shown => {
    check([here(), state("ViewConnection")], [["a", 2], false], "while it is told, the record stands and nothing is open");
    return "OK";
});
previous();
[box] = boxes();
check([box.title, box.text, box.icon, box.beep], ["先頭レコード", "先頭レコードです。これより前に移動できません！", 48, 48], "before the first one");
check(here(), ["a", 2], "it stays");
press("frmMstmnt.Command3", "Enter");
check(here(), ["a", 4], "by the keyboard");
first();
check([enabled("frmMstmnt.Command6"), enabled("frmMstmnt.Command7")], [false, false], "moving leaves nothing to save");

// A changed record.
for (const [name, move, arrives] of [["first", first, 2], ["previous", previous, 4], ["next", next, 1], ["last", last, 1]]) {
    last();
    previous();
    check(here(), ["b", 3], name + ": from the third");
    typeText("frmMstmnt.Text3", "x");
    check([enabled("frmMstmnt.Command6"), enabled("frmMstmnt.Command7")], [true, true], name + ": a change can be saved");
    answer("キャンセル");
    move();
    [box] = boxes();
    check([box.title, box.text, box.icon, box.beep, box.buttons],
        ["変更確認", "内容が変更されています。保存しますか？", 32, 32, ["はい", "いいえ", "キャンセル"]], name + ": the question");
    check([here(), text("frmMstmnt.Text3"), focused()], [["b", 3], "x二", "frmMstmnt.Text3"], name + ": cancelled");
    check(state("frmMstmnt.DirtyKind"), 1, name + ": a field changed");
    answer("いいえ");
    move();
    check([state("CurrentAutoID"), meanings()], [arrives, ["一", "一の二", "二", "三"]], name + ": dropped");
    boxes();
}
last();
previous();
setText("frmMstmnt.Text3", "弐");
answer("はい");
next();
check([here(), meanings()], [["c", 1], ["一", "一の二", "弐", "三"]], "saved and moved");
check(boxes().length, 1, "after the one question");

// What keeps a changed record from being left.
setText("frmMstmnt.Text1", "  ");
answer("はい");
answer("OK");
first();
check(boxes().map(shown => shown.title), ["変更確認", "入力必須項目"], "no word");
check([state("CurrentAutoID"), focused(), text("frmMstmnt.Text1")], [1, "frmMstmnt.Text1", "  "], "it stays");
setText("frmMstmnt.Text1", "c");
setText("frmMstmnt.Text3", "");
answer("はい");
answer("いいえ");
first();
check(boxes().map(shown => shown.title), ["変更確認", "空欄項目確認"], "no meaning, and it was not meant");
check([state("CurrentAutoID"), focused()], [1, "frmMstmnt.Text3"], "it stays");
setText("frmMstmnt.Text3", "三");
setText("frmMstmnt.Text1", "b");
answer("はい");
answer("いいえ");
first();
check(boxes().map(shown => shown.title), ["変更確認", "重複保存確認"], "a word that is there, and it was not meant");
check([state("CurrentAutoID"), focused(), state("frmMstmnt.DirtyKind")], [1, "frmMstmnt.Text1", 2], "it stays");
answer("はい");
answer("はい");
previous();
check(boxes().length, 2, "meant this time");
check(here(), ["b", 3], "a renamed record is left from its new place");
check(rows(dictionary).map(row => [row.Word, row.AutoID]), [["a", 2], ["a", 4], ["b", 3], ["b", 5]], "its new number");

// The choice of the kind alone.
click("frmMstmnt.Option1");
check([enabled("frmMstmnt.Command6"), enabled("frmMstmnt.Command7")], [false, false], "the kind alone enables nothing");
answer("はい");
first();
check(boxes().map(shown => shown.title), ["変更確認"], "but is asked for");
check(rows(dictionary)[2].WordPhrase, 1, "and stored");

// Blanks around a text are no change.
typeText("frmMstmnt.Text1", " ");
check(enabled("frmMstmnt.Command6"), true, "they can be saved");
next();
check([boxes(), here()], [[], ["a", 4]], "but are not asked for");
