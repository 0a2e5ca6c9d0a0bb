// The place of the entries outlives what clears the window, and one that is blank is none.
const dictionary = tempDir() + "/place.mdb";
makeDictionary(dictionary, Array.from({length: 9}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
setCatalogue([{name: "所", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05002050005001503000\r\n"); // 2 entries a page
start();
const shown = () => (page().match(/訳\d/g) || []).map(found => Number(found.slice(1)));
typeText("frmFind.txtFind", "w4");
press("frmFind.txtFind", "Esc");
check([status(), shown()], ["Ready", []], "cleared");
mouseDown("frmFind.Picture20");
check([status(), shown(), items("frmFind.List1")], ["", [6, 7], []], "paging goes on from the place, and empties the status bar");
press("frmFind.txtFind", "Esc");
mouseDown("frmFind.Picture19");
check([status(), shown()], ["", [4, 5]], "back too");
press("frmFind.txtFind", "Esc");
answer("OK");
setText("frmFind.txtFind", "w9");
press("frmFind.txtFind", "Esc");
mouseDown("frmFind.Picture20");
check([boxes().map(box => box.text), status()], [["データの末尾に到達しました！"], ""], "so does the end");
exit();

// A headword of nothing but blanks, or of nothing.
for (const blank of ["", " ", "　 "]) {
    makeDictionary(dictionary, [blank, "a", "b", "c"].map((word, i) => [word, null, 1, "訳" + i, null]));
    start();
    setText("frmFind.txtFind", "\u0001");
    check([shown(), state("PageFirstAutoID")], blank === "" ? [[1, 2], 2] : [[0, 1], 1], "the first row at or behind the text");
    if (blank !== "") {
        navigations();
        mouseDown("frmFind.Picture20");
        mouseDown("frmFind.Picture19");
        check([navigations(), shown(), boxes()], [[], [0, 1], []], "a blank place moves nothing");
    }
    setText("frmFind.txtFind", "b");
    mouseDown("frmFind.Picture19");
    check([shown(), state("PageFirstAutoID")], [[0, 1], 1], "back to the blank one");
    navigations();
    mouseDown("frmFind.Picture20");
    check(navigations(), [], "from where nothing moves");
    exit();
}
check(boxes(), [], "no other box");
