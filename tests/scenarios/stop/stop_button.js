// The stop button: the hits so far are listed, and the next search runs to its end.
const dictionary = tempDir() + "/stop.mdb";
makeDictionary(dictionary, Array.from({length: 9}, (_, i) => ["w" + (i + 1), null, 1, "訳" + (i + 1), null]));
setCatalogue([{name: "止", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015003000091503000\r\n"); // 3 rows a page, 9 hits at most
start();
menu("mnuPreSrch");
setText("frmFind.txtFind", "w");
const told = count => "該当するすべての見出し語を抽出する前に処理の中断を選択しました。表示可能な見出し語は" + count + "件です。";
const go = [() => mouseDown("frmFind.Picture0"), () => press("frmFind.txtFind", "Enter")];

for (const [count, pictures] of [[1, []], [3, []], [4, [14, 15]], [8, [14, 15]], [9, [14, 15]]])
    for (const action of go) {
        let behind;
        atYield(count, () => {
            click("frmFind.Picture00");
            behind = [state("StopRequested"), visible("frmFind.Picture0"), visible("frmFind.Picture00")];
        });
        action();
        check(behind, [1, true, false], count + ": the buttons change at once");
        check(status(), told(count), count + ": told");
        check(items("frmFind.List1"), ["w1", "w2", "w3"].slice(0, count), count + ": listed");
        check([state("HitCount"), state("StopRequested")], [count, 0], count + ": the flag is cleared");
        check(size(appFile("ListData.dat")), count * 520, count + ": the store");
        check([14, 15].filter(number => visible("frmFind.Picture" + number)), pictures, count + ": the pictures");
        check((page().match(/訳\d/g) || []).length, Math.min(count, 3), count + ": the page");
        check([pointer(), state("SearchConnection"), visible("frmFind.Picture0")], [0, false, true], count + ": ready");
    }
check(boxes(), [], "a stopped search says nothing of the limit");

// A flag that is up before the first row: nothing but its message, and it goes down.
atYield(1, () => click("frmFind.Picture00"));
failNext("Close", -2147467259);
answer("OK");
go[0]();
boxes();
answer("OK");
go[0]();
check(boxes().map(box => box.title), ["条件検索－最大リスト上限件数超過"], "a failure behind a stop does not stop the next search");
check(items("frmFind.List1"), ["w1", "w2", "w3"], "which is whole");

// While one runs, start and Enter do nothing.
const seen = [];
for (const nested of go) {
    atYield(2, () => {
        statements();
        setText("frmFind.txtFind", "w1");
        nested();
        seen.push([statements(), boxes(), items("frmFind.List1")]);
        setText("frmFind.txtFind", "w");
    });
    answer("OK");
    go[0]();
    boxes();
    check(state("HitCount"), 9, "the running one goes on to its end");
}
check(seen, [[[], [], []], [[], [], []]], "start and Enter in between");

// After a stop the start button is there, but the run has to end first.
atYield(2, () => {
    click("frmFind.Picture00");
    mouseDown("frmFind.Picture0");
});
go[1]();
check(status(), told(2), "one search, stopped");
