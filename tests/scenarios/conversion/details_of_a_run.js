// Of a run: the paths it keeps, the hint meanwhile, the percentage of a short source, what the keys do, a cancel behind
// the last line, a log that cannot be written, and what one run leaves to the next.
start();
const form = "frmDataConv.";
const folder = tempDir();
let number = 0;
const target = () => folder + "/" + number + ".mdb";
const run = (format, content, answers) => {
    if (!isOpen("frmDataConv"))
        menu("mnuCnv");
    ++number;
    const source = folder + "/" + number + ".csv";
    writeText(source, content);
    choose(form + "ConvDicLst", format);
    answerFile(source);
    click(form + "sourceButton");
    answerFile(target());
    click(form + "targetButton");
    boxes();
    ["はい", ...answers].forEach(word => answer(word));
    click(form + "StartButton");
    return boxes().slice(1);
};
const lines = (count, line) => Array.from({length: count}, (_, i) => line(i + 1) + "\r\n").join("");
const good = i => "w" + i + " /// m" + i;
const titles = found => found.map(box => box.title);

// Pairs make no log, not even an empty one.
run(2, lines(100, i => "w" + i + "\r\nm" + i), ["OK"]);
check([rows(target()).length, exists(appFile("ConvErr.log"))], [100, false], "pairs make no log");

// The paths, the hint, a percentage that has no step.
let seen;
atYield(20 + 10, () => {
    hover(form + "StartButton");
    seen = [text(form + "MsgText"), caption(form + "Label1"), progress(form + "ProgressBar1").value,
        state(form + "SourcePath"), state(form + "TargetPath"), state(form + "SourceLineCount")];
    click(form + "StartButton");
    hover(form + "StartButton");
    seen.push(text(form + "MsgText"));
});
let found = run(1, lines(20, good), ["OK"]);
check(seen, ["", "0%", 10, drivePath(folder + "/" + number + ".csv"), drivePath(target()), 20,
    "処理を開始する前にすべてのアプリケーションを閉じて下さい。"],
    "no hint while a run is in progress, the bar on every line, the percentage of fewer than 100 lines at 0");
check(titles(found), ["変換処理未完了"], "it was stopped");
atYield(99 + 99, () => { seen = caption(form + "Label1"); });
run(1, lines(99, good), ["OK"]);
check(seen, "0%", "99 lines: no percentage up to the last line");
atYield(100 + 99, () => { seen = caption(form + "Label1"); });
run(1, lines(100, good), ["OK"]);
check(seen, "99%", "100 lines: one a line");

// Keys during a run: Esc is the button that closes, which is off, Enter the one that cancels.
atYield(20 + 5, () => {
    press(form + "StartButton", "Esc");
    seen = [state("ConvStopFlag"), isOpen("frmDataConv")];
    press(form + "StartButton", "Enter");
    seen.push(state("ConvStopFlag"));
});
check(titles(run(1, lines(20, good), ["OK"])), ["変換処理未完了"], "Enter cancels");
check(seen, [0, true, 1], "Esc does not");

// Cancelled behind the last line: everything is stored, and it counts as cancelled all the same.
atYield(20 + 20, () => click(form + "StartButton"));
check(titles(run(1, lines(20, good), ["OK"])), ["変換処理未完了"], "cancelled behind the last line");
check(rows(target()).length, 20, "with all rows");

// A log that cannot be written: the run ends, and the report tells of the bad records before.
atYield(20 + 5, () => failNext("write", 61));
found = run(1, lines(20, i => "bad " + i), ["OK", "OK"]);
check(titles(found), ["変換処理エラー", "変換処理未完了"], "a full disk under the log");
ok(found[0].text.includes("エラー番号: 61\r\n"), "its number");
ok(found[1].text.includes("処理中に変換できないレコードが5件ありました。"), "the five before are told");
check(readText(appFile("ConvErr.log")), lines(5, i => "bad " + i), "and kept");

// Nothing of one run reaches the next: the system of a glossary, the headword of pairs, the positions of CSV.
const heads = "h\r\nh\r\n";
run(4, heads + "Open,1,開く,2,MNU,Windows,Word,99\r\n", ["OK"]);
run(4, heads + "Print,1,印刷,2,MNU,NT\r\n", ["OK"]);
check(rows(target())[0].Example, "【String Category】Menu Item\r\n【OS】\r\n【Application】N/A", "the first line of a run has no system of a line before");
run(2, lines(100, i => "w" + i + "\r\nm" + i), ["OK"]);
run(2, "\r\n空\r\n" + lines(99, i => "w" + i + "\r\nm" + i), ["OK"]);
check(rows(target()).filter(row => row.AutoID === 1).map(row => row.Word), [""], "the first blank line of a run is an empty word");
const lacking = '"a","bcdefghijk""""""\r\n'; // one separator
run(3, '"a","bb","ccc","d"\r\n' + lacking, ["OK"]);
check(rows(target()).filter(row => row.AutoID === 2).map(row => [row.Pronunciation, row.Description]), [["bc", "ghi"]],
    "a line that lacks separators is cut where the one before was");
found = run(3, lacking, ["OK", "OK"]);
check([titles(found), rows(target())], [["変換処理エラー", "変換処理未完了"], []], "but not where one of the run before was");
