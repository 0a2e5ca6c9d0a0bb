// A run: what shows at each step, cancelling, closing, the reports, and the log of bad records.
start();
const form = "frmDataConv.";
const fileControls = ["ConvDicLst", "SourceFile", "TargetFile", "sourceButton", "targetButton"];
const folder = tempDir();
let number = 0;
const target = () => folder + "/" + number + ".mdb";
const run = (format, content, answers, extension = ".txt") => {
    if (!isOpen("frmDataConv"))
        menu("mnuCnv");
    ++number;
    const source = folder + "/" + number + extension;
    writeText(source, content);
    choose(form + "ConvDicLst", format);
    answerFile(source);
    click(form + "sourceButton");
    answerFile(target());
    click(form + "targetButton");
    boxes();
    answer("はい");
    answers.forEach(word => answer(word));
    click(form + "StartButton");
    return boxes().slice(1);
};
const able = () => fileControls.map(name => enabled(form + name));
const lines = (count, line) => Array.from({length: count}, (_, i) => line(i + 1) + "\r\n").join("");
const logPath = drivePath(appFile("ConvErr.log"));
// One row a line in each format; the pairs take two lines.
const makers = [i => "■w" + i + " : m" + i, i => "w" + i + " /// m" + i, i => "w" + i + "\r\nm" + i,
    i => `"w${i}","p","m${i}","e"`, i => `w${i},1,m${i},2,TXT,OS,App`];
const content = (format, count) => (format === 4 ? "h\r\nh\r\n" : "") + lines(count, makers[format]);

for (let format = 0; format < 5; ++format) {
    const name = format + ": ";
    const perRow = format === 2 ? 2 : 1;
    const count = 250 * perRow + (format === 4 ? 2 : 0);
    const extension = format === 4 ? ".csv" : ".txt";

    // States and progress.
    const seen = [];
    const look = () => seen.push([caption(form + "StartButton"), enabled(form + "StartButton"), enabled(form + "QuitButton"), able(),
        enabled("frmDataConv"), state("ConvStopFlag"), pointer(), openForms(), progress(form + "ProgressBar1"), caption(form + "Label1")]);
    atYield(count + 1, look);
    atYield(count + 100, look);
    const found = run(format, content(format, 250), [box => {
        seen.push([caption(form + "Label1"), progress(form + "ProgressBar1").value, state("ConvStopFlag"), pointer(), isOpen("frmDataConv")]);
        return "OK";
    }], extension);
    const running = (value, percent) => ["キャンセル", true, false, [false, false, false, false, false], true, 0, 11, ["frmFind", "frmDataConv"],
        {min: 0, max: count, value: value}, percent + "%"];
    const percentAt = value => Math.floor((value - value % Math.floor(count / 100)) * 100 / count);
    check(seen[0], running(perRow, percentAt(perRow)), name + "after the first row");
    check(seen[1], running(100 * perRow, percentAt(100 * perRow)), name + "after the hundredth");
    check(seen[2], ["100%", 250 * perRow, 0, 0, true], name + "at the report");
    if (format === 2)
        check(found.map(b => [b.title, b.text, b.icon, b.beep]), [["Wordmere", "無事変換されました。", 0, 0]], name + "its report");
    else
        check(found.map(b => [b.title, b.text, b.icon, b.beep, b.buttons]), [["変換処理終了",
            "変換元レコード数: 250件\r\n\r\n変換不可レコード数: 0件\r\n\r\n最終変換レコード数: 250件", 64, 0, ["OK"]]], name + "its report");
    check([isOpen("frmDataConv"), enabled("frmFind"), state("ConvStopFlag"), pointer()], [false, true, 1, 0], name + "the dialog goes");
    check(rows(target()).length, 250, name + "all rows are there");
    check(rows(target()).filter(row => row.AutoID === 7).map(row => [row.Word, row.Description]), [["w7", "m7"]], name + "numbered in the order of the source");
    check(exists(target() + "-journal"), false, name + "with nothing beside the file");

    // Cancel, at the first row and later.
    for (const row of [1, 40]) {
        let at;
        atYield(count + row, () => {
            click(form + "StartButton");
            at = [state("ConvStopFlag"), caption(form + "StartButton"), enabled(form + "QuitButton"), isOpen("frmDataConv")];
        });
        const stopped = run(format, content(format, 250), [box => {
            at.push(caption(form + "Label1") !== "100%", state("ConvStopFlag"), pointer());
            return "OK";
        }], extension);
        check(at, [1, "キャンセル", false, true, true, 1, 0], name + "cancelled at row " + row);
        check(stopped.map(b => [b.title, b.text, b.icon, b.beep]), [["変換処理未完了", "変換処理は完了を待たずにキャンセルされました。", 64, 0]],
            name + "its report");
        check(rows(target()).length, row, name + "the rows so far stay");
        check(isOpen("frmDataConv"), false, name + "the dialog goes");
    }

    // The frame during a run.
    let still;
    atYield(count + 10, () => {
        answer("OK");
        closeForm("frmDataConv");
        closeForm("frmFind");
        still = [isOpen("frmDataConv"), isOpen("frmFind"), state("ConvStopFlag")];
    });
    const refused = run(format, content(format, 250), ["OK"], extension);
    check(still, [true, true, 0], name + "closing is refused");
    check(refused[0].title, "[×]ボタン使用不可", name + "with a box");
    check(rows(target()).length, 250, name + "and the run goes on to its end");

    // Cancel and then the frame, before the loop looks at either.
    atYield(count + 5, () => {
        click(form + "StartButton");
        closeForm("frmDataConv");
        still = [isOpen("frmDataConv"), enabled("frmFind")];
    });
    check(run(format, content(format, 250), ["OK"], extension).map(b => b.title), ["変換処理未完了"], name + "closed while it stops: no refusal");
    check(still, [true, false], name + "the dialog waits for its run");
    check([isOpen("frmDataConv"), enabled("frmFind"), rows(target()).length], [false, true, 5], name + "and goes at its end");
}

