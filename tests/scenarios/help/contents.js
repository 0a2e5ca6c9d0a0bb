// The help window by the menu: contents, links, the way back, and the size of the writing.
start();
check(enabled("mnuTopicSearch"), true, "the entry can be chosen");
menu("mnuTopicSearch");
check(openForms(), ["frmFind", "frmHelp"], "the help is open");
check(enabled("frmFind"), true, "beside the main window");
check(caption("frmHelp"), "はじめに - Wordmere ヘルプ", "with its first topic");
check(focused(), "frmHelp.ContentsTree", "the contents have the focus");
check(selectedRow("frmHelp.ContentsTree"), 0, "at that topic");
const contents = items("frmHelp.ContentsTree");
for (const title of ["はじめに", "画面の説明", "キーボードだけで使う", "キー操作", "インクリメンタル検索",
    "前方一致検索", "中間一致検索", "後方一致検索", "ワイルドカード検索", "訳語項目中の文字列検索",
    "用例項目中の文字列検索", "ワイルドカードの書き方", "複合検索（/T: と /E:）", "検索対象（単語・熟語）",
    "見出し語リスト", "リストのページ送り", "表示内容のページ送り", "表示内容の見方", "表示内容のコピー",
    "表示内容中の文字列検索", "表示内容の印刷", "辞書の切り替え", "データの保存場所",
    "アプリケーションフォルダのファイル", "ヘルプの使い方", "バージョン情報"])
    check(contents.filter(row => row === title).length, 1, "there is a topic " + title);
check([enabled("frmHelp.ButtonBack"), enabled("frmHelp.ButtonForward")], [false, false], "there is no way back yet");
ok(text("frmHelp.TopicView").includes("キー操作"), "a chapter lists its topics");

// Choosing topics.
const shown = title => caption("frmHelp") === title + " - Wordmere ヘルプ" &&
    text("frmHelp.TopicView").startsWith(title) && text("frmHelp.ContentsTree") === title;
clickRow("frmHelp.ContentsTree", contents.indexOf("前方一致検索"));
ok(shown("前方一致検索"), "a click shows the topic");
press("frmHelp.ContentsTree", "Down");
ok(shown("中間一致検索"), "so does an arrow key");
check([enabled("frmHelp.ButtonBack"), enabled("frmHelp.ButtonForward")], [true, false], "now there is a way back");
click("frmHelp.ButtonBack");
ok(shown("前方一致検索"), "back");
press("frmHelp.TopicView", "Alt+Left");
ok(shown("はじめに"), "back by the key");
check([enabled("frmHelp.ButtonBack"), enabled("frmHelp.ButtonForward")], [false, true], "to the beginning");
press("frmHelp.TopicView", "Alt+Left");
ok(shown("はじめに"), "and no farther");
click("frmHelp.ButtonForward");
ok(shown("前方一致検索"), "forward");
press("frmHelp.ContentsTree", "Alt+Right");
ok(shown("中間一致検索"), "forward by the key");
click("frmHelp.ButtonBack");
clickRow("frmHelp.ContentsTree", contents.indexOf("キー操作"));
check(enabled("frmHelp.ButtonForward"), false, "another topic ends the way forward");

// A link, by the keyboard alone.
clickRow("frmHelp.ContentsTree", contents.indexOf("はじめに"));
focusOn("frmHelp.TopicView");
press("frmHelp.TopicView", "Tab");
press("frmHelp.TopicView", "Enter");
ok(shown("まず引いてみる"), "Tab and Enter follow the first link");
press("frmHelp.TopicView", "Tab");
press("frmHelp.TopicView", "Enter");
ok(shown("同梱辞書と著作権"), "and one within a chapter");

// The chapters can be closed.
clickRow("frmHelp.ContentsTree", 0);
press("frmHelp.ContentsTree", "Left");
ok(items("frmHelp.ContentsTree").length < contents.length, "a closed chapter hides its topics");
menu("mnuTopicSearch");
check(openForms(), ["frmFind", "frmHelp"], "the entry brings the same window");
ok(shown("はじめに"), "with the topic it shows");

// The size of the writing.
const size = () => fontOf("frmHelp.TopicView").size;
const usual = size();
click("frmHelp.ButtonLarger");
ok(size() > usual, "larger");
press("frmHelp.TopicView", "Ctrl+-");
check(size(), usual, "smaller by the key");
for (let i = 0; i < 20; ++i)
    press("frmHelp.TopicView", "Ctrl++");
check(size(), usual * 3, "there is a largest size");
check(enabled("frmHelp.ButtonLarger"), false, "which the button tells");
for (let i = 0; i < 20; ++i)
    click("frmHelp.ButtonSmaller");
ok(size() < usual, "and a smallest");
check([enabled("frmHelp.ButtonSmaller"), enabled("frmHelp.ButtonLarger")], [false, true], "as the buttons tell");
press("frmHelp.TopicView", "Esc");
check(openForms(), ["frmFind"], "Esc closes the help");
menu("mnuTopicSearch");
ok(size() < usual, "the next window has the size of the last one");
press("frmHelp.TopicView", "Ctrl+0");
check(size(), usual, "the usual size by the key");
closeForm("frmHelp");
check(openForms(), ["frmFind"], "the window frame closes it too");
check(boxes(), [], "without a word");
