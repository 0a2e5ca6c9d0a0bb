// The list's right edge is dragged; the pane follows.
const dictionary = tempDir() + "/three.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["dog", null, 1, "犬", null], ["eel", null, 1, "鰻", null]]);
setCatalogue([{name: "三", path: dictionary, selected: true}]);
start();

const rightOf = control => bounds(control).left + bounds(control).width;
const innerWidth = () => bounds("frmFind.Surface").width;
const near = (actual, expected, what) => ok(Math.abs(actual - expected) <= 15, what + ": " + actual + ", " + expected);
const checkPane = what => {
    near(bounds("frmFind.WebBrowser1").left, rightOf("frmFind.List1") + 50, what + ": the pane keeps 50 from the list");
    near(rightOf("frmFind.WebBrowser1"), innerWidth() - 120, what + ": its right edge stays");
    check(rightOf("frmFind.txtFind"), rightOf("frmFind.WebBrowser1"), what + ": the box ends with the pane");
};

typeText("frmFind.txtFind", "c");
const before = bounds("frmFind.List1");
dragListEdge(4500);
check(bounds("frmFind.List1"), {left: 120, top: 840, width: 4500, height: before.height}, "wider");
checkPane("wider");
dragListEdge(1500);
check(bounds("frmFind.List1"), {left: 120, top: 840, width: 1500, height: before.height}, "narrower");
checkPane("narrower");
check(items("frmFind.List1"), ["cat", "dog", "eel"], "the rows stay");
check(selectedRow("frmFind.List1"), -1, "none was clicked");
check(text("frmFind.txtFind"), "c", "nor did the text change");

// The width stays: through a search, a new size of the window, a page of the pane.
clickRow("frmFind.List1", 1);
settle();
check(bounds("frmFind.List1").width, 1500, "a click keeps the width");
resize("frmFind", 13500, 9000);
check(bounds("frmFind.List1").width, 1500, "so does a new size");
checkPane("another size");
menu("mnuHideListBox");
menu("mnuHideListBox");
check(bounds("frmFind.List1").width, 3555, "hidden and shown again it is the first one");
near(bounds("frmFind.WebBrowser1").left, 3720, "with the pane");

// The extremes leave both list and pane something.
dragListEdge(30000);
ok(bounds("frmFind.List1").width <= innerWidth() - 355, "the widest: " + bounds("frmFind.List1").width);
ok(bounds("frmFind.WebBrowser1").width > 0, "leaves a pane: " + bounds("frmFind.WebBrowser1").width);
checkPane("widest");
dragListEdge(15);
ok(bounds("frmFind.List1").width >= 300, "the narrowest: " + bounds("frmFind.List1").width);
checkPane("narrowest");
dragListEdge(3555);
checkPane("back again");
