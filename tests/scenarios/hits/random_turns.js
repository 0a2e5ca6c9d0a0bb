// Pages of list and entries, turned and clicked at random, against the arithmetic by itself.
let seed = 7;
const below = count => {
    seed = (Math.imul(seed, 1103515245) + 12345) & 0x7fffffff;
    return Math.floor(seed / 0x80000000 * count);
};
const range = (first, last) => Array.from({length: Math.max(last - first + 1, 0)}, (_, i) => first + i);
const dictionary = tempDir() + "/turns.mdb";
setCatalogue([{name: "頁", path: dictionary, selected: true}]);
const entriesShown = () => (page().match(/sty3>\d+/g) || []).map(found => Number(found.slice(5)));
const ends = {14: "見出し語リスト: 該当データの先頭に到達しました！", 15: "見出し語リスト: 該当データの末尾に到達しました！",
    17: "見出し語内容: 該当データの末尾に到達しました！", 18: "見出し語内容: 該当データの先頭に到達しました！"};

let turns = 0, atEnds = 0;
for (let round = 0; round < 40; ++round) {
    const count = 1 + below(40), rowsAPage = [1, 2, 3, 5, 8, 40, 999][below(7)], entries = [0, 1, 2, 3, 7, 50][below(6)];
    makeDictionary(dictionary, range(1, count).map(i => ["w" + String(i).padStart(3, "0"), null, 1, String(i), null]));
    writeText(appFile("ListDefi.dat"), "05015" + String(rowsAPage).padStart(3, "0") + "00500" + String(entries).padStart(2, "0") + "03000\r\n");
    start();
    menu("mnuPreSrch");
    setText("frmFind.txtFind", "w");
    const stopped = below(3) === 0;
    const hits = stopped ? 1 + below(count) : count;
    if (stopped)
        atYield(hits, () => click("frmFind.Picture00"));
    press("frmFind.txtFind", "Enter");

    const list = {page: 1, first: 1, last: Math.min(rowsAPage, hits)};
    let entry = 1, shown = [], says = status();
    const show = (first, last) => { shown = range(first, Math.min(last, first + entries - 1)); };
    const verify = what => {
        const place = hits + " hits, " + rowsAPage + " rows, " + entries + " entries, " + what;
        check(items("frmFind.List1"), range(list.first, list.last).map(i => "w" + String(i).padStart(3, "0")), place + ": the list");
        check([entriesShown(), status()], [shown, says], place + ": the entries");
        check(["HitCount", "ListPageNo", "ListFirstPos", "ListLastPos", "EntryFirstPos"].map(state),
            [hits, list.page, list.first, list.last, entry], place + ": the place");
    };
    show(1, list.last);
    verify("the search");
    const pictures = (hits > rowsAPage ? [14, 15] : []).concat(hits > entries ? [17, 18] : []);
    check([14, 15, 17, 18].filter(number => visible("frmFind.Picture" + number)), pictures, "the pictures");
    for (let i = 0; i < 30; ++i, ++turns) {
        const number = pictures.concat(0)[below(pictures.length + 1)];
        if (number === 0) {
            const row = below(list.last - list.first + 1);
            clickRow("frmFind.List1", row);
            entry = list.first + row;
            show(entry, list.last);
            verify("row " + row);
            continue;
        }
        const isEnd = {14: list.page === 1, 15: list.last === hits, 17: entry + entries > hits, 18: entry === 1}[number];
        if (isEnd)
            answer("OK");
        mouseDown("frmFind.Picture" + number);
        check(boxes().map(box => box.title + ": " + box.text), isEnd ? [ends[number]] : [], "picture " + number + ": an end or none");
        atEnds += isEnd;
        if (number <= 15 && !isEnd) {
            list.page += number === 15 ? 1 : -1;
            list.first = (list.page - 1) * rowsAPage + 1;
            list.last = Math.min(list.page * rowsAPage, hits);
        }
        if (number === 14 || number === 15 && !isEnd)
            says = "検索条件に該当する" + hits + "件の見出し語中、" + list.first + "件目から" + list.last +
                "件目までを見出し語リストボックス内に表示中．．．";
        if (number === 17 && !isEnd) {
            entry += entries;
            show(entry, hits);
        } else if (number === 18 && !isEnd) {
            const last = entry - 1;
            entry = Math.max(last - entries + 1, 1);
            show(entry, last);
        }
        verify("picture " + number);
    }
    exit();
}
ok(turns === 1200 && atEnds > 50 && atEnds < 900, turns + " turns, " + atEnds + " at an end");
