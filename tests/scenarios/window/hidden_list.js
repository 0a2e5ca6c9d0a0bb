// The list hidden and shown again.
const dictionary = tempDir() + "/three.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["dog", null, 1, "犬", null], ["eel", null, 2, "鰻", null]]);
setCatalogue([{name: "三", path: dictionary, selected: true}]);
start();

const rightOf = control => bounds(control).left + bounds(control).width;
const innerWidth = () => bounds("frmFind.Surface").width;
const pane = () => bounds("frmFind.WebBrowser1");
const near = (actual, expected, what) => ok(Math.abs(actual - expected) <= 15, what + ": " + actual + ", " + expected);

const shownPane = pane();
menu("mnuHideListBox");
check(state("ListHidden"), 1, "hidden");
check(checked("mnuHideListBox"), true, "with a check mark");
check(visible("frmFind.List1"), false, "the list is gone");
check([pane().top, pane().left], [840, 120], "the pane takes its place");
check(pane().width, innerWidth() - 240, "between two margins");
check(pane().height, shownPane.height, "as high as before");
check(rightOf("frmFind.txtFind"), rightOf("frmFind.WebBrowser1"), "the box ends with it");
check(enabled("frmFind.Picture14"), false, "no list pages to turn");
check(enabled("frmFind.Picture15"), false, "either way");

// It stays hidden through searches, which go on.
typeText("frmFind.txtFind", "c");
check(visible("frmFind.List1"), false, "a search leaves it hidden");
check(items("frmFind.List1"), ["cat", "dog", "eel"], "but fills it");
ok(page().indexOf("猫") > 0, "and shows its page");
menu("mnuSrchFromWord");
check(visible("frmFind.List1"), false, "so does a limited one");
check(items("frmFind.List1"), ["cat"], "of the words");
setText("frmFind.txtFind", "zz");
menu("mnuSrchFromAll");
check(visible("frmFind.List1"), false, "and one without rows");
press("frmFind.txtFind", "Esc");
choose("frmFind.Combo1", "三");
menu("mnuIncSrch");
check(visible("frmFind.List1"), false, "and what clears the window");
resize("frmFind", 13500, 9750);
check([pane().top, pane().left], [840, 120], "a new size keeps the pane where it is");
near(rightOf("frmFind.WebBrowser1"), innerWidth() - 120, "and its margin");
settle();
check([pane().top, pane().left], [840, 120], "the page does not move it either");
press("frmFind.txtFind", "Down");
check(focused(), "frmFind.txtFind", "no key leads into a hidden list");

typeText("frmFind.txtFind", "d");
menu("mnuHideListBox");
check(state("ListHidden"), 0, "shown again");
check(checked("mnuHideListBox"), false, "without the mark");
check(visible("frmFind.List1"), true, "the list");
check(items("frmFind.List1"), ["dog", "eel"], "with its rows");
const list = bounds("frmFind.List1");
check([list.top, list.left, list.width], [840, 120, 3555], "in its place");
near(list.height, bounds("frmFind.Surface").height - 840 - 250, "as high as the window allows");
check([pane().top, pane().left], [870, 3720], "the pane beside it");
near(pane().height, list.height - 90, "its height");
near(rightOf("frmFind.WebBrowser1"), innerWidth() - 120, "and margin");
check(rightOf("frmFind.txtFind"), rightOf("frmFind.WebBrowser1"), "the box ends with it");

// A window made narrow meanwhile grows for it.
menu("mnuHideListBox");
resize("frmFind", 1500, 6000);
check(bounds("frmFind").width, 1500, "without the list the window may be narrow");
near(rightOf("frmFind.WebBrowser1"), innerWidth() - 120, "the pane fits");
menu("mnuHideListBox");
near(bounds("frmFind").width, 3720 + 200, "the list needs its room");
check(bounds("frmFind.List1").width, 3555, "and gets it");
check([pane().top, pane().left], [870, 3720], "beside the pane");
exit();

start();
check(state("ListHidden"), 0, "a new start shows the list");
check(visible("frmFind.List1"), true, "always");
