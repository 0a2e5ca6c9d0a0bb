// The window is closed in the middle of a search: it stops, and the program ends in order.
const dictionary = tempDir() + "/close.mdb";
makeDictionary(dictionary, Array.from({length: 6}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
setCatalogue([{name: "閉", path: dictionary, selected: true}]);
const go = {button: () => mouseDown("frmFind.Picture0"), Enter: () => press("frmFind.txtFind", "Enter")};

for (const by of ["button", "Enter"])
    for (const [what, close] of [["frame", () => closeForm("frmFind")], ["menu", () => menu("mnuExit")],
        ["twice", () => { closeForm("frmFind"); menu("mnuExit"); }]])
        for (const row of [1, 6]) {
            start();
            menu("mnuPreSrch");
            setText("frmFind.txtFind", "w");
            let still;
            atYield(row, () => { close(); still = isOpen("frmFind"); });
            go[by]();
            check(still, true, what + ": the window waits for the search");
            settle();
            check(isOpen("frmFind"), false, what + ": then it closes");
            check(exists(appFile("ListData.dat")), false, what + ": without a trace");
            exit();
        }
check(boxes(), [], "no box");
check(rows(dictionary).length, 6, "the dictionary is whole");
check(exists(dictionary + "-journal"), false, "with nothing beside it");
start();
typeText("frmFind.txtFind", "w3");
check(items("frmFind.List1")[0], "w3", "the next start is a usual one");
