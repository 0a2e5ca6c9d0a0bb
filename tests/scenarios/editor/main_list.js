// What the editor takes out of the result that the main window shows.
const dictionary = tempDir() + "/words.mdb";
const words = ["w1", "w2", "w3", "w4", "w5", "w6", "w7"];
const make = () => makeDictionary(dictionary, words.map(word => [word, null, 1, "訳" + word, null]));
make();
setCatalogue([{name: "語", path: dictionary, selected: true}]);
// Three rows a page.
writeText(appFile("ListDefi.dat"), "05015003005001503000\r\n");
start();
const list = () => items("frmFind.List1");
const erase = () => {
    answer("はい");
    click("frmMstmnt.Command8");
    boxes();
};
const find = word => {
    answerInput(word);
    click("frmMstmnt.Command10");
    boxes();
};
const rename = word => {
    setText("frmMstmnt.Text1", word);
    answer("はい");
    click("frmMstmnt.Command6");
    boxes();
};
const close = () => click("frmMstmnt.Command9");
const record = (word, autoID) => word.padEnd(512) + String(autoID).padStart(8, "0");
const store = autoIDs => autoIDs.map(autoID => record("w" + autoID, autoID)).join("");

// From the menu nothing is taken out.
typeText("frmFind.txtFind", "w");
menu("mnuOpen");
erase();
check([list(), state("frmMstmnt.MainListChanged")], [words, 0], "opened from the menu: the list stays");
close();
check(list(), words, "and after");

// Incremental: the rows go one by one, the array stays, and the search runs again at the end.
make();
setText("frmFind.txtFind", "");
typeText("frmFind.txtFind", "w");
doubleClick("frmFind.List1", 1);
check(state("SavedIncSearchText"), "w2", "the text that is kept");
erase();
check([list(), state("frmMstmnt.MainListChanged")], [["w1", "w3", "w4", "w5", "w6", "w7"], 1], "its row leaves");
check(state("IncAutoIDs").slice(0, 7), [1, 2, 3, 4, 5, 6, 7], "the array stays");
find("w4");
erase();
check(list(), ["w1", "w3", "w5", "w6", "w7"], "the right row behind it leaves");
find("w1");
erase();
check(list(), ["w3", "w5", "w6", "w7"], "and the right row before it");
find("w5");
rename("v5");
check(list(), ["w3", "w6", "w7"], "a renamed record leaves rather than changes");
rename("u5");
check(list(), ["w3", "w6", "w7"], "what was renamed is in the list no more");
navigations();
close();
check([text("frmFind.txtFind"), list()], ["w2", ["w3", "w6", "w7"]], "the search has run again");
ok(navigations().length >= 2, "the page too");
ok(page().includes("訳w3"), "from the place of the word");
doubleClick("frmFind.List1", 0);
typeText("frmMstmnt.Text3", "x");
answer("はい");
click("frmMstmnt.Command6");
boxes();
navigations();
closeForm("frmMstmnt");
check([list(), navigations()], [["w3", "w6", "w7"], []], "a change of other fields leaves list and page alone");

// A target of its own runs again too.
menu("mnuSrchFromWord");
setText("frmFind.txtFind", "w");
doubleClick("frmFind.List1", 2);
erase();
check(list(), ["w3", "w6"], "the row leaves");
closeForm("frmMstmnt");
check([text("frmFind.txtFind"), list()], ["w7", []], "and the search finds it no more");
menu("mnuSrchFromAll");

