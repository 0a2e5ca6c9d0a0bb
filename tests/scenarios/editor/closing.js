// The two ways of closing, and what each asks.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["bee", null, 1, "蜂", null], ["cow", null, 1, "牛", null]]);
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
const stored = () => rows(dictionary).map(row => [row.Word, row.WordPhrase, row.Description]);
const original = stored();
const open = () => menu("mnuOpen");
const close = () => click("frmMstmnt.Command9"), frame = () => closeForm("frmMstmnt");
const isClosed = () => [isOpen("frmMstmnt"), enabled("frmFind")];
const closed = [false, true], stays = [true, false];
const asked = () => boxes().map(box => box.title);

// The close button on a changed record.
open();
typeText("frmMstmnt.Text3", "x");
answer("キャンセル");
close();
let [box] = boxes();
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["変更確認", "内容が変更されています。終了前に保存しますか？", 32, 32, ["はい", "いいえ", "キャンセル"]], "the question");
check([isClosed(), focused(), state("frmMstmnt.CloseHandled")], [stays, "frmMstmnt.Text3", 1], "cancelled");
answer("いいえ");
close();
check([isClosed(), stored(), asked()], [closed, original, ["変更確認"]], "dropped");
open();
typeText("frmMstmnt.Text3", "x");
answer("はい");
close();
check([isClosed(), stored()[0], asked()], [closed, ["bee", 1, "x蜂"], ["変更確認"]], "saved");
open();
setText("frmMstmnt.Text1", "");
answer("はい");
answer("OK");
close();
check([isClosed(), focused(), asked(), state("frmMstmnt.CloseHandled")], [stays, "frmMstmnt.Text1", ["変更確認", "入力必須項目"], 0], "no word: it stays");
setText("frmMstmnt.Text1", "cow");
answer("はい");
answer("いいえ");
close();
check([isClosed(), asked()], [stays, ["変更確認", "重複保存確認"]], "a word that is there: it stays");
answer("はい");
answer("はい");
close();
check([isClosed(), stored().map(row => row[0]), asked()], [closed, ["cow", "cow"], ["変更確認", "重複保存確認"]], "renamed");

// The close button while adding.
open();
click("frmMstmnt.Command5");
close();
check([isClosed(), asked()], [closed, []], "nothing typed, nothing asked");
open();
click("frmMstmnt.Command5");
setText("frmMstmnt.Text4", "　 ");
close();
check([isClosed(), asked()], [closed, []], "blanks are nothing");
open();
click("frmMstmnt.Command5");
setText("frmMstmnt.Text1", " cat nap ");
answer("キャンセル");
close();
[box] = boxes();
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["保存確認", "追加処理中です。終了前にデータを保存しますか？", 32, 32, ["はい", "いいえ", "キャンセル"]], "the question");
check([isClosed(), focused(), state("frmMstmnt.CloseHandled")], [stays, "frmMstmnt.Text3", 1], "cancelled");
answer("はい");
answer("いいえ");
close();
check([isClosed(), focused(), asked()], [stays, "frmMstmnt.Text3", ["保存確認", "空欄項目確認"]], "no meaning: it stays");
answer("はい");
answer("はい");
close();
check([isClosed(), stored()[0], asked()], [closed, ["cat nap", 2, ""], ["保存確認", "空欄項目確認"]], "added: a blank within makes a phrase, whatever was chosen");
open();
click("frmMstmnt.Command5");
setText("frmMstmnt.Text1", "ant");
setText("frmMstmnt.Text3", "蟻");
click("frmMstmnt.Option2");
answer("はい");
close();
check([isClosed(), stored()[0]], [closed, ["ant", 1, "蟻"]], "and none a word");
open();
click("frmMstmnt.Command5");
setText("frmMstmnt.Text3", "y");
answer("いいえ");
boxes();
close();
check([isClosed(), stored().length, asked()], [closed, 4, ["保存確認"]], "dropped");

// The frame: it asks, but cannot be refused.
open();
frame();
check([isClosed(), asked()], [closed, []], "unchanged");
open();
typeText("frmMstmnt.Text3", "z");
answer("いいえ");
frame();
[box] = boxes();
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["変更確認", "内容が変更されています。終了前に保存しますか？", 32, 32, ["はい", "いいえ"]], "the question, without a cancel");
check([isClosed(), stored()[0][2]], [closed, "蟻"], "dropped");
open();
typeText("frmMstmnt.Text3", "z");
answer("はい");
frame();
check([isClosed(), stored()[0][2], asked()], [closed, "z蟻", ["変更確認"]], "saved");
open();
setText("frmMstmnt.Text1", "");
answer("はい");
answer("OK");
frame();
check([isClosed(), stored()[0], asked()], [closed, ["ant", 1, "z蟻"], ["変更確認", "入力必須項目"]], "no word: only the change is lost");
open();
setText("frmMstmnt.Text1", "cow");
answer("はい");
answer("いいえ");
frame();
check([isClosed(), stored()[0], asked()], [closed, ["ant", 1, "z蟻"], ["変更確認", "重複保存確認"]], "a word that is there: the same");
open();
click("frmMstmnt.Command5");
frame();
check([isClosed(), asked()], [closed, []], "adding, nothing typed");
open();
click("frmMstmnt.Command5");
setText("frmMstmnt.Text1", "ape man");
setText("frmMstmnt.Text3", "猿人");
answer("はい");
frame();
[box] = boxes();
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["保存確認", "追加処理中です。終了前にデータを保存しますか？", 32, 32, ["はい", "いいえ"]], "adding: the question");
check([isClosed(), stored()[1]], [closed, ["ape man", 2, "猿人"]], "added, a phrase by its blank");
open();
click("frmMstmnt.Command5");
setText("frmMstmnt.Text2", "p");
answer("はい");
answer("OK");
frame();
check([isClosed(), stored().length, asked()], [closed, 5, ["保存確認", "入力必須項目"]], "adding, no word: lost");

// A cancel of the close button has dealt with the closing: the frame asks no more.
open();
typeText("frmMstmnt.Text3", "q");
answer("キャンセル");
close();
boxes();
frame();
check([isClosed(), stored()[0][2], asked()], [closed, "z蟻", []], "closed without a question");

// What cannot be stored does not let the form go.
open();
typeText("frmMstmnt.Text3", "q");
failNext("Update", -2147467259);
answer("はい");
answer("OK");
frame();
check([isClosed(), text("frmMstmnt.Text3"), asked()], [stays, "qz蟻", ["変更確認", "エラー"]], "by the frame: it stays, and so does what was typed");
failNext("Update", 61);
answer("はい");
answer("OK");
close();
check([isClosed(), text("frmMstmnt.Text3"), asked()], [stays, "qz蟻", ["変更確認", "エラー"]], "by the button");
answer("はい");
frame();
check([isClosed(), stored()[0][2]], [closed, "qz蟻"], "stored at last");

// At the program's end nothing is asked.
open();
typeText("frmMstmnt.Text3", "last ");
boxes();
exit();
check([boxes(), stored()[0][2]], [[], "qz蟻"], "the end");
