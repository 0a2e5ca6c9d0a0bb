// Where the search button stands: at the pane's right end, 50 behind the entry box, in every mode that has it,
// wherever list and window have been dragged; without it the box runs up to the pane's end.
const dictionary = tempDir() + "/three.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null], ["cats", null, 1, "猫", "猫"], ["dog", null, 1, "犬", null]]);
setCatalogue([{name: "三", path: dictionary, selected: true}]);
start();

const rightOf = control => bounds(control).left + bounds(control).width;
const box = "frmFind.txtFind", button = "frmFind.Picture0", stop = "frmFind.Picture00", pane = "frmFind.WebBrowser1";
const checkButton = what => {
    check([visible(button), visible(stop)], [true, false], what + ": the button alone");
    check(rightOf(button), rightOf(pane), what + ": at the pane's right end");
    const gap = bounds(button).left - rightOf(box);
    ok(gap >= 45 && gap <= 60, what + ": 50 behind the box: " + gap);
    check(bounds(stop), bounds(button), what + ": the stop button's place is the same");
    check([bounds(button).top >= bounds(box).top - 15, bounds(button).top < bounds(box).top + bounds(box).height], [true, true],
        what + ": beside the box");
};
const checkNone = what => {
    check([visible(button), visible(stop)], [false, false], what + ": no button");
    check(rightOf(box), rightOf(pane), what + ": the box takes its room");
};

checkNone("at the start");
for (const mode of ["mnuPreSrch", "mnuMidSrch", "mnuPostSrch", "mnuTxtInMeaning", "mnuTxtInExample", "mnuWildCard"]) {
    menu(mode);
    checkButton(mode);
    menu("mnuIncSrch");
    checkNone(mode + " left");
    menu(mode);
    choose("frmFind.Combo1", 0);
    checkNone(mode + " left by a dictionary");
}
menu("mnuPreSrch");
for (const [what, change] of [["a wider list", () => dragListEdge(6000)], ["a narrower one", () => dragListEdge(1500)],
    ["a larger window", () => resize("frmFind", 15000, 10500)], ["a smaller one", () => resize("frmFind", 7500, 6000)],
    ["a hidden list", () => menu("mnuHideListBox")], ["a new size without it", () => resize("frmFind", 10500, 7500)],
    ["the list again", () => menu("mnuHideListBox")]]) {
    change();
    checkButton(what);
}
menu("mnuIncSrch");
checkNone("after all");

// While a search runs, the stop button has that place, through a new size too.
menu("mnuPreSrch");
setText(box, "c");
let during = null;
atYield(1, () => {
    resize("frmFind", 12000, 9000);
    during = [visible(button), visible(stop), rightOf(stop) - rightOf(pane), rightOf(stop)];
});
press(box, "Enter");
check(during, [false, true, 0, 11880], "the stop button");
checkButton("behind the search");
