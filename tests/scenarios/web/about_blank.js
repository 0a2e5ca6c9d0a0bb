// What leads to an empty page leads nowhere: the entry stays.
const traps = ["<a href='about:blank'>x</a>", "<form action='about:blank'><button>x</button></form>",
    "<meta http-equiv=refresh content='0;url=about:blank'>"];
const dictionary = tempDir() + "/hostile.mdb";
makeDictionary(dictionary, traps.map((trap, i) => ["trap" + i, null, 1, "ENTRY " + trap, null]));
setCatalogue([{name: "罠", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05001050005001503000\r\n");
start();
traps.forEach((trap, i) => {
    setText("frmFind.txtFind", "trap" + i);
    settle();
    focusOn("frmFind.WebBrowser1");
    press("frmFind.WebBrowser1", "Tab");
    press("frmFind.WebBrowser1", "Enter");
    for (let turn = 0; turn < 10; ++turn)
        settle();
    check(paneAddress(), drivePath(appFile("home.html")), trap + ": it stays");
    ok(paneText().includes("ENTRY"), trap + ": the entry is shown");
});
