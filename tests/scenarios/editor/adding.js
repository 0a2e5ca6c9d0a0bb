// New records: from the button, with what is needed, saved, cancelled.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["bee", null, 1, "蜂", null], ["cow", null, 2, "牛", "moo"]]);
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
const fields = () => [1, 2, 3, 4].map(number => text("frmMstmnt.Text" + number));
const fill = (...texts) => texts.forEach((value, i) => setText("frmMstmnt.Text" + (i + 1), value));
const enabledCommands = () => [1, 2, 3, 4, 5, 6, 7, 8, 9, 10].filter(number => enabled("frmMstmnt.Command" + number));
const stored = () => rows(dictionary).map(row => [row.Word, row.Pronunciation, row.WordPhrase, row.Description, row.Example, row.AutoID]);
const add = () => click("frmMstmnt.Command5"), save = () => click("frmMstmnt.Command6"), undo = () => click("frmMstmnt.Command7");
const original = stored();

click("frmMstmnt.Command4");
add();
check(caption("frmMstmnt"), "辞書データベース メンテナンス （語） - 新規追加", "the caption of adding");
check([fields(), checked("frmMstmnt.Option1"), state("frmMstmnt.EditState")], [["", "", "", ""], true, 1], "empty boxes, a word");
check([enabledCommands(), caption("frmMstmnt.Command7")], [[7, 9], "キャンセル(&U)"], "cancel and close are left");
check(focused(), "frmMstmnt.Text1", "the focus is on the word");
check([state("frmMstmnt.OrigWord"), state("frmMstmnt.OrigDescription"), state("frmMstmnt.OrigWordPhrase")], ["", "", 1], "an empty snapshot");
click("frmMstmnt.Command10");
check([boxes(), isOpen("frmProcessing")], [[], false], "no search meanwhile");
undo();
check([fields(), enabledCommands(), caption("frmMstmnt.Command7")],
    [["cow", "", "牛", "moo"], [1, 2, 3, 4, 5, 8, 9, 10], "元に戻す(&U)"], "cancelled: the record is back");
check([caption("frmMstmnt"), checked("frmMstmnt.Option2"), boxes()], ["辞書データベース メンテナンス （語） - 編集", true, []], "in editing");

// What is needed.
add();
typeText("frmMstmnt.Text2", "p");
check(enabledCommands(), [6, 7, 9], "something to save");
answer("いいえ");
save();
let [box] = boxes();
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["保存確認", "この新しい内容で保存してよろしいですか？", 32, 32, ["はい", "いいえ"]], "the question");
check([focused(), fields()], ["frmMstmnt.Text1", ["", "p", "", ""]], "not saved");
answer("はい");
answer("OK");
save();
box = boxes()[1];
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["入力必須項目", "単語･熟語項目に見出し語となる言葉を入力してください！", 48, 48, ["OK"]], "no word");
check(focused(), "frmMstmnt.Text1", "the focus shows where");
typeText("frmMstmnt.Text1", " ant　");
answer("はい");
answer("いいえ");
save();
box = boxes()[1];
check([box.title, box.text, box.icon, box.beep, box.buttons],
    ["空欄項目確認", "訳語項目が空欄です。この項目に何も入力しないで保存してよろしいですか？", 32, 32, ["はい", "いいえ"]], "no meaning");
check([focused(), stored()], ["frmMstmnt.Text3", original], "not saved");
answer("はい");
answer("はい");
save();
check(boxes().length, 2, "saved without a meaning");
check(stored(), [["ant", "p", 1, "", "", 3], ...original], "trimmed, with the next number");
check([fields(), state("CurrentWord"), state("CurrentAutoID")], [["ant", "p", "", ""], "ant", 3], "and shown");
check([enabledCommands(), caption("frmMstmnt.Command7")], [[1, 2, 3, 4, 5, 8, 9, 10], "元に戻す"], "in editing, its caption without a mnemonic");
check([state("frmMstmnt.EditState"), caption("frmMstmnt")], [0, "辞書データベース メンテナンス （語） - 編集"], "the state");
check(state("frmMstmnt.OrigWord"), "ant", "the snapshot");

// A phrase by choice; the same word twice is not asked for when it is added.
add();
fill("ant", "", "二匹目\r\n二行", "e");
click("frmMstmnt.Option2");
answer("はい");
save();
check(boxes().length, 1, "one question");
check(stored()[1], ["ant", "", 2, "二匹目\r\n二行", "e", 4], "the choice decides, not the blank");
add();
fill("ant hill", "", "蟻塚", "");
answer("はい");
save();
check(stored()[2], ["ant hill", "", 1, "蟻塚", "", 5], "here too");
check(boxes().length, 1, "one question");

// Adding while a record is changed.
typeText("frmMstmnt.Text4", "x");
answer("キャンセル");
add();
[box] = boxes();
check([box.title, box.text, box.icon, box.buttons],
    ["変更確認", "編集作業中です。変更した内容を保存してから追加処理を開始しますか？", 32, ["はい", "いいえ", "キャンセル"]], "the question");
check([state("frmMstmnt.EditState"), focused(), text("frmMstmnt.Text4")], [0, "frmMstmnt.Text3", "x"], "cancelled");
answer("いいえ");
add();
check([state("frmMstmnt.EditState"), stored()[2][4]], [1, ""], "dropped");
undo();
check(text("frmMstmnt.Text4"), "", "the record as it is stored");
typeText("frmMstmnt.Text4", "y");
answer("はい");
add();
check([state("frmMstmnt.EditState"), stored()[2][4]], [1, "y"], "saved");
boxes();

// Cancelled with something typed: nothing is asked.
fill("zebra", "", "縞馬", "");
undo();
check([fields(), boxes(), stored().length], [["ant hill", "", "蟻塚", "y"], [], 5], "cancelled");

// The record that the adding began from has gone meanwhile.
add();
deleteRow(dictionary, 5);
undo();
check([fields(), state("CurrentAutoID"), boxes()], [["cow", "", "牛", "moo"], 2, []], "the last one is shown");
check(stored().length, 4, "and nothing was stored");
