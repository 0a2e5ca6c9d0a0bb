// Sources and targets that are not what they should be.
start();
const form = "frmDataConv.";
const folder = tempDir();
const log = () => readBytes(appFile("ConvErr.log"));
let number = 0;
const target = () => folder + "/" + number + ".mdb";
const convert = (format, source, path, answers) => {
    if (!isOpen("frmDataConv"))
        menu("mnuCnv");
    choose(form + "ConvDicLst", format);
    answerFile(source);
    click(form + "sourceButton");
    answerFile(path);
    click(form + "targetButton");
    boxes();
    ["はい", ...answers].forEach(word => answer(word));
    click(form + "StartButton");
    return boxes().slice(1);
};
const run = (format, bytes, answers) => {
    ++number;
    writeBytes(folder + "/s.csv", bytes);
    return convert(format, folder + "/s.csv", target(), answers);
};
const stored = () => rows(target()).sort((a, b) => a.AutoID - b.AutoID).map(row => [row.Word, row.Description]);
const numberOf = box => Number(box.text.match(/エラー番号: (-?\d+)\r\n/)[1]);
const utf8 = text => unescape(encodeURIComponent(text));
const utf16 = (text, big) => Array.from({length: text.length}, (_, i) => {
    const code = text.charCodeAt(i);
    const [high, low] = [String.fromCharCode(code >> 8), String.fromCharCode(code & 255)];
    return big ? high + low : low + high;
}).join("");
const content = "■café : 喫茶店\r\n bad é \r\n■二 : 2\r\n";

// Encodings: the mark decides; the log is written as the source is.
let found = run(0, "\xEF\xBB\xBF" + utf8(content), ["OK"]);
check(stored(), [["café", "喫茶店"], ["二", "2"]], "UTF-8 with its mark");
check(log(), utf8(" bad é \r\n"), "its log");
run(0, "\xFF\xFE" + utf16(content, false), ["OK"]);
check(stored(), [["café", "喫茶店"], ["二", "2"]], "UTF-16 little-endian");
check(log(), utf16(" bad é \r\n", false), "its log");
run(0, "\xFE\xFF" + utf16(content, true), ["OK"]);
check(stored(), [["café", "喫茶店"], ["二", "2"]], "UTF-16 big-endian");
check(log(), utf16(" bad é \r\n", true), "its log");
run(3, "\xEF\xBB\xBF" + utf8("　bad é \r\n"), ["OK"]);
check(log(), utf8("bad é\r\n"), "trimmed in UTF-8");
found = run(0, utf8(content), ["OK"]);
check(found[0].title, "変換処理終了", "UTF-8 without a mark is read as Shift_JIS");
check(log(), utf8(content), "and all of it is rejected, byte for byte");

// Bytes that are no text.
run(0, "\x81\xA1a\xFD : \x82\xA0\xFF\r\n\xFDbad\x81\r\n\x81\r\n", ["OK"]);
check(stored(), [["a・", "あ・"]], "undecodable bytes do not stop a run");
check(log(), "\xFDbad\x81\r\n\x81\r\n", "and stay as they were in the log, a lead byte at the end of a line too");
run(3, " \x81@\xFDbad\x83\x81@\r\n", ["OK"]);
check(log(), "\xFDbad\x83\x81@\r\n", "trimmed by characters, not by bytes");
run(1, "a\x00b /// c\x00d\r\nbad\x00\r\n", ["OK"]);
check(stored(), [["a\0b", "c\0d"]], "NUL bytes end nothing");
check(log(), "bad\x00\r\n", "in the log either");

// Line ends, and a last line without one.
run(1, "a /// 1\nb /// 2\rc /// 3\r\nd /// 4", ["OK"]);
check(stored(), [["a", "1"], ["b", "2"], ["c", "3"], ["d", "4"]], "LF, CR, CR LF and none");
run(1, "\r\n\n\r", ["OK"]);
check(log(), "\r\n\r\n\r\n", "empty lines are lines");
found = run(1, "\xEF\xBB\xBF", ["OK"]);
check(found[0].title, "変換元ファイルにデータなし", "a mark alone is no line");

// A long line.
const long = "x".repeat(3000000);
run(1, long + " /// y\r\n" + long + "\r\nlast /// z\r\n", ["OK"]);
check(stored(), [["x".repeat(255), "y"], ["last", "z"]], "long lines are lines like others");
check(log().length, 3000002, "and kept whole when they are bad");

// A binary.
let binary = "";
for (let i = 0; i < 20000; ++i)
    binary += String.fromCharCode((i * 7919 + (i >> 3) * 31) & 255);
found = run(0, binary, ["OK", "OK"]);
check(found[found.length - 1].title, "変換処理終了", "a binary runs to its end");
check(stored(), [], "without a row");

