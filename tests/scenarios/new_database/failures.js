// What goes wrong while the file is made goes to the default handling: nothing is left at the path, and the
// dialog can be used again.
const folder = tempDir();
const path = folder + "/new.mdb";
start();
menu("mnuFileCreate");

function fails(target, what) {
    setText("frmCreateDB.Text1", target);
    answer("OK");
    click("frmCreateDB.Command2");
    const [box, ...rest] = boxes();
    check([box.title, box.icon, box.buttons, rest], ["エラー", 16, ["OK"], []], what);
    check(text("frmCreateDB.Text1"), target, "the path stays in the box");
    check(isOpen("frmCreateDB"), true, "the dialog stays open");
    check(enabled("frmCreateDB"), true, "and takes input");
    check(enabled("frmFind"), false, "the main window still waits");
    check(pointer(), 0, "the pointer is the default one");
    return box.text;
}

for (const [step, number] of [["Create", -2147467259], ["Append", 61], ["Open", -2147467259], ["Item", 3265]]) {
    failNext(step, number);
    ok(fails(drivePath(path), step + " fails").startsWith("エラー番号 " + (number < 0 ? "" : " ") + number + " "),
        "the number is told");
    check(exists(path), false, "nothing is left");
}

fails("Q:\\dic\\new.mdb", "a drive that is missing");
fails(drivePath(folder) + "\\missing\\new.mdb", "a folder that is missing");
mkdir(folder + "/folder.mdb");
fails(drivePath(folder) + "\\folder.mdb", "a folder of that name");
check(exists(folder + "/folder.mdb"), true, "the folder stays");

mkdir(folder + "/locked");
makeReadOnly(folder + "/locked");
fails(drivePath(folder) + "\\locked\\new.mdb", "a folder that may not be written");
check(exists(folder + "/locked/new.mdb"), false, "nothing is made in it");

setText("frmCreateDB.Text1", drivePath(path));
answer("OK");
click("frmCreateDB.Command2");
check(boxes().map(box => box.title), ["新規辞書データベースファイルの作成完了"], "then it works");
check(rows(path), [], "and is whole");
click("frmCreateDB.Command3");
check(enabled("frmFind"), true, "the main window is given back");
