// A help file that is missing, cut, unreadable or no help at all is told clearly.
start();
const file = appFile("Help.HLP");
const path = drivePath(file);
const whole = readText(file, "UTF-8");
const ways = [() => menu("mnuTopicSearch"), () => press("frmFind", "F1")];

const told = (title, words, way) => {
    answer("OK");
    way();
    const [box] = boxes();
    check(box.title, title, "the title");
    check(box.text, path + "\r\n\r\n" + words, "the text");
    check([box.icon, box.beep, box.buttons], [48, 48, ["OK"]], "icon, beep and button");
};
for (const way of ways) {
    remove(file);
    told("ヘルプファイル未検出", "上記のヘルプファイルが存在しないため、ヘルプを表示できません。", way);
    check(openForms(), ["frmFind"], "no window without a file");

    mkdir(file);
    told("ヘルプファイル未検出", "上記のヘルプファイルが存在しないため、ヘルプを表示できません。", way);
    check(openForms(), ["frmFind"], "nor for a folder");
    remove(file);

    for (const content of ["", "no help", "<html><body></body></html>"]) {
        writeText(file, content, "UTF-8");
        told("ヘルプファイルの誤り", "上記のヘルプファイルは壊れているため、ヘルプを表示できません。", way);
        check(openForms(), ["frmFind"], "nothing to show of " + JSON.stringify(content));
    }

    writeText(file, whole, "UTF-8");
    failNext("read", 57);
    answer("OK");
    way();
    const [box] = boxes();
    check(box.title, "ヘルプファイルの誤り", "a file that cannot be read");
    ok(box.text.startsWith(path + "\r\n\r\n上記のヘルプファイルを読み込めないため、ヘルプを表示できません。\r\n"), "says so");
    check(openForms(), ["frmFind"], "and shows nothing");

    writeText(file, whole.slice(0, whole.length / 2), "UTF-8");
    told("ヘルプファイルの誤り", "上記のヘルプファイルは一部が壊れています。\r\n読み取れる部分だけを表示します。", way);
    check(openForms(), ["frmFind", "frmHelp"], "what is whole is shown");
    ok(items("frmHelp.ContentsTree").includes("画面の説明"), "topics of the first half");
    ok(!items("frmHelp.ContentsTree").includes("ライセンス"), "and none of the rest");
    closeForm("frmHelp");

    writeText(file, whole, "UTF-8");
    way();
    check(boxes(), [], "a whole file brings no box");
    ok(items("frmHelp.ContentsTree").includes("ライセンス"), "and all topics");
    remove(file);
    press("frmHelp.TopicView", "F1");
    check([boxes(), caption("frmHelp")], [[], "ヘルプの使い方 - Wordmere ヘルプ"], "an open help needs its file no more");
    closeForm("frmHelp");
}

// The main window goes on, and may close while the box is open.
remove(file);
answer(() => {
    closeForm("frmFind");
    return "OK";
});
menu("mnuTopicSearch");
check(openForms(), [], "closed meanwhile");
