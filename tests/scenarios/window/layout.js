// Where the parts of the window stand.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
start();

// A place given in twips, to the pixel.
const toPixels = twips => Math.round(twips / 15) * 15;
const rightOf = control => bounds(control).left + bounds(control).width;
const surface = () => bounds("frmFind.Surface");
const near = (actual, expected, what) => ok(Math.abs(actual - expected) <= 15, what + ": " + actual + ", " + expected);

const checkPlaces = what => {
    const inner = surface();
    const list = bounds("frmFind.List1");
    const pane = bounds("frmFind.WebBrowser1");
    check([list.top, list.left, list.width], [840, 120, toPixels(3550)], what + ": the list");
    near(list.height, inner.height - 840 - 250, what + ": the list's height");
    check([pane.top, pane.left], [870, 3720], what + ": the pane");
    near(rightOf("frmFind.WebBrowser1"), inner.width - 120, what + ": the pane's right edge");
    ok(list.height - pane.height >= 60 && list.height - pane.height <= 90, what + ": the pane is a little lower");
    check(rightOf("frmFind.txtFind"), rightOf("frmFind.WebBrowser1"), what + ": the box ends with the pane");
    check(rightOf("frmFind.Combo2"), rightOf("frmFind.WebBrowser1"), what + ": the address box too");
    check(bounds("frmFind.txtFind").left, pane.left, what + ": and begins with it");
    ok(rightOf("frmFind.Combo1") < bounds("frmFind.Label1").left, what + ": label beside the dictionary box");
    ok(rightOf("frmFind.Label1") <= bounds("frmFind.txtFind").left, what + ": and in front of the box");
    for (const row of ["Combo1", "txtFind"])
        ok(bounds("frmFind." + row).top + bounds("frmFind." + row).height <= list.top, what + ": " + row + " above the list");
    const bar = bounds("frmFind.StatusBar1");
    near(bar.top + bar.height, inner.height, what + ": the status bar at the bottom");
    check(bar.width, inner.width, what + ": as wide as the window");
    ok(bar.top >= list.top + list.height, what + ": below the list");
};

check([bounds("frmFind").width, bounds("frmFind").height], [12000, 9000], "the window's size");
check(surface().width, 12000, "its inner width");
checkPlaces("large screen");
check(visible("frmFind.Picture0"), false, "no search button in the incremental mode");
check(visible("frmFind.Picture00"), false, "and no stop button");
check(visible("frmFind.Combo2"), false, "no address box");
check(visible("frmFind.txtFind"), true, "but the box for words");
exit();

start({screenWidth: 799});
check([bounds("frmFind").width, bounds("frmFind").height], [9600, 7200], "on a small screen");
checkPlaces("small screen");
exit();

start({screenWidth: 800});
check(bounds("frmFind").width, 12000, "800 pixels are enough for the large one");
exit();
