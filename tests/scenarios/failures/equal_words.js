// One hundred thousand records with the same headword, one before and one behind them.
const path = tempDir() + "/equal.mdb";
const rows = [["sail", null, 1, "帆", null]];
for (let i = 0; i < 100000; ++i)
    rows.push(["same", null, i % 2 + 1, "意味" + (i + 2), null]);
rows.push(["sane", null, 1, "正気の", null]);
makeDictionary(path, rows);
setCatalogue([{name: "同じ", path, selected: true}]);

const timed = (what, work) => {
    const begun = Date.now();
    work();
    const milliseconds = Date.now() - begun;
    ok(milliseconds < 3000, what + " takes " + milliseconds + " ms");
};
timed("the start", () => start());
check([state("TableFirstWord"), state("TableFirstAutoID"), state("TableLastWord")], ["sail", 1, "sane"], "first and last");
timed("typing", () => setText("frmFind.txtFind", "sam"));
check(items("frmFind.List1").length, 50, "a full list");
check(state("IncAutoIDs").slice(0, 50), Array.from({length: 50}, (unused, i) => i + 2), "in the order of their numbers");
check([state("PageLastWord"), state("PageLastAutoID")], ["same", 51], "its last row");
timed("the row behind them", () => setText("frmFind.txtFind", "san"));
check(items("frmFind.List1"), ["sane"], "is found");

setText("frmFind.txtFind", "sam");
timed("a click in the list", () => clickRow("frmFind.List1", 49));
ok(page().includes("意味51<") && page().includes("意味65<") && !page().includes("意味50<"), "shows from that record on");
timed("words alone", () => menu("mnuSrchFromWord"));
check(state("IncAutoIDs").slice(0, 3), [2, 4, 6], "every other one");
