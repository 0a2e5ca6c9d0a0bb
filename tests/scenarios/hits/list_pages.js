// A list longer than a page: the pictures that turn it.
const dictionary = tempDir() + "/seven.mdb";
makeDictionary(dictionary, Array.from({length: 7}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
setCatalogue([{name: "七", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015003005000203000\r\n"); // 3 rows a page, 2 entries
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
press("frmFind.txtFind", "Enter");

const words = (first, last) => Array.from({length: last - first + 1}, (_, i) => "w" + (first + i));
const place = () => ["ListPageNo", "ListFirstPos", "ListLastPos"].map(state);
const told = (first, last) => "検索条件に該当する7件の見出し語中、" + first + "件目から" + last +
    "件目までを見出し語リストボックス内に表示中．．．";
const end = (picture, words) => {
    answer("OK");
    mouseDown(picture);
    const [box] = boxes();
    check([box.title, box.text, box.icon, box.beep], ["見出し語リスト", words, 48, 48], "the end is told");
};

check(items("frmFind.List1"), words(1, 3), "the first page");
check(place(), [1, 1, 3], "its place");
check([14, 15, 17, 18].map(number => visible("frmFind.Picture" + number)), [true, true, true, true], "all pictures");
check(toolTip("frmFind.Picture14"), "見出し語リストを3件前へ移動", "back");
check(toolTip("frmFind.Picture15"), "見出し語リストを3件先へ移動", "forward");
check(toolTip("frmFind.Picture17"), "見出し語内容を2件先へ移動", "entries forward");
check(toolTip("frmFind.Picture18"), "見出し語内容を2件前へ移動", "entries back");
for (const number of [17, 18])
    ok(Math.abs(bounds("frmFind.Picture" + number).left - state("SavedPicture" + number + "Left")) < 15,
        "entry picture " + number + " stands in its own place");
check(status(), "7件の見出し語が見つかりました。", "the count");

end("frmFind.Picture14", "該当データの先頭に到達しました！");
check(items("frmFind.List1"), words(1, 3), "the same rows");
check(place(), [1, 1, 3], "the same place");
check(status(), told(1, 3), "which is told at the beginning");

const shown = page();
navigations();
for (const [picture, pageNo, first, last] of [[15, 2, 4, 6], [15, 3, 7, 7], [14, 2, 4, 6], [14, 1, 1, 3], [15, 2, 4, 6],
    [15, 3, 7, 7]]) {
    mouseDown("frmFind.Picture" + picture);
    check(items("frmFind.List1"), words(first, last), "page " + pageNo);
    check(place(), [pageNo, first, last], "page " + pageNo + ": its place");
    check(status(), told(first, last), "page " + pageNo + ": told");
    check(selectedRow("frmFind.List1"), -1, "page " + pageNo + ": nothing selected");
    check(state("ViewConnection"), false, "nothing stays open");
}
check([page(), navigations(), state("EntryFirstPos")], [shown, [], 1], "the entries stay as they were");

setText("frmFind.txtFind", "other");
end("frmFind.Picture15", "該当データの末尾に到達しました！");
check(items("frmFind.List1"), words(7, 7), "the same row");
check(place(), [3, 7, 7], "the same place");
check(status(), told(7, 7), "the status bar is left alone");
clickRow("frmFind.List1", 0);
check([state("EntryFirstPos"), (page().match(/訳\d/g) || [])], [7, ["訳7"]], "a click on the last page");

// The dictionary has gone: told, and the page of the list stays with its place.
const content = readBytes(dictionary);
mouseDown("frmFind.Picture14");
remove(dictionary);
answer("OK");
mouseDown("frmFind.Picture15");
check(boxes().map(box => box.title), ["エラー"], "the dictionary is not there");
check([items("frmFind.List1"), place()], [words(4, 6), [2, 4, 6]], "rows and place are those of the page that stays");
writeBytes(dictionary, content);
clickRow("frmFind.List1", 1);
check(page().match(/訳\d/g), ["訳5", "訳6"], "a click finds its record");
mouseDown("frmFind.Picture15");
check(items("frmFind.List1"), words(7, 7), "and on it goes");
