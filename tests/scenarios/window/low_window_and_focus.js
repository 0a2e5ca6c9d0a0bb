// A window as low as it may be, with the list and without it, comes back whole; and the focus leaves a list that is hidden.
const dictionary = tempDir() + "/two.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["dog", null, 1, "犬", null]]);
setCatalogue([{name: "二", path: dictionary, selected: true}]);
start();

const places = () => [bounds("frmFind.List1"), bounds("frmFind.WebBrowser1"), bounds("frmFind.txtFind")];
resize("frmFind", 12000, 9015);
resize("frmFind", 12000, 9000);
const whole = places();
const chrome = bounds("frmFind").height - bounds("frmFind.Surface").height;
const lowest = top => Math.ceil((top + 200 + chrome) / 15) * 15;
resize("frmFind", 12000, lowest(870));
check(bounds("frmFind").height, lowest(870), "as low as it may be");
typeText("frmFind.txtFind", "c");
check(items("frmFind.List1"), ["cat", "dog"], "the search goes on");
resize("frmFind", 12000, 9000);
check(places(), whole, "and all stands as before");

menu("mnuHideListBox");
resize("frmFind", 12000, lowest(840));
check(bounds("frmFind").height, lowest(840), "without the list a little lower");
menu("mnuHideListBox");
check([visible("frmFind.List1"), bounds("frmFind.WebBrowser1").left], [true, 3720], "shown again there");
resize("frmFind", 12000, 9000);
check(places(), whole, "it comes back too");

focusOn("frmFind.List1");
menu("mnuHideListBox");
check(focused(), "frmFind.txtFind", "the keys go to the box when the list is hidden");
menu("mnuHideListBox");
check(items("frmFind.List1"), ["cat", "dog"], "nothing is lost");
check(boxes(), [], "nothing is said");
