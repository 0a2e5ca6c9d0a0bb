// What is shown, what is written, and what a change does to the main window.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, Array.from({length: 60}, (_, i) => ["w" + String(i).padStart(3, "0"), null, 1, "語" + i, null]));
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const file = appFile("ListDefi.dat"), store = appFile("ListData.dat");
writeBytes(file, "04010041003210902002\r\n");
start();
const fields = () => ["Text1", "Combo1", "Text4", "Combo2", "Text2", "Text3"].map(name => text("frmListSettings." + name));
const options = () => ["Option1", "Option2", "Option3"].map(name => checked("frmListSettings." + name));
const sizes = () => ["IncListCount", "IncEntriesPerPage", "ListPageSize", "EntriesPerPage", "MaxListCount", "WordBookMax"].map(state);

menu("mnuListSettings");
check(caption("frmListSettings"), "検索結果のリスト件数設定", "the caption");
check(["Frame1", "Frame2", "Frame3", "Frame4"].map(name => caption("frmListSettings." + name)),
    ["インクリメンタル検索", "前方・中間・後方一致／訳語・用例／ワイルドカード検索", "マイ ワードブック", "アプリケーション起動時の検索対象"], "the groups");
check([1, 2, 3, 4, 5, 6].map(number => caption("frmListSettings.Label" + number)),
    ["見出し語のリスト数：", "見出し語内容のリスト数：", "見出し語のリスト数：", "見出し語内容のリスト数：",
        "検索結果が多数時の最大リスト数：", "最大登録・リスト数："], "the labels");
check(["Command1", "Command2", "Option1", "Option2", "Option3"].map(name => caption("frmListSettings." + name)),
    ["保存", "閉じる", "単語と熟語", "単語のみ", "熟語のみ"], "buttons and options");
check(items("frmListSettings.Combo1"), Array.from({length: 30}, (_, i) => String(i + 1)), "1 to 30");
check(items("frmListSettings.Combo2"), items("frmListSettings.Combo1"), "both the same");
check(fields(), ["40", "10", "41", "9", "321", "200"], "the values in use");
check(options(), [false, false, true], "and the target of the start");
check([enabled("frmFind"), state("frmListSettings.CloseHandled")], [false, 0], "the main window takes no input");
check([focused(), selectedText("frmListSettings.Text1")], ["frmListSettings.Text1", "40"], "the first number is selected");
click("frmListSettings.Command2");
check([isOpen("frmListSettings"), enabled("frmFind")], [false, true], "closed without a question");
check(readBytes(file), "04010041003210902002\r\n", "nothing is written");

// A change in incremental mode.
menu("mnuSrchFromAll");
typeText("frmFind.txtFind", "w01");
check(items("frmFind.List1").length, 40, "forty rows");
mouseDown("frmFind.Picture20");
ok(page().includes("語2"), "entries on the page");
menu("mnuListSettings");
setText("frmListSettings.Text1", "7");
choose("frmListSettings.Combo1", "3");
click("frmListSettings.Option2");
navigations();
click("frmListSettings.Command1");
check(readBytes(file), "00703041003210902001\r\n", "one line of twenty digits");
check(size(file), 22, "of 22 bytes");
check(sizes(), [7, 3, 41, 9, 321, 200], "in use at once");
check(state("SearchTarget"), 0, "the target is that of the next start");
check([items("frmFind.List1"), text("frmFind.txtFind"), status()], [[], "", ""], "the main window is empty");
ok(navigations().length >= 1, "the empty page is shown");
check(page().includes("語"), false, "it is empty");
check([14, 15, 17, 18, 19, 20].map(number => visible("frmFind.Picture" + number)),
    [false, false, false, false, true, true], "the entry pages of the incremental search alone");
check(isOpen("frmListSettings"), true, "the dialog stays open");

// A second press finds nothing changed: the same line, and the main window is left alone.
writeBytes(file, "");
navigations();
click("frmListSettings.Command1");
check(readBytes(file), "00703041003210902001\r\n", "the same line");
check(navigations(), [], "no page is shown");
click("frmListSettings.Command2");
typeText("frmFind.txtFind", "w01");
check(items("frmFind.List1").length, 7, "seven rows now");
ok(page().includes("語12") && !page().includes("語13"), "three entries");

// A change in a list mode.
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
check([items("frmFind.List1").length, exists(store)], [41, true], "hits");
check([14, 15, 17, 18].map(number => visible("frmFind.Picture" + number)), [true, true, true, true], "in pages");
menu("mnuListSettings");
click("frmListSettings.Command1");
check([items("frmFind.List1").length, exists(store), text("frmFind.txtFind")], [41, true, "w"], "nothing changed, nothing goes");
setText("frmListSettings.Text4", "20");
setText("frmListSettings.Text2", "30");
choose("frmListSettings.Combo2", "5");
navigations();
click("frmListSettings.Command1");
check(navigations().length, 1, "the empty page is shown");
check([items("frmFind.List1"), exists(store), text("frmFind.txtFind"), status()], [[], false, "", ""], "the hits are gone");
check([14, 15, 17, 18, 19, 20].map(number => visible("frmFind.Picture" + number)),
    [false, false, false, false, false, false], "and the paging");
check(state("SearchMode"), 1, "the mode stays");
click("frmListSettings.Command2");
answer("OK");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
check(boxes().map(box => box.title), ["条件検索－最大リスト上限件数超過"], "thirty hits are the most");
check([items("frmFind.List1").length, state("HitCount")], [20, 30], "twenty rows a page");
exit();

// The next start.
start();
check(sizes(), [7, 3, 20, 5, 30, 200], "the sizes are read again");
check([state("SearchTarget"), caption("frmFind.Label1")], [1, "単語："], "and the target is the one chosen");
typeText("frmFind.txtFind", "w01");
menu("mnuListSettings");
setText("frmListSettings.Text1", "8");
click("frmListSettings.Command1");
check([visible("frmFind.Picture19"), visible("frmFind.Picture20")], [false, false], "words alone have no entry pages");
click("frmListSettings.Command2");
check(boxes(), [], "no further box");

// The word book's limit.
writeBytes(appFile("WordBook.dat"), Array.from({length: 9}, (_, i) => ("b" + i).padEnd(255)).join(""));
menu("mnuListSettings");
setText("frmListSettings.Text3", "4");
click("frmListSettings.Command1");
click("frmListSettings.Command2");
menu("mnuHistory");
check(items("frmHistory.List1"), ["b0", "b1", "b2", "b3"], "cuts the book at its next load");
click("frmHistory.Command3");
