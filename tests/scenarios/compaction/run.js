// A run: what happens in which order, with a backup and without, and what the files hold afterwards.
const folder = tempDir();
const dictionary = folder + "/words.mdb", backup = folder + "/BKUP_words.mdb";
const temporary = () => tempFolder() + "TemporaryDBBackupFile.mdb";
const many = [];
for (let i = 0; i < 600; ++i)
    many.push(["word " + i, i % 2 ? "wərd" : null, 2, "意味 " + i + " " + "あ".repeat(60), i % 10 ? null : "用例 " + i]);
makeDictionary(dictionary, many);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
for (let id = 1; id <= 600; ++id)
    if (id % 20)
        deleteRow(dictionary, id);
const rowsBefore = rows(dictionary), bytesBefore = readBytes(dictionary), sizeBefore = size(dictionary);
check(rowsBefore.length, 30, "thirty rows are left");

typeText("frmFind.txtFind", "word");
menu("mnuCompress");
const normal = bounds("frmDBCompress");
choose("frmDBCompress.Combo1", 0);
writeBytes(temporary(), "left by a run that ended early");
let seen = null;
atYield(1, () => {
    const shown = name => visible("frmDBCompress." + name);
    seen = {
        size: [bounds("frmDBCompress").width, bounds("frmDBCompress").height],
        hidden: ["Combo1", "Text1", "Check1", "Command1", "Command2", "Command3", "Label1", "Label2", "Label3"].filter(shown),
        lines: [text("frmDBCompress.Label4"), text("frmDBCompress.Label5")],
        lineShown: [shown("Label4"), shown("Label5")],
        optimizing: state("frmDBCompress.IsOptimizing"),
        database: readBytes(dictionary) === bytesBefore,
    };
});
let atReport = null;
answer(() => {
    atReport = [visible("frmDBCompress"), pointer(), state("frmDBCompress.IsOptimizing"), exists(temporary()),
                readBytes(backup) === bytesBefore, enabled("frmFind")];
    return "OK";
});
click("frmDBCompress.Command2");
check(seen, {
    size: [4800, 1500],
    hidden: [],
    lines: ["データベース「words.mdb」の最適化処理中です。", "しばらくお待ちください．．．"],
    lineShown: [true, true],
    optimizing: 0,
    database: true,
}, "the progress layout is painted before the work begins");
check(atReport, [false, 0, 0, false, true, false], "at the report the work is done and the form hidden");
const grouped = number => String(number).replace(/(\d)(?=(\d{3})+$)/g, "$1,");
const [report] = boxes();
check([report.title, report.text], ["最適化完了", "データベースの最適化は無事完了しました。\r\n\r\n最適化前のファイルのサイズ： " +
    grouped(sizeBefore) + " バイト\r\n最適化後のファイルのサイズ： " + grouped(size(dictionary)) + " バイト"], "the report");
check([report.icon, report.beep, report.buttons], [48, 64, ["OK"]], "icon, beep, button");
check([visible("frmDBCompress"), visible("frmDBCompress.Command2"), visible("frmDBCompress.Label4")], [true, true, false],
      "the dialog stands as before");
check(focused(), "frmDBCompress.Command3", "ready to be closed");
check([bounds("frmDBCompress").width, bounds("frmDBCompress").height], [normal.width, normal.height], "in its size");
check([text("frmDBCompress.Label4"), text("frmDBCompress.Label5"), state("frmDBCompress.IsOptimizing")], ["", "", 0], "at rest");
check([pointer(), enabled("frmFind")], [0, false], "the pointer is the default one, the main window waits");
check(rows(dictionary), rowsBefore, "every row is there, with its number");
ok(size(dictionary) < sizeBefore / 2, "the file is smaller");
check(readBytes(backup), bytesBefore, "the backup is the old file");
check(items("frmFind.List1").length, 30, "nothing of the main window has changed");

// A second run needs another name, or goes without a backup.
answer("OK");
click("frmDBCompress.Command2");
check(boxes().map(box => box.title), ["データベースファイル名の重複"], "the backup exists");
click("frmDBCompress.Check1");
answer("OK");
answer("OK");
click("frmDBCompress.Command2");
check(boxes().map(box => box.title), ["バックアップファイル作成確認", "最適化完了"], "without a backup");
check(rows(dictionary), rowsBefore, "the rows are there");
check(readBytes(backup), bytesBefore, "the old backup is not touched");
check(exists(temporary()), false, "the temporary file is gone");
click("frmDBCompress.Command3");
check(enabled("frmFind"), true, "the main window takes input");
setText("frmFind.txtFind", "word 99");
check(items("frmFind.List1")[0], "word 99", "and searches the new file");
makeDictionary(folder + "/other.mdb", []);
check(rows(dictionary).length, 30, "the dictionary stands");
check(boxes(), [], "no other box");
