// So many hits of earlier pages are removed that the page in front of the shown one lies behind the last hit.
const dictionary = tempDir() + "/w.mdb";
makeDictionary(dictionary, ["w1", "w2", "w3", "w4", "w5", "w6", "w7"].map(word => [word, null, 1, "訳" + word, null]));
setCatalogue([{name: "語", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015003005001503000\r\n");
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
mouseDown("frmFind.Picture15");
mouseDown("frmFind.Picture15");
check(items("frmFind.List1"), ["w7"], "the third page");
doubleClick("frmFind.List1", 0);
for (const word of ["w1", "w2", "w4", "w5"]) {
    answerInput(word);
    click("frmMstmnt.Command10");
    answer("はい");
    click("frmMstmnt.Command8");
    boxes();
}
click("frmMstmnt.Command9");
mouseDown("frmFind.Picture14");
check([items("frmFind.List1"), state("ListPageNo")], [["w3", "w6", "w7"], 1], "the page in front is the last that there is");
ok(status().includes("3件の見出し語中、1件目から3件目"), "and the status bar says so: " + status());
