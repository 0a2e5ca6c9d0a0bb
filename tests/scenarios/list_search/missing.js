// The dictionary in use is not there: the message, with the last line of the key or of the button.
const dictionary = tempDir() + "/lost.mdb";
makeDictionary(dictionary, [["ant", null, 1, "蟻", null], ["ants", null, 1, "蟻たち", null]]);
setCatalogue([{name: "虫", path: dictionary, selected: true}]);
start();
const hints = {
    Enter: "メニューバーの [ツール]から [辞書設定] を選んで確認して下さい。",
    button: "メニューバーの [ツール] から [辞書設定] を選んで確認して下さい。",
};
const go = by => by === "Enter" ? press("frmFind.txtFind", "Enter") : mouseDown("frmFind.Picture0");
const content = readBytes(dictionary);

for (const by of ["Enter", "button"])
    for (const mode of ["mnuPreSrch", "mnuTxtInMeaning", "mnuWildCard"]) {
        menu(mode);
        writeBytes(dictionary, content);
        setText("frmFind.txtFind", "ant");
        go(by);
        remove(dictionary);
        setText("frmFind.txtFind", "an/T:x");
        statements();
        answer("OK");
        go(by);
        const [box] = boxes();
        check(box.title, "設定辞書「虫」の辞書データベースなし", by + ": the title");
        check(box.text, drivePath(dictionary) +
            "\r\n\r\n上記の辞書データベースが存在しないかレコードが一件も登録されていません。\r\n" +
            "また、パスが変更されている可能性もあります。\r\n" + hints[by], by + ": the text");
        check([box.icon, box.beep, box.buttons], [16, 16, ["OK"]], by + ": critical");
        check(statements(), [], "no statement");
        check(exists(dictionary), false, "nothing is made in its place");
        check(items("frmFind.List1"), [], "the list is empty");
        ok(page().includes("<FONT COLOR"), "the page blank");
        check([pointer(), visible("frmFind.Picture0"), visible("frmFind.Picture00")], [0, true, false], "the window is ready");
        check(text("frmFind.txtFind"), "an/T:x", "the text stays");
        if (mode === "mnuPreSrch")
            check([state("WordPattern"), state("SearchText")], ["an%_%", "an"], "the word part was taken");
    }

// A file that is no dictionary is a failure of the search itself.
for (const [what, bytes] of [["a text", "no dictionary at all, just some text"], ["an empty file", ""]]) {
    writeBytes(dictionary, bytes);
    answer("OK");
    go("button");
    const [box] = boxes();
    check([box.title, box.icon], ["エラー", 16], what + ": the generic box");
    ok(box.text.startsWith("エラー番号 -2147467259 "), what + ": with its number");
    check(readBytes(dictionary), bytes, what + ": is left as it was");
    check([pointer(), visible("frmFind.Picture0"), status()], [0, true, ""], what + ": the window is ready");
}
writeBytes(dictionary, content);
menu("mnuPreSrch");
setText("frmFind.txtFind", "an");
go("Enter");
check(items("frmFind.List1"), ["ant", "ants"], "there again: found");

// An empty table is just a search without hits.
makeDictionary(dictionary, []);
go("button");
check(status(), "該当する見出し語は見つかりませんでした。", "an empty table");
check(boxes(), [], "without a box");
