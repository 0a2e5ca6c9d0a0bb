// The print commands, and what is said where they fail.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
start();
typeText("frmFind.txtFind", "c");
settle();

const unsupported = "ご利用のオペレーティングシステム(OS)ではこの機能はサポートされていません。";
const before = [items("frmFind.List1"), text("frmFind.txtFind"), page()];
for (const [entry, command] of [["mnuPrint", 6], ["mnuPrintView", 7], ["mnuPageSettings", 8]]) {
    for (const number of [5, 70, -2147467259]) {
        execs();
        navigations();
        failNext("ExecWB", number);
        answer("OK");
        menu(entry);
        check(execs(), [command], entry + ": its command");
        const shown = boxes();
        check(shown.length, 1, entry + ": one box, whatever the failure");
        check(shown[0].title, "印刷機能未サポート", entry + ": its title");
        check(shown[0].text, unsupported, entry + ": its text");
        check(shown[0].icon, 48, entry + ": an exclamation");
        check(shown[0].beep, 0, entry + ": without a beep");
        check(shown[0].buttons, ["OK"], entry + ": to be read");
        check(navigations(), [], entry + ": nothing else happens");
    }
}
check([items("frmFind.List1"), text("frmFind.txtFind"), page()], before, "all is as it was");
check(pointer(), 0, "the pointer too");

// The other commands of the pane have no such handler.
for (const [entry, command] of [["mnuCopy", 12], ["mnuSelectAll", 17]]) {
    execs();
    failNext("ExecWB", 70);
    answer("OK");
    menu(entry);
    check(execs(), [command], entry + ": its command");
    const shown = boxes();
    check(shown.length, 1, entry + ": the default handling");
    check(shown[0].title, "エラー", entry + ": its title");
    check(shown[0].text, "エラー番号  70 Wordmere でエラーが発生しました。\r書き込みできません。", entry + ": its text");
    check(shown[0].icon, 16, entry + ": critical");
}
typeText("frmFind.txtFind", "a");
check(items("frmFind.List1"), ["cat"], "and the program goes on");
