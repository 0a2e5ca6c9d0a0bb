// The boxes of a web page's script are the program's own, and a page that shows one after the other is silenced.
const folder = tempDir() + "/../../";
const site = exists(folder + "site") ? readText(folder + "site") : "";
const box = "frmFind.Combo2";
const go = address => { setText(box, address); press(box, "Enter"); settle(); };
start();
menu("mnuSrchWebSite");
settle();
check([state("SearchMode"), boxes()], [7, []], "web mode");

const browse = () => {
    answer("OK");
    go(site + "alert");
    check(boxes().map(shown => [shown.title, shown.text, shown.icon, shown.buttons]), [["127.0.0.1", "hello", 64, ["OK"]]], "an alert");
    ok(paneText().includes("after"), "behind it the page goes on");

    // No end of them: after each few the user is asked.
    for (const word of ["OK", "OK", "OK", "はい", "OK", "OK", "OK", "いいえ"])
        answer(word);
    go(site + "alerts");
    check(boxes().map(shown => shown.text.split("\r")[0]),
          ["n0", "n1", "n2", "このページは続けてメッセージを表示しようとしています。", "n3", "n4", "n5",
           "このページは続けてメッセージを表示しようとしています。"], "told what it does, and silenced");
    ok(paneText().includes("end of alerts"), "the page comes to its end");

    // Nor by loading itself anew each time.
    for (const word of ["OK", "OK", "OK", "いいえ"])
        answer(word);
    go(site + "again");
    for (let turn = 0; turn < 20 && !text(box).endsWith("#9"); ++turn)
        settle();
    check(boxes().map(shown => shown.text.split("\r")[0]),
          ["n", "n", "n", "このページは続けてメッセージを表示しようとしています。"], "silenced for good");

    answer("OK");
    answer("キャンセル");
    answerInput("猫");
    go(site + "questions");
    check(boxes().map(shown => shown.kind), ["message", "message", "input"], "questions");
    ok(paneText().includes("true false 猫"), "the page gets the answers: " + paneText());
};
if (site !== "")
    browse();
else
    note("no web to browse");
