// The editor opens from the menu on the first record, and from a row on that row's record.
const dictionary = tempDir() + "/animals.mdb";
makeDictionary(dictionary, [
    ["dog", "dɔg", 1, "犬", "a dog's life"],
    ["cat nap", null, 2, "うたた寝", null],
    ["cat", "kæt", 1, "猫", null],
    ["bear", null, 3, "熊", null],
]);
const fields = () => [1, 2, 3, 4].map(number => text("frmMstmnt.Text" + number));
const enabledCommands = () => [1, 2, 3, 4, 5, 6, 7, 8, 9, 10].filter(number => enabled("frmMstmnt.Command" + number));

// The checks of the menu entry.
start();
answer("OK");
menu("mnuOpen");
let [box] = boxes();
check([box.title, box.icon, box.beep, box.buttons], ["辞書の未設定", 48, 48, ["OK"]], "no dictionary at all");
check(box.text, "辞書が一件も設定されていないため、どのデータベースを開くか判断できません！\r\n\r\n" +
    "メニューバーから [ツール] ＞ [辞書設定] を選択して辞書の設定をおこなってください。", "its text");
check(openForms(), ["frmFind"], "nothing opens");
exit();
setCatalogue([{name: "動物", path: dictionary + "x", selected: true}]);
start();
answer("OK");
menu("mnuOpen");
[box] = boxes();
check([box.title, box.icon, box.beep], ["データベースファイルパスの誤り", 48, 48], "a path that is not there");
check(box.text, "現在選択されている辞書のデータベースのファイルパス見つかりません！\r\n\r\n" +
    "辞書の設定後にファイルまたはパスを削除あるいは変更した可能性があります。\r\n" +
    "メニューバーから [ツール] ＞ [辞書設定] を選択してデータベースのファイルパス\r\n" +
    "を確認してください", "its text");
check([openForms(), enabled("frmFind")], [["frmFind"], true], "nothing opens");
exit();

setCatalogue([{name: "動物", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
check(openForms(), ["frmFind", "frmMstmnt"], "the menu opens it");
check(enabled("frmFind"), false, "the main window takes no input");
check(state("EditOpenMode"), 0, "the way of opening");
check(caption("frmMstmnt"), "辞書データベース メンテナンス （動物） - 編集", "its caption");
check(fields(), ["bear", "", "熊", ""], "the first record in the order of the table");
check([checked("frmMstmnt.Option1"), checked("frmMstmnt.Option2")], [true, false], "a kind that is none leaves the choice");
check([state("CurrentWord"), state("CurrentAutoID")], ["bear", 4], "the current record");
check(enabledCommands(), [1, 2, 3, 4, 5, 8, 9, 10], "nothing to save or undo");
check(focused(), "frmMstmnt.Text1", "the focus is on the word");
check(["EditState", "MainListChanged", "CloseHandled", "OrigWordPhrase"].map(name => state("frmMstmnt." + name)), [0, 0, 0, 3], "its state");
check(["OrigWord", "OrigPronunciation", "OrigDescription", "OrigExample"].map(name => state("frmMstmnt." + name)),
    ["bear", "", "熊", ""], "its snapshot");
check(state("ViewConnection"), false, "no dictionary stays open");
const captions = ["|<(&F)", "<<(&P)", ">>(&N)", ">|(&L)", "新規追加(&A)", "保存(&V)", "元に戻す(&U)", "削除(&D)", "閉じる(&C)", "検索(&S)"];
check(captions.map((_, i) => caption("frmMstmnt.Command" + (i + 1))), captions, "the buttons");
check([1, 2, 3, 4].map(number => caption("frmMstmnt.Label" + number)), ["見出し語：", "発音記号：", "訳語：", "用例："], "the labels");
check([caption("frmMstmnt.Option1"), caption("frmMstmnt.Option2")], ["単語", "熟語"], "the choice");

// The main window behind it.
closeForm("frmFind");
check(openForms(), ["frmFind", "frmMstmnt"], "its frame is ignored");
typeText("frmFind.txtFind", "x");
check(text("frmFind.txtFind"), "", "it takes no key");
menu("mnuExit");
check(openForms(), ["frmFind", "frmMstmnt"], "and no menu");
answer("いいえ");
click("frmMstmnt.Command9");
check(boxes().map(shown => shown.title), ["変更確認"], "a kind that is none is not the one chosen");
check([openForms(), enabled("frmFind")], [["frmFind"], true], "closed, and the main window is back");

// From a row of the incremental list.
typeText("frmFind.txtFind", "cat");
doubleClick("frmFind.List1", 1);
check([state("EditOpenMode"), state("SavedIncSearchText")], [1, "cat nap"], "the way of opening");
check(fields(), ["cat nap", "", "うたた寝", ""], "the record of the row");
check([checked("frmMstmnt.Option1"), checked("frmMstmnt.Option2")], [false, true], "a phrase");
check(focused(), "frmMstmnt.Text3", "the focus is on the meaning");
check(enabledCommands(), [1, 2, 3, 4, 5, 8, 9, 10], "nothing to save or undo");
check(enabled("frmFind"), false, "the main window takes no input");
closeForm("frmMstmnt");
check([openForms(), enabled("frmFind"), boxes()], [["frmFind"], true, []], "closed by its frame");
check(text("frmFind.txtFind"), "cat nap", "the search text stays");
check(items("frmFind.List1"), ["cat", "cat nap", "dog"], "and the list");

// From a row of a list search.
menu("mnuMidSrch");
setText("frmFind.txtFind", "at na");
press("frmFind.txtFind", "Enter");
doubleClick("frmFind.List1", 0);
check(fields(), ["cat nap", "", "うたた寝", ""], "the record of the hit");
closeForm("frmMstmnt");

// An empty dictionary.
makeDictionary(dictionary, []);
menu("mnuOpen");
check(caption("frmMstmnt"), "辞書データベース メンテナンス （動物） - 新規追加", "an empty one opens for adding");
check([fields(), state("frmMstmnt.EditState")], [["", "", "", ""], 1], "empty boxes");
check([enabledCommands(), caption("frmMstmnt.Command7")], [[9], "キャンセル(&U)"], "all there is to do is typing");
check(focused(), "frmMstmnt.Text1", "into the word");
typeText("frmMstmnt.Text2", "x");
check(enabledCommands(), [6, 7, 9], "then there is something to save");
click("frmMstmnt.Command7");
check([fields(), enabledCommands(), state("frmMstmnt.EditState")], [["", "x", "", ""], [6, 7, 9], 1], "a cancel leads nowhere");
check(boxes(), [], "and says nothing");
setText("frmMstmnt.Text2", "");
closeForm("frmMstmnt");
check(openForms(), ["frmFind"], "nothing was typed, nothing is asked");
check(rows(dictionary), [], "nor stored");

// It can be opened again and again, and the program ended with it open.
menu("mnuOpen");
exit();