// Files that are one and the same.
makeDictionary(folder + "/same.mdb", [["a", null, 1, "b", null]]);
const before = readBytes(folder + "/same.mdb");
for (const format of [0, 2]) {
    found = convert(format, folder + "/same.mdb", folder + "/same.mdb", ["はい", "OK", "OK"]);
    const failure = found.filter(box => box.title === "変換処理エラー")[0];
    ok(failure.text.endsWith("変換元と変換先に同じファイルが指定されています。"), format + ": source and target are the same");
    check(readBytes(folder + "/same.mdb") === before, true, format + ": it is left as it was");
}
run(1, "rejected\r\n", ["OK"]);
found = convert(1, appFile("ConvErr.log"), folder + "/again.mdb", ["OK", "OK"]);
ok(found[0].text.endsWith("変換元のファイルは変換不可レコードの保存先です。ファイル名を変更してから変換してください。"), "the log itself as the source");
check(log(), "rejected\r\n", "is not emptied");

// Targets.
writeBytes(folder + "/s.csv", "a /// b\r\n");
const failing = (path, answers, what) => {
    const boxesSeen = convert(1, folder + "/s.csv", path, [...answers, "OK", "OK"]).filter(box => box.title !== "データベースファイルあり");
    check(boxesSeen.map(box => box.title), ["変換処理エラー", "変換処理未完了"], what);
    check([isOpen("frmDataConv"), enabled("frmFind")], [false, true], what + ": the dialog goes");
    return numberOf(boxesSeen[0]);
};
mkdir(folder + "/folder.mdb");
check(failing(folder + "/folder.mdb", [], "a folder"), -2147467259, "a folder: its number");
writeBytes(folder + "/foreign.mdb", "Standard Jet DB".repeat(3000));
const foreign = readBytes(folder + "/foreign.mdb");
check(failing(folder + "/foreign.mdb", ["はい"], "a foreign file"), -2147467259, "a foreign file: its number");
check(readBytes(folder + "/foreign.mdb") === foreign, true, "a foreign file is left as it was");
writeBytes(folder + "/empty.mdb", "");
check(failing(folder + "/empty.mdb", ["はい"], "an empty file"), -2147467259, "an empty file: its number");
makeDictionary(folder + "/locked.mdb", [["a", null, 1, "b", null]]);
makeReadOnly(folder + "/locked.mdb");
check(failing(folder + "/locked.mdb", ["はい"], "a read-only dictionary"), 70, "a read-only dictionary: its number");
check(rows(folder + "/locked.mdb").length, 1, "a read-only dictionary stays");
check(failing(folder + "/none/a.mdb", [], "no such folder"), -2147467259, "no such folder: its number");
mkdir(folder + "/closed");
makeReadOnly(folder + "/closed");
check(failing(folder + "/closed/a.mdb", [], "a read-only folder"), -2147467259, "a read-only folder: its number");
menu("mnuCnv");
answerFile(folder + "/s.csv");
click(form + "sourceButton");
setText(form + "TargetFile", "C:\\dic\\a.mdb");
["はい", "OK", "OK"].forEach(word => answer(word));
choose(form + "ConvDicLst", 1);
click(form + "StartButton");
check(numberOf(boxes().filter(box => box.title === "変換処理エラー")[0]), 76, "a drive that is not there");

// A source that changes meanwhile.
const lines = (from, count) => Array.from({length: count}, (_, i) => "w" + (from + i) + " /// m\r\n").join("");
++number;
writeBytes(folder + "/growing.csv", lines(0, 300));
let top;
atYield(300 + 100, () => writeBytes(folder + "/growing.csv", lines(0, 20000)));
atYield(300 + 350, () => { top = [progress(form + "ProgressBar1"), caption(form + "Label1")]; });
found = convert(1, folder + "/growing.csv", target(), ["OK"]);
check(found[0].title, "変換処理終了", "a source that grows");
check(top, [{min: 0, max: 300, value: 300}, "100%"], "the progress stays at its end");
check(rows(target()).length, 20000, "all its lines are converted");
++number;
writeBytes(folder + "/shrinking.csv", lines(0, 20000));
atYield(20000 + 10, () => writeBytes(folder + "/shrinking.csv", lines(0, 5)));
found = convert(1, folder + "/shrinking.csv", target(), ["OK"]);
check(found[0].title, "変換処理終了", "a source that shrinks");
ok(rows(target()).length >= 10, "gives what was read");
++number;
writeBytes(folder + "/going.csv", lines(0, 300));
atYield(300, () => remove(folder + "/going.csv"));
found = convert(1, folder + "/going.csv", target(), ["OK", "OK"]);
check([found[0].title, numberOf(found[0])], ["変換処理エラー", 53], "a source that goes before the first line is read");
++number;
writeBytes(folder + "/going.csv", lines(0, 300));
atYield(300 + 5, () => remove(folder + "/going.csv"));
found = convert(1, folder + "/going.csv", target(), ["OK"]);
check(rows(target()).length, 300, "one that goes later is read to its end");