// Bad records: the report of the Japanese thousands, the question at the 101st, both answers.
const mixed = (good, bad) => lines(bad, i => "no mark " + i) + lines(good, makers[0]);
let found = run(0, mixed(1200, 34), ["OK"]);
check(found[0].text, "変換元レコード数: 1,234件\r\n\r\n変換不可レコード数: 34件\r\n\r\n最終変換レコード数: 1,200件\r\n\r\n\r\n変換不可レコードは、" + logPath +
    " へ保存されました。", "34 bad records are told");
check(readText(appFile("ConvErr.log")), lines(34, i => "no mark " + i), "and kept");
found = run(0, mixed(1, 100), ["OK"]);
check(found.map(b => b.title), ["変換処理終了"], "100 bad records bring no question");
for (const [format, title] of [[0, "英辞郎／和英辞郎"], [1, "１行テキスト"], [3, "ＣＳＶ（カンマ区切り）"], [4, "MS Glossary"]]) {
    const bad = (format === 4 ? "h\r\nh\r\n" : "") + lines(300, i => "bad " + i) + lines(2, makers[format]);
    const extension = format === 4 ? ".csv" : ".txt";
    let atBox;
    found = run(format, bad, [() => {
        atBox = [readText(appFile("ConvErr.log")), progress(form + "ProgressBar1").value];
        return "OK";
    }, "OK"], extension);
    check([found[0].title, found[0].icon, found[0].beep, found[0].buttons], ["変換不可レコードの多数検出", 48, 32, ["OK", "キャンセル"]],
        title + ": the question");
    check(found[0].text, "正しく変換されないレコードが現時点で１００件を超えました。\r\n\r\n" +
        "変換を開始した直後にこのメッセージが現れた場合、指定した変換元辞書のファイル形式と\r\n" +
        "実際に選択したファイルの形式が異なっている可能性があります。\r\n\r\n変換元のファイルは間違いなく「" + title +
        "」形式の辞書ですか？\r\n\r\n[OKボタン]をクリックするとこのまま処理を続けます。", title + ": its words");
    check(atBox, [lines(101, i => "bad " + i), 101], title + ": it comes at the 101st, which is kept by then");
    check(found.slice(1).map(b => b.title), ["変換処理終了"], title + ": OK asks no more");
    check(rows(target()).length, 2, title + ": the good rows are there");
    check(readText(appFile("ConvErr.log")), lines(300, i => "bad " + i), title + ": the others are kept");
    found = run(format, bad, ["キャンセル", "OK"], extension);
    check(found[1].text, "変換処理は完了を待たずにキャンセルされました。\r\n\r\n処理中に変換できないレコードが101件ありました。\r\n\r\n変換不可レコードは、" +
        logPath + " へ保存されました。", title + ": cancel ends the run");
    check([found[1].title, found[1].icon], ["変換処理未完了", 64], title + ": as unfinished");
    check(rows(target()), [], title + ": with no row");
}

// Rows are committed when a box shows, so that nothing is lost while the user thinks.
let counted;
run(0, lines(30, makers[0]) + lines(101, i => "bad"), [() => { counted = rows(target()).length; return "キャンセル"; }, "OK"]);
check(counted, 30, "rows are there for others when a box shows");

// The log holds the last run alone; pairs leave it as it is.
run(0, "bad\r\n", ["OK"]);
check(readText(appFile("ConvErr.log")), "bad\r\n", "the last run's");
run(2, content(2, 100), ["OK"]);
check(readText(appFile("ConvErr.log")), "bad\r\n", "untouched by pairs");
run(0, "■a : b\r\n", ["OK"]);
check(readText(appFile("ConvErr.log")), "", "emptied by the next");
