// A list page of no rows, set in the dialog: each picture does what its arithmetic says.
const dictionary = tempDir() + "/seven.mdb";
makeDictionary(dictionary, Array.from({length: 7}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
setCatalogue([{name: "七", path: dictionary, selected: true}]);
start();
menu("mnuListSettings");
setText("frmListSettings.Combo2", "0");
setText("frmListSettings.Text4", "0");
answer("OK");
click("frmListSettings.Command1");
boxes();
if (isOpen("frmListSettings"))
    click("frmListSettings.Command2");
check([state("ListPageSize"), state("EntriesPerPage")], [0, 0], "the dialog takes zero");
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");
check([items("frmFind.List1"), state("HitCount"), visible("frmFind.Picture14")], [[], 7, true], "hits, but no rows");
answer("OK");
mouseDown("frmFind.Picture14");
check(boxes().map(box => box.text), ["該当データの先頭に到達しました！"], "the first page is told");
check(status(), "検索条件に該当する7件の見出し語中、1件目から0件目までを見出し語リストボックス内に表示中．．．", "the place");
mouseDown("frmFind.Picture15");
check(["ListPageNo", "ListFirstPos", "ListLastPos"].map(state), [2, 1, 0], "the next page begins at the same hit");
mouseDown("frmFind.Picture14");
check(["ListPageNo", "ListFirstPos", "ListLastPos"].map(state), [1, 1, 0], "and back");
