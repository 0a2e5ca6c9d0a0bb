// Entering web mode: what is shown, hidden, enabled and moved, from every mode of the dictionaries; and that it stays.
const dictionary = tempDir() + "/three.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["cat nap", null, 2, "うたた寝", null], ["dog", null, 1, "犬", null]]);
setCatalogue([{name: "三", path: dictionary, selected: true}]);

const dictionaryEntries = ["mnuSrchFromAll", "mnuSrchFromWord", "mnuSrchFromPhrase", "mnuHistory", "mnuHideListBox",
    "mnuSrchWebSite", "mnuFileCreate", "mnuOpen", "mnuCnv", "mnuCompress", "mnuDicAdd", "mnuColorSel", "mnuListSettings"];
const webEntries = ["mnuGoBack", "mnuGoForward", "mnuGoHome", "mnuCancel", "mnuReflesh"];
const always = ["mnuIncSrch", "mnuPreSrch", "mnuMidSrch", "mnuPostSrch", "mnuTxtInMeaning", "mnuTxtInExample",
    "mnuWildCard", "mnuWildCardBuilder", "mnuAddSearchCondition", "mnuCopy", "mnuSelectAll", "mnuFind", "mnuPrint",
    "mnuPrintView", "mnuPageSettings", "mnuExit", "mnuTopicSearch", "mnuAbout"];
const states = names => names.map(name => enabled(name));
const all = (names, value) => names.map(() => value);
const picture = number => "frmFind.Picture" + number;
const shown = numbers => numbers.map(number => visible(picture(number)));
const web = [22, 23, 24, 25, 26, 27], paging = [14, 15, 17, 18, 19, 20];

const dictionaryView = what => {
    check(states(dictionaryEntries), all(dictionaryEntries, true), what + ": the entries of the dictionaries");
    check(states(webEntries), all(webEntries, false), what + ": those of the web are off");
    check(shown(web), all(web, false), what + ": no picture of the web");
    check(shown([9, 12]), [true, true], what + ": word book and pasting");
    check([visible("frmFind.txtFind"), visible("frmFind.Combo2"), visible("frmFind.List1")], [true, false, true],
        what + ": entry box and list");
};
const webView = what => {
    check(states(dictionaryEntries), all(dictionaryEntries, false), what + ": the entries of the dictionaries are off");
    check(states(webEntries), all(webEntries, true), what + ": those of the web");
    check(states(always), all(always, true), what + ": the others stay");
    check(shown(web), all(web, true), what + ": the pictures of the web");
    check(web.map(number => bounds(picture(number)).left), [8940, 9345, 9735, 10140, 10545, 10935],
        what + ": in one row, to the pixel");
    check(shown([9, 12]), [false, false], what + ": neither word book nor pasting");
    check(state("ListHidden"), 1, what + ": the list is hidden");
    check([visible("frmFind.txtFind"), visible("frmFind.Combo2"), visible("frmFind.List1")], [false, true, false],
        what + ": the address box in the place of the entry box");
};

const home = drivePath(appFile("home.html"));
const modes = ["mnuIncSrch", "mnuPreSrch", "mnuMidSrch", "mnuPostSrch", "mnuTxtInMeaning", "mnuTxtInExample", "mnuWildCard"];
start();
dictionaryView("at the start");
ok(["http://", home].includes(text("frmFind.Combo2")), "the address box begins so, until the pane shows its page");
for (const mode of modes) {
    menu(mode);
    menu("mnuSrchFromWord");
    setText("frmFind.txtFind", "cat");
    press("frmFind.txtFind", "Enter");
    settle();
    const entryBox = bounds("frmFind.txtFind");
    navigations();
    menu("mnuSrchWebSite");
    webView(mode);
    check(state("SearchMode"), 7, mode + ": the number of the mode");
    check(text("frmFind.Label1"), "ＵＲＬ：", mode + ": the label");
    check(caption("frmFind"), "Wordmere- ウエブ サイトの検索", mode + ": the window's caption");
    check(status(), "", mode + ": an empty status bar");
    check(shown(paging), all(paging, false), mode + ": the paging pictures go");
    check(shown([0, "00"]), [true, false], mode + ": the start button stands");
    check(navigations(), [home], mode + ": the blank page");
    ok(!page().includes("cat"), mode + ": without an entry");
    const address = bounds("frmFind.Combo2"), pane = bounds("frmFind.WebBrowser1");
    check(bounds("frmFind.txtFind"), address, mode + ": the address box has the place of the entry box");
    check(address.left, entryBox.left, mode + ": at its left edge");
    ok(address.left + address.width + 50 <= bounds(picture(0)).left + 15, mode + ": it ends before the start button");
    check([pane.left, pane.top], [120, 840], mode + ": the pane goes to the left");
    check(pane.width, Math.round((bounds("frmFind").width - 240) / 15) * 15, mode + ": and has the window's width");
    check(checked("mnuHideListBox"), true, mode + ": the mark of the hidden list");
    check(focused(), "frmFind.Combo2", mode + ": the focus");
    check(items("frmFind.Combo2"), [], mode + ": no address is kept yet");
    restart();
    dictionaryView("a new run after " + mode);
}

// A list that is hidden already stays so, and the pane where it is.
menu("mnuHideListBox");
menu("mnuSrchWebSite");
webView("from a hidden list");
check(bounds("frmFind.WebBrowser1").left, 120, "the pane stays at the left");

// The modes of the dictionaries can be chosen; the view stays.
const captions = ["", "- 前方一致検索", "- 中間一致検索", "- 後方一致検索", "- 訳語項目中の文字列検索",
    "- 用例項目中の文字列検索", "- ワイルドカード検索"];
const numbers = [0, 1, 2, 3, 4, 5, 6];
modes.forEach((mode, i) => {
    menu(mode);
    check([state("SearchMode"), caption("frmFind")], [numbers[i], "Wordmere" + captions[i]], mode + ": chosen on the web");
    check(modes.map(name => checked(name)), modes.map(name => name === mode), mode + ": its check mark");
    check([visible("frmFind.txtFind"), visible("frmFind.Combo2"), visible("frmFind.List1"), state("ListHidden")],
        [false, true, false, 1], mode + ": the address box and the hidden list remain");
    check(shown(web), all(web, true), mode + ": and the pictures");
    check(states(["mnuSrchWebSite", "mnuHideListBox"]), [false, false], mode + ": no way back");
    check(bounds("frmFind.Combo2"), bounds("frmFind.txtFind"), mode + ": the boxes keep one place");
});
check(boxes(), [], "nothing was said");
menu("mnuAddSearchCondition");
check(boxes().map(box => box.title), [], "the wildcard mode composes");
ok(isOpen("frmAddCondition"), "its builder opens");
closeForm("frmAddCondition");

// The address box follows the window.
resize("frmFind", 13500, 9000);
check(bounds("frmFind.Combo2"), bounds("frmFind.txtFind"), "after a resize too");
const right = name => { const place = bounds("frmFind." + name); return place.left + place.width; };
check(right("Picture0"), right("WebBrowser1"), "the start button ends with the pane");

// A failing page does not stop the window half way.
restart();
failNext("write", 61);
answer("OK");
menu("mnuSrchWebSite");
boxes();
webView("the page failed");
