// Numbers of 16 bits.
start();
const form = "frmDataConv.";
const folder = tempDir();
let number = 0;
const convert = (format, bytes, answers) => {
    menu("mnuCnv");
    choose(form + "ConvDicLst", format);
    writeBytes(folder + "/s.csv", bytes);
    answerFile(folder + "/s.csv");
    click(form + "sourceButton");
    answerFile(folder + "/" + ++number + ".mdb");
    click(form + "targetButton");
    boxes();
    ["はい", ...answers].forEach(word => answer(word));
    click(form + "StartButton");
    return boxes().slice(1);
};
const numberOf = box => Number(box.text.match(/エラー番号: (-?\d+)\r\n/)[1]);

// The 32,768th bad record of one-line text overflows; the other formats go on.
const bad = "x\r\n".repeat(32768);
let found = convert(1, "a /// b\r\n" + bad + "c /// d\r\n", ["OK", "OK", "OK"]);
check(found.map(box => box.title), ["変換不可レコードの多数検出", "変換処理エラー", "変換処理未完了"], "one-line text: the boxes");
check(numberOf(found[1]), 6, "one-line text: an overflow");
ok(found[2].text.includes("処理中に変換できないレコードが32,767件ありました。"), "one-line text: as many are counted");
check(size(appFile("ConvErr.log")), 3 * 32768, "one-line text: the last one is kept as well");
check(rows(folder + "/1.mdb").map(row => row.Word), ["a"], "one-line text: the rows before stay");
found = convert(1, "x\r\n".repeat(32767) + "c /// d\r\n", ["OK", "OK"]);
check(found[1].text.split("\r\n")[2], "変換不可レコード数: 32,767件", "one less is no overflow");
found = convert(0, bad + "\x81\xA1c : d\r\n", ["OK", "OK"]);
check(found[1].text.split("\r\n")[2], "変換不可レコード数: 32,768件", "EIJIRO counts on");
check(rows(folder + "/3.mdb").length, 1, "to its end");

// The hundredth part of the lines.
const lines = "\n".repeat(3276800);
let seen;
for (const format of [0, 2, 4]) {
    found = convert(format, lines, ["OK", () => {
        seen = [state(form + "SourceLineCount"), caption(form + "StartButton"), enabled(form + "StartButton"), progress(form + "ProgressBar1").value];
        return "OK";
    }]);
    check(found.map(box => box.title), ["変換処理エラー", "変換処理未完了"], format + ": 3,276,800 lines are too many");
    check(numberOf(found[0]), 6, format + ": an overflow");
    check(isOpen("frmDataConv"), false, format + ": the dialog goes");
}
check(seen, [3276800, "キャンセル", false, 0], "before the run begins");
