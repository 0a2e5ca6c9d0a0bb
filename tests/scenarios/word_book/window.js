// The dialog's window: how it opens and closes, its keys, its tool tips, and what the frame does.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, Array.from({length: 60}, (_, i) => ["w" + String(i).padStart(3, "0"), null, 1, "語", null]));
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const book = appFile("WordBook.dat");
const list = "frmHistory.List1";
const field = bytes => bytes + " ".repeat(255 - bytes.length);
writeBytes(book, field("short") + field("x".repeat(250)) + field("\x8c\xea".repeat(120)));
start();

// What opening it does to the main window.
for (const open of [() => menu("mnuHistory"), () => mouseDown("frmFind.Picture9")]) {
    menu("mnuPreSrch");
    setText("frmFind.txtFind", "w");
    press("frmFind.txtFind", "Enter");
    check([14, 15, 17, 18].map(number => visible("frmFind.Picture" + number)), [true, true, true, true], "hits to page");
    ok(status() !== "", "and a status");
    open();
    check(isOpen("frmHistory"), true, "open");
    check([14, 15, 17, 18].map(number => visible("frmFind.Picture" + number)), [false, false, false, false],
        "the paging pictures go");
    check(status(), "", "the status bar is cleared");
    check([state("SearchMode"), items("frmFind.List1").length, text("frmFind.txtFind")], [1, 50, "w"], "the rest stays");
    check(focused(), list, "the focus is in the list");
    click("frmHistory.Command3");
}
menu("mnuIncSrch");
menu("mnuHistory");
check([visible("frmFind.Picture19"), visible("frmFind.Picture20")], [true, true], "the incremental pages stay");

// Rows wider than the list have a tool tip.
hover(list, 0);
check(toolTip(list), "", "a row that is seen whole has none");
hover(list, 1);
check(toolTip(list), "x".repeat(250), "a wider one shows itself");
hover(list, 2);
check(toolTip(list), "語".repeat(120), "in Japanese too");
hover(list, 0);
check(toolTip(list), "", "and it goes again");
hover(list, 1);
for (let row = 2; row >= 0; --row) {
    clickRow(list, row);
    answer("はい");
    click("frmHistory.Command2");
}
boxes();
hover(list);
check([items(list), toolTip(list)], [[], ""], "blank space has none");
answerInput("kept");
click("frmHistory.Command1");
boxes();

// The keys.
const order = [];
focusOn(list);
for (let i = 0; i < 6; ++i) {
    order.push(focused().replace("frmHistory.", ""));
    press("frmHistory", "Tab");
}
check(order, ["List1", "Command1", "Command2", "Command4", "Command5", "Command3"], "the tab order");
check(focused(), list, "and round");
answerInput("by key");
press("frmHistory.Command1", "Enter");
check(items(list), ["kept", "by key"], "Enter on a button presses it");
press("frmHistory.Command5", "Space");
check(items(list), ["by key", "kept"], "so does the space bar");
press(list, "Home");
press(list, "Enter");
check(text("frmFind.txtFind"), "by key", "Enter on a row sends it");
press(list, "Esc");
check([isOpen("frmHistory"), enabled("frmFind")], [false, true], "Esc closes");
check(readBytes(book), field("by key") + field("kept"), "and saves");
boxes();

// The frame: the list is saved, and the main window given back.
menu("mnuHistory");
closeForm("frmHistory");
check([isOpen("frmHistory"), enabled("frmFind")], [false, true], "closed by the frame");
check(size(book), 510, "saved");

// The close button gives the main window back with an empty list too.
menu("mnuHistory");
const empty = () => {
    while (items(list).length > 0) {
        clickRow(list, 0);
        answer("はい");
        click("frmHistory.Command2");
    }
    boxes();
};
empty();
click("frmHistory.Command3");
check([enabled("frmFind"), exists(book)], [true, false], "no file is left");
menu("mnuHistory");
check(size(book), 0, "made again");

// The frame does not: the main window stays disabled, and can be closed alone.
closeForm("frmHistory");
check([isOpen("frmHistory"), exists(book)], [false, false], "closed by the frame with an empty list");
check(enabled("frmFind"), false, "the main window stays disabled");
typeText("frmFind.txtFind", "w");
check(text("frmFind.txtFind"), "by key", "takes no typing");
menu("mnuHistory");
check(isOpen("frmHistory"), false, "and no command");
check(boxes(), [], "without a box");
closeForm("frmFind");
check(isOpen("frmFind"), false, "but it can be closed");
start();
check(enabled("frmFind"), true, "the next start is as ever");
