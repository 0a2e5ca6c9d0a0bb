// The greatest number of hits that a search can keep.
const dictionary = tempDir() + "/great.mdb";
const count = 32767;
makeDictionary(dictionary, Array.from({length: count + 3}, (_, i) => ["w" + String(i).padStart(5, "0"), null, 1, "訳", null]));
setCatalogue([{name: "大", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015999" + count + "1503000\r\n");
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
answer("OK");
press("frmFind.txtFind", "Enter");
check(boxes().length, 1, "the message on the limit");
check(status(), count + "件の見出し語が見つかりました。", "all of them");
check(size(appFile("ListData.dat")), count * 520, "are stored");
check([state("HitCount"), items("frmFind.List1").length], [count, 999], "the list holds a page");

let steps = 0;
while (state("ListLastPos") < count && ++steps < 40)
    mouseDown("frmFind.Picture15");
check(steps, 32, "page by page to the end");
const listed = items("frmFind.List1");
check([listed.length, listed[0], listed[listed.length - 1]], [count - 32 * 999, "w31968", "w32766"], "the last page");
check(status(), "検索条件に該当する32767件の見出し語中、31969件目から32767件目までを見出し語リストボックス内に表示中．．．", "its place");
answer("OK");
mouseDown("frmFind.Picture15");
check(boxes()[0].text, "該当データの末尾に到達しました！", "there is no more");
clickRow("frmFind.List1", listed.length - 1);
check([state("EntryFirstPos"), (page().match(/sty5/g) || []).length - 1], [count, 1], "the last hit alone on its page");
answer("OK");
mouseDown("frmFind.Picture17");
check(boxes()[0].text, "該当データの末尾に到達しました！", "no entries behind it");
mouseDown("frmFind.Picture18");
check([state("EntryFirstPos"), state("EntryLastPos")], [count - 15, count - 1], "the page before");
