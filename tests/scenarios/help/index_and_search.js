// The index and the search of the help.
start();
menu("mnuTopicSearch");
const topic = () => caption("frmHelp").replace(" - Wordmere ヘルプ", "");

// The index points at the place of what is typed, by word or reading, and shows it by Enter.
press("frmHelp.ContentsTree", "Alt+N");
check(focused(), "frmHelp.IndexText", "the index takes the keys");
const index = items("frmHelp.IndexList");
check(index.filter(row => row.startsWith("バックアップ")), ["バックアップ（辞書）", "バックアップ（設定）"], "words side by side");
ok(index.indexOf("一覧検索") < index.indexOf("印刷") && index.indexOf("印刷") < index.indexOf("検索対象"),
    "in the order of the readings");
check(text("frmHelp.IndexList"), "", "nothing is chosen yet");
typeText("frmHelp.IndexText", "いん");
check(text("frmHelp.IndexList"), "インクリメンタル検索", "the reading leads there");
typeText("frmHelp.IndexText", "さ");
check(text("frmHelp.IndexList"), "印刷", "key by key");
check(topic(), "はじめに", "the topic stays");
press("frmHelp.IndexText", "Enter");
check(topic(), "表示内容の印刷", "Enter shows it");
check(focused(), "frmHelp.IndexText", "the focus stays");
for (const [typed, row] of [["ctrl+p", "Ctrl+P"], ["ｃｔｒｌ＋ｆ", "Ctrl+F"], ["検索対象", "検索対象"], ["テキスト", "データの保存場所"]]) {
    setText("frmHelp.IndexText", typed);
    ok(text("frmHelp.IndexList") !== "", typed + " has a place");
    if (typed !== "テキスト")
        check(text("frmHelp.IndexList"), row, typed);
}
setText("frmHelp.IndexText", "");
check(selectedRow("frmHelp.IndexList"), -1, "an empty text points nowhere");
press("frmHelp.IndexText", "Enter");
check(topic(), "表示内容の印刷", "and shows nothing");
clickRow("frmHelp.IndexList", index.indexOf("ワイルドカード検索"));
check(topic(), "ワイルドカード検索", "a click on a row shows it");
setText("frmHelp.IndexText", "印刷");
press("frmHelp.IndexText", "Down");
check(focused(), "frmHelp.IndexList", "Down leads into the list");
check(text("frmHelp.IndexList"), "印刷", "to the row pointed at");
press("frmHelp.IndexList", "Down");
check(text("frmHelp.IndexList"), index[index.indexOf("印刷") + 1], "and on");
check(topic(), "表示内容の印刷", "whose topic is shown");

// The search in the whole text.
press("frmHelp.IndexList", "Ctrl+F");
check(focused(), "frmHelp.SearchText", "the search takes the keys");
check([items("frmHelp.SearchList"), caption("frmHelp.CountLabel")], [[], ""], "nothing is sought yet");
press("frmHelp.SearchText", "Enter");
check(topic(), "表示内容の印刷", "Enter without hits shows nothing");
press("frmHelp.SearchText", "Down");
check(focused(), "frmHelp.SearchText", "Down does not leave for an empty list");
setText("frmHelp.SearchText", "クロスワード");
check(items("frmHelp.SearchList"), ["ワイルドカード検索（1）"], "a word that one topic has");
check(caption("frmHelp.CountLabel"), "1 件のトピックが見つかりました", "and their number");
check(topic(), "表示内容の印刷", "the topic stays");
press("frmHelp.SearchText", "Enter");
check(topic(), "ワイルドカード検索", "Enter shows the first hit");
ok(text("frmHelp.TopicView").includes("クロスワード"), "which has the word");
for (const typed of ["くろすわーど", "ｸﾛｽﾜｰﾄﾞ", "クロスワード　つづり", "  クロスワード つづり "]) {
    setText("frmHelp.SearchText", typed);
    check(items("frmHelp.SearchList").map(row => row.split("（")[0]), ["ワイルドカード検索"], typed);
}
setText("frmHelp.SearchText", "クロスワード そんな言葉はない");
check([items("frmHelp.SearchList"), caption("frmHelp.CountLabel")], [[], "見つかりません"], "all words are wanted");
setText("frmHelp.SearchText", "PDF");
const hits = items("frmHelp.SearchList").length;
setText("frmHelp.SearchText", "pdf");
check(items("frmHelp.SearchList").length, hits, "case makes no difference");
setText("frmHelp.SearchText", "検索");
ok(items("frmHelp.SearchList").length > 10, "a word of many topics");
ok(items("frmHelp.SearchList")[0].includes("検索"), "those with it in the title first");
press("frmHelp.SearchText", "Down");
check([focused(), selectedRow("frmHelp.SearchList")], ["frmHelp.SearchList", 0], "Down leads to the first");
const first = topic();
press("frmHelp.SearchList", "Down");
ok(topic() !== first, "and on");
press("frmHelp.SearchList", "Alt+C");
check(focused(), "frmHelp.ContentsTree", "the contents by their key");
check(text("frmHelp.ContentsTree"), topic(), "stand at the same topic");
press("frmHelp.ContentsTree", "Alt+S");
check([focused(), text("frmHelp.SearchText")], ["frmHelp.SearchText", "検索"], "the search by its key, as it was");
press("frmHelp.TopicView", "Alt+S");
check(focused(), "frmHelp.SearchText", "also when it is in front already");
setText("frmHelp.SearchText", "");
check([items("frmHelp.SearchList"), caption("frmHelp.CountLabel")], [[], ""], "emptied");
