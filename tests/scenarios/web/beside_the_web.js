// Web mode beside what else the window has: a search that runs, the dictionary box, label, keys and builders.
const dictionary = tempDir() + "/cats.mdb";
const cats = [];
for (let i = 0; i < 60; ++i)
    cats.push(["cat" + String(i).padStart(2, "0"), null, 1, "猫" + i, null]);
makeDictionary(dictionary, cats);
setCatalogue([{name: "一", path: dictionary, selected: true}, {name: "二", path: dictionary, selected: false}]);
const webView = what => {
    check([visible("frmFind.txtFind"), visible("frmFind.Combo2"), visible("frmFind.List1"), state("ListHidden")],
        [false, true, false, 1], what + ": the address box and the hidden list");
    check([22, 23, 24, 25, 26, 27, 9, 12].map(number => visible("frmFind.Picture" + number)),
        [true, true, true, true, true, true, false, false], what + ": the pictures");
    check([enabled("mnuSrchWebSite"), enabled("mnuHideListBox"), enabled("mnuGoBack")], [false, false, true], what + ": no way back");
    check(bounds("frmFind.Combo2"), bounds("frmFind.txtFind"), what + ": one place for both boxes");
};

// While a search runs: it is given up, and nothing of it comes later.
start();
for (const row of [1, 30, 60]) {
    menu("mnuPreSrch");
    setText("frmFind.txtFind", "cat");
    let entered = false;
    atYield(row, () => {
        menu("mnuSrchWebSite");
        entered = true;
        webView("in row " + row);
    });
    press("frmFind.txtFind", "Enter");
    check(entered, true, "entered in row " + row);
    settle();
    webView("entered in row " + row);
    check([state("SearchMode"), caption("frmFind"), text("frmFind.Label1"), status()],
        [7, "Wordmere- ウエブ サイトの検索", "ＵＲＬ：", ""], "row " + row + ": the search says nothing any more");
    check([items("frmFind.List1"), exists(appFile("ListData.dat")), page().includes("cat")], [[], false, false],
        "row " + row + ": and leaves nothing");
    check([visible("frmFind.Picture0"), visible("frmFind.Picture00"), pointer()], [true, false, 0], "row " + row + ": at rest");
    check([14, 15, 17, 18, 19, 20].map(number => visible("frmFind.Picture" + number)), [false, false, false, false, false, false],
        "row " + row + ": nothing to turn");
    restart();
}

// The label and the dictionary box act as ever; the view stays.
menu("mnuSrchWebSite");
settle();
for (const [target, words] of [[1, "単語："], [2, "熟語："], [0, "単熟語："]]) {
    click("frmFind.Label1");
    check([state("SearchTarget"), text("frmFind.Label1"), state("SearchMode")], [target, words, 7], "the label cycles: " + words);
    webView("target " + target);
}
choose("frmFind.Combo1", "二");
check([state("SearchMode"), caption("frmFind"), state("CurrentDicName")], [0, "Wordmere", "二"], "another dictionary");
webView("another dictionary");
settle();
press("frmFind.Combo1", "Esc");
check(status(), "Ready", "Esc in the dictionary box");
webView("Esc");
menu("mnuWildCardBuilder");
check([isOpen("frmSearch"), state("SearchMode")], [true, 6], "the wildcard builder");
closeForm("frmSearch");
webView("after the builder");
check(boxes(), [], "nothing was said");

// The address box goes on working in each of these modes.
const page2 = tempDir() + "/second.html";
writeText(page2, "<p>second</p>");
for (const mode of ["mnuIncSrch", "mnuPreSrch", "mnuTxtInExample"]) {
    menu(mode);
    settle();
    setText("frmFind.Combo2", drivePath(page2));
    press("frmFind.Combo2", "Enter");
    settle();
    check(paneText().trim(), "second", mode + ": Enter goes to the address");
}
