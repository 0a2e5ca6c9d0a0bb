// Questions that follow each other, what is looked at without a backup, the free space to the byte, a temporary file in the way.
const folder = tempDir(), drive = drivePath(folder) + "\\";
const dictionary = folder + "/two.parts.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null], ["fire", null, 1, "火", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const temporary = tempFolder() + "TemporaryDBBackupFile.mdb";
menu("mnuCompress");
const run = (...answers) => {
    answers.forEach(one => answer(one));
    click("frmDBCompress.Command2");
    return boxes();
};
const titles = shown => shown.map(box => box.title);
const withoutBackup = "バックアップファイル作成確認", otherExtension = "異なったファイル拡張子";

click("frmDBCompress.Check1");
check(titles(run("OK", "OK")), [withoutBackup, "バックアップ用データベースファイル名なし"], "the question comes before all checks");
press("frmDBCompress.Combo1", "Down");
check([selectedRow("frmDBCompress.Combo1"), checked("frmDBCompress.Check1"), text("frmDBCompress.Text1")],
      [0, false, drive + "BKUP_two.parts.mdb"], "the arrow keys choose too");

answerFile(folder + "/saved.mdb 　");
click("frmDBCompress.Command1");
boxes();
check(text("frmDBCompress.Text1"), drive + "saved.mdb", "what the box answers is trimmed");

setText("frmDBCompress.Text1", "Q:\\backup.txt");
check(titles(run("OK", "OK")), [otherExtension, "ドライブ名の不正"], "the extension is asked for before the drive is missed");
check(text("frmDBCompress.Text1"), "Q:\\backup.MDB", "and replaced by then");

freeSpace(0);
setText("frmDBCompress.Text1", drive + "old.");
check(titles(run("いいえ", "OK", "OK")), ["ファイル拡張子なし", otherExtension, "ドライブの空き容量不足"],
      "no extension, but then the usual one; then the space");
check(text("frmDBCompress.Text1"), drive + "old.MDB", "the field has it");

// Exactly enough space; the form in the middle of the screen (800 by 800 pixels), whatever its size.
const middle = () => {
    const {left, top, width, height} = bounds("frmDBCompress");
    return [left + width / 2, top + height / 2].every(at => Math.abs(at - 6000) <= 60);
};
let progress = null;
atYield(1, () => progress = [middle(), text("frmDBCompress.Label4")]);
freeSpace(size(dictionary));
check(titles(run("OK")), ["最適化完了"], "as much space as the file is long is enough");
check(progress, [true, "データベース「two.parts.mdb」の最適化処理中です。"], "the progress layout: centred, with the name up to its last period");
ok(exists(folder + "/old.MDB"), "the backup bears the name that was settled");

// Without a backup neither space nor drive of the backup matter.
freeSpace(0);
setText("frmDBCompress.Text1", "Q:\\none\\backup.mdb");
click("frmDBCompress.Check1");
const before = size(dictionary);
const [, report] = run("OK", "OK");
const grouped = number => String(number).replace(/(\d)(?=(\d{3})+$)/g, "$1,");
check(report.text, "データベースの最適化は無事完了しました。\r\n\r\n最適化前のファイルのサイズ： " + grouped(before) +
    " バイト\r\n最適化後のファイルのサイズ： " + grouped(size(dictionary)) + " バイト", "without a backup, both sizes are told");
click("frmDBCompress.Check1");

// The temporary file of an earlier run cannot be deleted.
freeSpace(undefined);
setText("frmDBCompress.Text1", drive + "c.mdb");
writeBytes(temporary, "left");
const untouched = readBytes(dictionary);
failNext("delete", 70);
const [box] = run("OK");
check([box.title, box.text], ["エラー", "エラー番号  70 Wordmere でエラーが発生しました。\r書き込みできません。"], "that ends the run");
check([readBytes(dictionary) === untouched, exists(folder + "/c.mdb"), readBytes(temporary)], [true, false, "left"], "before anything else");
check([state("frmDBCompress.IsOptimizing"), pointer(), visible("frmDBCompress.Command2"), enabled("frmFind")], [0, 0, true, false], "at rest");
closeForm("frmDBCompress");