// A list search: the store loses the record, whichever page it is on.
make();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
const places = () => ["HitCount", "ListFirstPos", "ListLastPos", "ListPageNo"].map(state);
writeBytes(appFile("ListData_TMP.dat"), "left behind");
doubleClick("frmFind.List1", 1);
check([readBytes(appFile("ListData.dat")), places()], [store([1, 2, 3, 4, 5, 6, 7]), [7, 1, 3, 1]], "seven hits");
erase();
check([list(), readBytes(appFile("ListData.dat")), places()], [["w1", "w3"], store([1, 3, 4, 5, 6, 7]), [6, 1, 2, 1]], "on the page: the row leaves");
check(exists(appFile("ListData_TMP.dat")), false, "no working copy stays");
find("w6");
erase();
check([list(), readBytes(appFile("ListData.dat")), places()], [["w1", "w3"], store([1, 3, 4, 5, 7]), [5, 1, 2, 1]], "on a later page: nothing that is shown");
close();
clickRow("frmFind.List1", 1);
check((page().match(/訳w\d/g) || []), ["訳w3"], "row and record are in step");
mouseDown("frmFind.Picture15");
check([list(), places()], [["w4", "w5", "w7"], [5, 3, 5, 2]], "the next page goes on behind it");
doubleClick("frmFind.List1", 0);
find("w1");
erase();
check([list(), readBytes(appFile("ListData.dat")), places()], [["w4", "w5", "w7"], store([3, 4, 5, 7]), [4, 2, 4, 2]], "on an earlier page: the places move");
find("w5");
rename("x5");
check([list(), readBytes(appFile("ListData.dat")), places()], [["w4", "w7"], store([3, 4, 7]), [3, 2, 3, 2]], "renamed: gone from the result");
check([text("frmMstmnt.Text1"), state("CurrentAutoID"), state("frmMstmnt.MainListChanged")], ["x5", 8, 1], "the editor stands on the new record");
find("w7");
typeText("frmMstmnt.Text3", "x");
answer("はい");
click("frmMstmnt.Command6");
check(readBytes(appFile("ListData.dat")), store([3, 4, 7]), "a change keeps the hit");
boxes();
close();
clickRow("frmFind.List1", 1);
check((page().match(/訳w\d/g) || []), ["訳w7"], "row and record are in step");
check(list(), ["w4", "w7"], "nothing is searched again");
mouseDown("frmFind.Picture14");
check(list(), ["w3", "w4", "w7"], "the first page");

// A record that is no hit.
doubleClick("frmFind.List1", 0);
find("x5");
erase();
check([list(), places(), state("frmMstmnt.MainListChanged")], [["w3", "w4", "w7"], [3, 1, 3, 1], 0], "a record outside the result");

// All hits of the page, one after the other.
find("w3");
erase();
find("w4");
erase();
find("w7");
erase();
check([list(), size(appFile("ListData.dat")), places()], [[], 0, [0, 1, 0, 1]], "all gone");
check(state("frmMstmnt.EditState"), 1, "and the dictionary is empty");
close();

// A store that cannot be rewritten, or is not there.
for (const what of ["delete", "rename", "write", "read"]) {
    make();
    press("frmFind.txtFind", "Enter");
    doubleClick("frmFind.List1", 0);
    find("w4");
    failNext(what, 70);
    answer("はい");
    answer("OK");
    click("frmMstmnt.Command8");
    check(boxes().map(box => box.title), ["削除確認", "エラー"], what + ": the failure is told");
    check([readBytes(appFile("ListData.dat")), exists(appFile("ListData_TMP.dat"))], [store([1, 2, 3, 4, 5, 6, 7]), false], what + ": the store is whole");
    check([rows(dictionary).length, list().length], [6, 3], what + ": the record has gone");
    check([text("frmMstmnt.Text1"), enabled("frmMstmnt"), focused()], ["w7", true, "frmMstmnt.Text3"], what + ": the editor goes on with another");
    setText("frmMstmnt.Text1", "w9");
    failNext(what, 70);
    answer("はい");
    answer("OK");
    click("frmMstmnt.Command6");
    check(boxes().map(box => box.title), ["保存確認", "エラー"], what + ": told at a renaming too");
    check([rows(dictionary).map(row => row.Word).slice(-1), state("CurrentAutoID"), caption("frmMstmnt.Command7")], [["w9"], 8, "元に戻す"], what + ": it is renamed all the same");
    close();
}
doubleClick("frmFind.List1", 0);
remove(appFile("ListData.dat"));
erase();
check([boxes(), exists(appFile("ListData.dat"))], [[], false], "no store: nothing to take out");
close();
check(openForms(), ["frmFind"], "closed");

// A word with blanks around, and one that the store had to cut.
const long = "é".repeat(200);
makeDictionary(dictionary, [["  ", null, 1, "空", null], [" pad ", null, 1, "余白", null], [long, null, 1, "長", null]]);
menu("mnuMidSrch");
setText("frmFind.txtFind", "éé");
press("frmFind.txtFind", "Enter");
doubleClick("frmFind.List1", 0);
check(text("frmMstmnt.Text1"), long, "a long word opens whole");
close();
setText("frmFind.txtFind", "pad");
press("frmFind.txtFind", "Enter");
doubleClick("frmFind.List1", 0);
check(text("frmMstmnt.Text1"), " pad ", "one with blanks too");
close();
menu("mnuIncSrch");
typeText("frmFind.txtFind", "p");
menu("mnuOpen");
check(text("frmMstmnt.Text1"), "  ", "one of blanks alone");
typeText("frmMstmnt.Text3", "x");
answer("はい");
answer("OK");
click("frmMstmnt.Command6");
check([boxes().map(box => box.title).slice(-1), rows(dictionary)[0].Description], [["入力必須項目"], "空"], "but it is not saved without a word");
