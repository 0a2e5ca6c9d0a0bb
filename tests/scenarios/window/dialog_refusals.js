// What commands say in the place of a dialog, and the menu of reading aloud.
const dictionary = tempDir() + "/three.mdb";
makeDictionary(dictionary, ["cat", "cat nap", "dog"].map(word => [word, null, 1, "訳 " + word, "例 訳 " + word]));
setCatalogue([{name: "三", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015001005000103000\r\n");
start();

const six = [14, 15, 17, 18, 19, 20].map(number => "frmFind.Picture" + number);
const builder = [["entry", () => menu("mnuAddSearchCondition")], ["picture", () => mouseDown("frmFind.Picture16")]];
const modes = [
    ["mnuIncSrch", "インクリメンタル検索"],
    ["mnuTxtInMeaning", "訳語項目中の文字列検索"],
    ["mnuTxtInExample", "用例項目中の文字列検索"],
];
for (const [mode, name] of modes)
    for (const [way, ask] of builder) {
        const what = name + " by the " + way;
        menu(mode);
        setText("frmFind.txtFind", mode === "mnuIncSrch" ? "c" : "訳");
        if (mode !== "mnuIncSrch")
            press("frmFind.txtFind", "Enter");
        ok(six.filter(picture => visible(picture)).length >= 2, what + ": there is something to page through");
        const before = [items("frmFind.List1"), text("frmFind.txtFind"), state("SearchMode"), caption("frmFind"), page()];
        navigations();
        answer("OK");
        ask();
        const shown = boxes();
        check(shown.length, 1, what + ": one box");
        check(shown[0].title, "複合検索使用不可検索モード", what + ": its title");
        check(shown[0].text, "複合検索は現在選択中の" + name + "モードでは使用できません！\r\n" +
            "前方・中間・後方一致検索ならびにワイルドカード検索時にのみ使用可能です。", what + ": its text");
        check(shown[0].icon, 48, what + ": an exclamation");
        check(shown[0].beep, 0, what + ": without a beep");
        check(shown[0].buttons, ["OK"], what + ": to be read");
        check(six.map(picture => visible(picture)), [false, false, false, false, false, false], what + ": no paging");
        check(status(), "", what + ": an empty status bar");
        check([items("frmFind.List1"), text("frmFind.txtFind"), state("SearchMode"), caption("frmFind"), page()], before,
            what + ": nothing else changes");
        check(navigations(), [], what + ": no page");
        check(openForms(), ["frmFind"], what + ": no window");
    }
menu("mnuIncSrch");
check(six.map(picture => visible(picture)), [false, false, false, false, true, true], "the mode brings its pictures back");

// In the modes that search headwords the builder opens.
for (const mode of ["mnuPreSrch", "mnuMidSrch", "mnuPostSrch", "mnuWildCard"])
    for (const [way, ask] of builder) {
        menu(mode);
        ask();
        check([boxes(), openForms()], [[], ["frmFind", "frmAddCondition"]], mode + ": opens by the " + way);
        press("frmAddCondition", "Esc");
    }
menu("mnuIncSrch");

// Reading aloud.
for (const time of ["the first time", "again"]) {
    answer("OK");
    mouseDown("frmFind.Picture28");
    const shown = boxes();
    check(shown.length, 1, time + ": one box");
    check(shown[0].title, "英文発音機能未設定", "its title");
    check(shown[0].text, "「英文発音機能を使用しない」を選択、またはキャラクタ ファイルが未設定です！\r\n" +
        "メニューバーから [ツール] ＞ [キャラクタの設定] を選択して設定をおこなってください。", "its text");
    check([shown[0].icon, shown[0].beep], [48, 0], "an exclamation without a beep");
    check(openForms(), ["frmFind"], "no window");
}
typeText("frmFind.txtFind", "c");
mouseDown("frmFind.Picture10");
check(enabled("mCancel"), true, "the menu of reading aloud can be left");
check([enabled("mnuSpeakKeyWord"), enabled("mnuSpeakSelectedArea")], [true, true], "what speaks is there");
check(visible("mPopup"), false, "it does not come into the menu bar");
menu("mCancel");
check(text("frmFind.txtFind"), "c", "leaving it changes nothing");
check(items("frmFind.List1"), ["cat", "cat nap", "dog"], "of the list neither");
check(boxes(), [], "nothing is said");
