// The incremental search on made-up dictionaries: texts, clicks, pages and targets at random, against a sorted table
// kept by this file.
let seed = 11;
const below = count => {
    seed = (Math.imul(seed, 1103515245) + 12345) & 0x7fffffff;
    return Math.floor(seed / 0x80000000 * count);
};
const oneOf = list => list[below(list.length)];

// Few characters in many forms, so that texts and words often meet. Each stands with its one form.
const forms = {" ": " ", "　": " ", "!": "!", "％": "%", "%": "%", "'": "'", "＇": "'", "-": "-", "_": "_", "1": "1", "１": "1",
    "a": "a", "A": "a", "ａ": "a", "b": "b", "Ｂ": "b", "か": "カ", "カ": "カ", "ｶ": "カ", "が": "ガ", "ｶﾞ": "ガ", "ー": "ー",
    "ｰ": "ー", "犬": "犬", "😀": "😀"};
const characters = Object.keys(forms);
// As the table sorts them.
const order = [" ", "!", "%", "'", "-", "_", "1", "a", "b", "ー", "カ", "ガ", "犬", "😀"];
const made = most => Array.from({length: 1 + below(most)}, () => oneOf(characters)).join("");
const fold = typed => (typed.match(/ｶﾞ|[^]/gu) || []).map(one => order.indexOf(forms[one]));
const compare = (left, right) => {
    for (let i = 0; i < Math.min(left.length, right.length); ++i)
        if (left[i] !== right[i])
            return left[i] - right[i];
    return left.length - right.length;
};
const trimStart = typed => typed.replace(/^[ 　]+/, "");
const trim = typed => trimStart(typed).replace(/[ 　]+$/, "");
const begins = (key, start) => start.every((one, i) => key[i] === one);

const path = tempDir() + "/made-up.mdb";
const shown = () => (page().match(/sty3>\d+/g) || []).map(found => Number(found.slice(5)));
let steps = 0, clicks = 0, pages = 0;
for (let round = 0; round < 25; ++round) {
    const words = Array.from({length: 1 + below(90)}, () => made(4));
    const kinds = words.map(() => 1 + below(2));
    makeDictionary(path, words.map((word, i) => [word, null, kinds[i], String(i + 1), null]));
    const rowsAList = oneOf([1, 3, 10, 50]), entries = oneOf([1, 4, 15]);
    writeText(appFile("ListDefi.dat"), String(rowsAList).padStart(3, "0") + String(entries).padStart(2, "0") + "050005001503000\r\n");
    setCatalogue([{name: "乱", path, selected: true}]);
    start();
    const table = words.map((word, i) => ({word, key: fold(word), id: i + 1, kind: kinds[i]}))
        .sort((a, b) => compare(a.key, b.key) || a.id - b.id);
    let target = 0, typed = "", list = [], entry = [], first = null;

    const walk = (at, moves) => {
        if (at >= table.length) {
            list = [];
            entry = [];
            return;
        }
        first = at;
        entry = table.slice(at, at + Math.min(entries, rowsAList)).map(row => row.id);
        if (moves)
            list = table.slice(at, at + rowsAList).map(row => ({text: trim(row.word), id: row.id}));
    };
    const search = () => {
        if (typed === "") {
            list = [];
            entry = [];
        } else if (target !== 0) {
            list = table.filter(row => row.kind === target && begins(row.key, fold(typed))).slice(0, rowsAList)
                .map(row => ({text: row.word, id: row.id}));
            entry = list.slice(0, entries).map(row => row.id);
        } else {
            const key = fold(trim(typed)), at = table.findIndex(row => compare(row.key, key) >= 0);
            walk(at < 0 ? table.length : at, true);
        }
    };
    // The row of a key, or the last one in front of it.
    const upTo = (word, id) => table.filter(row => (compare(row.key, fold(word)) || row.id - id) <= 0).length - 1;
    const clickOn = row => {
        const word = trimStart(row.text);
        if (target !== 0)
            entry = list.slice(list.indexOf(row)).slice(0, entries).map(one => one.id);
        if (word === "") {
            if (typed !== "") {
                typed = "";
                search();
            }
            return;
        }
        typed = word;
        if (target !== 0)
            return;
        const at = upTo(trim(word), trim(word) === table[0].word ? table[0].id : row.id);
        walk(at < 0 ? table.length : at, false);
    };

    for (let step = 0; step < 60; ++step) {
        const kind = below(10), expected = [];
        let what;
        if (kind < 4) {
            const given = oneOf([made(3), oneOf(words), [...oneOf(words)].slice(0, 2).join("").replace(/ｶ$/, "")]);
            what = "text " + JSON.stringify(given);
            setText("frmFind.txtFind", given);
            if (given !== typed) {
                typed = trimStart(given);
                search();
            }
        } else if (kind === 4) {
            target = below(3);
            what = "target " + target;
            menu(["mnuSrchFromAll", "mnuSrchFromWord", "mnuSrchFromPhrase"][target]);
            const isEmpty = typed === "";
            typed = trim(typed);
            if (!isEmpty)
                search();
        } else if (kind < 8) {
            if (list.length === 0)
                continue;
            const row = below(list.length);
            what = "row " + row;
            clickRow("frmFind.List1", row);
            clickOn(list[row]);
            ++clicks;
        } else {
            if (target !== 0)
                continue;
            const back = kind === 8;
            what = back ? "back" : "forward";
            const moves = first !== null && trim(table[first].word) !== "", isEnd = moves && first === (back ? 0 : table.length - 1);
            if (isEnd)
                answer("OK");
            mouseDown(back ? "frmFind.Picture19" : "frmFind.Picture20");
            if (isEnd) {
                expected.push(back ? "データの先頭に到達しました！" : "データの末尾に到達しました！");
                entry = [];
            } else if (moves) {
                const to = back ? first - entries : first + entries;
                const count = to < 0 ? first : to >= table.length ? table.length - 1 - first : entries;
                first = Math.min(Math.max(to, 0), table.length - 1);
                entry = table.slice(first, first + count).map(row => row.id);
            }
            ++pages;
        }
        what = round + "." + step + " " + what + ", target " + target;
        check(boxes().map(box => box.text), expected, what + ": what is told");
        check(text("frmFind.txtFind"), typed, what + ": the text");
        check(items("frmFind.List1"), list.map(row => row.text), what + ": the list");
        check(state("IncAutoIDs").slice(0, list.length), list.map(row => row.id), what + ": its numbers");
        check(shown(), entry, what + ": the entries");
        check([pointer(), state("ListClickActive")], [0, 0], what + ": the window is ready");
        ++steps;
    }
    exit();
}
ok(steps > 800 && clicks > 100 && pages > 100, steps + " steps, " + clicks + " clicks, " + pages + " pages");
