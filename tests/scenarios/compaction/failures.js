// A failure at any step leaves the database untouched, the dialog in its normal layout and nothing under way.
const folder = tempDir();
const dictionary = folder + "/words.mdb", backup = folder + "/BKUP_words.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null], ["fire", "faiər", 1, "火", "fire and ice"]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const untouched = readBytes(dictionary), rowsBefore = rows(dictionary);
const temporary = tempFolder() + "TemporaryDBBackupFile.mdb";
menu("mnuCompress");
choose("frmDBCompress.Combo1", 0);

const fails = (what, text, prepare) => {
    prepare();
    answer("OK");
    click("frmDBCompress.Command2");
    const [box] = boxes();
    check([box.title, box.text], ["エラー", text], what + ": the box");
    check([box.icon, box.buttons], [16, ["OK"]], what + ": icon and button");
    check([state("frmDBCompress.IsOptimizing"), pointer()], [0, 0], what + ": nothing is under way");
    check([visible("frmDBCompress"), visible("frmDBCompress.Command2"), visible("frmDBCompress.Label4")], [true, true, false],
          what + ": the normal layout");
    check(focused(), "frmDBCompress.Command2", what + ": ready to be started again");
    check([bounds("frmDBCompress").width, enabled("frmFind")], [7500, false], what + ": in its size");
    check(readBytes(dictionary), untouched, what + ": the database is untouched");
    check(exists(temporary), false, what + ": no temporary file stays");
};
const ours = (number, text) => "エラー番号  " + number + " Wordmere でエラーが発生しました。\r" + text;
fails("the compaction", "エラー番号  61 JRO.JetEngine でエラーが発生しました。\rディスクの空き容量が不足しています。",
      () => failNext("CompactDatabase", 61));
check(exists(backup), false, "no backup yet");
fails("the copy", ours(61, "ディスクの空き容量が不足しています。"), () => failNext("copy", 61));
check(exists(backup), false, "no backup");
fails("the deletion", ours(70, "書き込みできません。"), () => failNext("delete", 70));
check(readBytes(backup), untouched, "the backup stands");
remove(backup);
fails("the renaming", ours(70, "書き込みできません。"), () => failNext("rename", 70));
remove(backup);
fails("a backup in a folder that is missing", ours(76, "パスが見つかりません。"),
      () => setText("frmDBCompress.Text1", drivePath(folder + "/none/b.mdb")));
setText("frmDBCompress.Text1", drivePath(backup));

// Equal but for the case: on a machine that tells the cases apart, two files.
setText("frmDBCompress.Text1", drivePath(folder + "/WORDS.mdb"));
answer("OK");
click("frmDBCompress.Command2");
check(boxes().map(box => box.title), ["最適化完了"], "paths that differ in case alone pass");
check(rows(dictionary), rowsBefore, "the rows are there");
check(readBytes(folder + "/WORDS.mdb"), untouched, "so is the backup");

// The same without a backup.
click("frmDBCompress.Check1");
failNext("rename", 70);
answer("OK");
answer("OK");
const compacted = readBytes(dictionary);
click("frmDBCompress.Command2");
check(boxes().map(box => box.title), ["バックアップファイル作成確認", "エラー"], "the renaming fails");
check(readBytes(dictionary), compacted, "the database is untouched");
check([state("frmDBCompress.IsOptimizing"), visible("frmDBCompress.Command2")], [0, true], "the dialog is at rest");
closeForm("frmDBCompress");
check(enabled("frmFind"), true, "and closes");
