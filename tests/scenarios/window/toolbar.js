// The pictures: their places, and that they act when the mouse goes down.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
start();

const numbers = ["0", "00"].concat(Array.from({length: 28}, (_, i) => String(i + 1)));
for (const number of numbers) {
    check(bounds("frmFind.Picture" + number).width, 255, number + ": width");
    check(bounds("frmFind.Picture" + number).height, 285, number + ": height to the pixel");
}
const leftOf = number => bounds("frmFind.Picture" + number).left;
check(leftOf(19), leftOf(14), "the entry pages stand in the place of the list pages");
check(leftOf(20), leftOf(15), "both of them");

// No two pictures that can be seen at the same time lie on each other, and all are in the window.
const seen = numbers.filter(number => visible("frmFind.Picture" + number));
for (const number of seen)
    for (const other of seen)
        ok(number === other || Math.abs(leftOf(number) - leftOf(other)) >= 255 + 30,
            "pictures " + number + " and " + other + " stand apart");
ok(Math.max(...seen.map(leftOf)) + 255 <= bounds("frmFind").width, "all within the window");

// The ornament answers to nothing.
navigations();
hover("frmFind.Picture21");
mouseDown("frmFind.Picture21");
click("frmFind.Picture21");
check(navigations(), [], "picture 21 goes nowhere");
check(boxes(), [], "and says nothing");
check(status(), "Ready", "the status bar is as it was");

// A picture acts when the mouse goes down.
mouseDown("frmFind.Picture11");
check(execs(), [12], "copy");
mouseDown("frmFind.Picture1");
check(status(), "", "the incremental mode clears the status bar");

// None acts when the mouse comes up, or when it only passes.
navigations();
execs();
for (const number of numbers.filter(each => visible("frmFind.Picture" + each)))
    hover("frmFind.Picture" + number);
check([navigations(), execs(), boxes()], [[], [], []], "the pointer alone sets nothing off");
mouseDown("frmFind.Picture13");
check(focused(), "frmFind.WebBrowser1", "down is enough for finding");
press("frmFind.WebBrowser1", "Esc");

// The keys press them too.
focusOn("frmFind.Picture2");
press("frmFind.Picture2", "Space");
check(state("SearchMode"), 1, "Space presses a picture");
focusOn("frmFind.Picture1");
press("frmFind.Picture1", "Enter");
check(state("SearchMode"), 0, "and Enter");

// Tab leads through all that can be used, in the order in which it stands, and back the same way.
const way = key => {
    const order = [];
    focusOn("frmFind.Combo1");
    do {
        order.push(focused());
        press(focused(), key);
        // The pane hands the focus on in its own time.
        settle();
    } while (focused() !== "frmFind.Combo1" && order.length < 60);
    return order.map(name => name.substr("frmFind.".length));
};
const expected = ["Combo1", "Label1", "txtFind", "List1", "WebBrowser1"]
    .concat(["1", "2", "3", "4", "5", "6", "7", "8", "16", "9", "10", "28", "11", "12", "13", "19", "20"].map(each => "Picture" + each));
check(way("Tab"), expected, "Tab");
check(way("Shift+Tab"), [expected[0]].concat(expected.slice(1).reverse()), "Shift+Tab");
menu("mnuPreSrch");
check(way("Tab").slice(2, 6), ["txtFind", "Picture0", "List1", "WebBrowser1"], "the start button stands behind its box");
