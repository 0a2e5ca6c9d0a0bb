// Another size of the window: what follows, and where it stops.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
start();

const rightOf = control => bounds(control).left + bounds(control).width;
const inner = () => bounds("frmFind.Surface");
const sizeOf = () => [bounds("frmFind").width, bounds("frmFind").height];
const near = (actual, expected, what) => ok(Math.abs(actual - expected) <= 15, what + ": " + actual + ", " + expected);
const checkFollows = what => {
    const list = bounds("frmFind.List1");
    near(list.height, inner().height - list.top - 250, what + ": the list's height");
    near(bounds("frmFind.WebBrowser1").height, list.height - 70, what + ": the pane's height");
    near(rightOf("frmFind.WebBrowser1"), inner().width - 120, what + ": the pane's right edge");
    check(rightOf("frmFind.txtFind"), rightOf("frmFind.WebBrowser1"), what + ": the box ends with it");
    check(rightOf("frmFind.Combo2"), rightOf("frmFind.WebBrowser1"), what + ": and the address box");
    check(bounds("frmFind.StatusBar1").width, inner().width, what + ": the status bar's width");
    near(bounds("frmFind.StatusBar1").top + bounds("frmFind.StatusBar1").height, inner().height, what + ": its place");
};

resize("frmFind", 15000, 10500);
check(sizeOf(), [15000, 10500], "larger");
check([bounds("frmFind.List1").left, bounds("frmFind.List1").top], [120, 840], "the list stays in its place");
check(bounds("frmFind.WebBrowser1").left, 3720, "and the pane's left edge");
checkFollows("larger");
resize("frmFind", 7500, 6000);
check(sizeOf(), [7500, 6000], "smaller");
checkFollows("smaller");

// The least size: the pane's left and top edges plus 200.
resize("frmFind", 3720 + 210, 6000);
check(sizeOf(), [3930, 6000], "as narrow as the pane allows");
resize("frmFind", 3720 + 180, 6000);
check(sizeOf(), [3930, 6000], "narrower it goes back to what it was");
checkFollows("narrow");
resize("frmFind", 7500, 6000);
const chrome = bounds("frmFind").height - inner().height;
const least = Math.ceil((870 + 200 + chrome) / 15) * 15;
resize("frmFind", 7500, least);
check(sizeOf(), [7500, least], "as low as the pane allows");
resize("frmFind", 7500, least - 30);
check(sizeOf(), [7500, least], "lower it goes back");
resize("frmFind", 1500, 750);
check(sizeOf(), [7500, least], "both directions at once");
resize("frmFind", 1500, 9000);
check(sizeOf(), [7500, 9000], "each direction counts for itself");
checkFollows("after all");

typeText("frmFind.txtFind", "c");
check(items("frmFind.List1"), ["cat"], "the search works as before");
resize("frmFind", 12000, 9000);
check(items("frmFind.List1"), ["cat"], "and a new size changes nothing of it");
check(text("frmFind.txtFind"), "c", "nor of the text");
