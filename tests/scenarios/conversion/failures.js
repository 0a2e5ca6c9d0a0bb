// Run-time failures of a run, wherever they come from: one box, a stop, the rows so far, the dialog gone.
start();
const form = "frmDataConv.";
const folder = tempDir();
let number = 0;
const target = () => folder + "/" + number + ".mdb";
const good = Array.from({length: 200}, (_, i) => "■w" + i + " : m" + i + "\r\n").join("");
const prepare = (format, source, path) => {
    if (!isOpen("frmDataConv"))
        menu("mnuCnv");
    choose(form + "ConvDicLst", format);
    answerFile(source);
    click(form + "sourceButton");
    answerFile(path);
    click(form + "targetButton");
    boxes();
};
const start1 = answers => {
    ["はい", ...answers].forEach(word => answer(word));
    click(form + "StartButton");
    return boxes().slice(1);
};
const run = (content, answers) => {
    ++number;
    writeText(folder + "/s.txt", content);
    prepare(0, folder + "/s.txt", target());
    return start1(answers);
};
const numberOf = box => Number(box.text.match(/エラー番号: (-?\d+)\r\n/)[1]);
const sourceOf = box => box.text.match(/エラーソース: (.*)\r\n/)[1];
const gone = what => check([isOpen("frmDataConv"), openForms(), enabled("frmFind"), state("ConvStopFlag"), pointer()],
    [false, ["frmFind"], true, 1, 0], what + ": the dialog goes, the main window is back");

// The operations of the engine, in the midst of the rows.
for (const [operation, number, source] of [["AddNew", -2147467259, "ADODB.Recordset"], ["Value", -2147217887, "ADODB.Recordset"],
    ["Update", 61, "ADODB.Recordset"], ["read", 57, "Wordmere"]]) {
    atYield(200 + 50, () => failNext(operation, number));
    const found = run(good, ["OK", "OK"]);
    check(found.map(box => [box.title, box.icon, box.beep, box.buttons]), [["変換処理エラー", 16, 0, ["OK"]], ["変換処理未完了", 64, 0, ["OK"]]],
        operation + ": told, then the report");
    ok(found[0].text.startsWith("変換元のファイルを確認してください。\r\n\r\nエラー番号: " + number + "\r\nエラーソース: " + source + "\r\nエラー内容: "),
        operation + ": its words");
    ok(found[0].text.split("エラー内容: ")[1].length > 0, operation + ": and a description");
    check(found[1].text, "変換処理は完了を待たずにキャンセルされました。", operation + ": no bad records");
    check(rows(target()).map(row => row.AutoID).sort((a, b) => a - b), Array.from({length: 50}, (_, i) => i + 1), operation + ": the rows before stay");
    gone(operation);
}

// Failures before the first row.
let found;
for (const [operation, number] of [["Create", -2147467259], ["Append", 61], ["Open", -2147467259], ["rename", 70]]) {
    failNext(operation, number);
    found = run(good, ["OK", "OK"]);
    check(found.map(box => box.title), ["変換処理エラー", "変換処理未完了"], operation + " of the target");
    check(numberOf(found[0]), number, operation + ": its number");
    ok(!exists(target()), operation + ": no target in part");
    gone(operation);
}
atYield(200, () => failNext("Open", -2147467259));
found = run(good, ["OK", "OK"]);
check(found.map(box => box.title), ["変換処理エラー", "変換処理未完了"], "opening the target");
check(rows(target()), [], "it was made and is empty");
gone("opening");

// The log.
atYield(200, () => makeReadOnly(appFile("ConvErr.log")));
found = run("bad\r\n" + good, ["OK", "OK"]);
check(numberOf(found[0]), 70, "a log that cannot be written ends the run");
check(found.length, 2, "with its report");
gone("the log");
