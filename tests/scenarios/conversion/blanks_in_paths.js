// Blanks at the ends of paths: the target is taken as it was typed, what the file boxes give is trimmed.
start();
const form = "frmDataConv.";
const folder = tempDir();
const there = drivePath(folder);
writeText(folder + "/a.txt", "■a : b\r\n");
menu("mnuCnv");
answerFile(folder + "/a.txt ");
click(form + "sourceButton");
check(text(form + "SourceFile"), there + "\\a.txt", "the source is trimmed");
answerFile(folder + "/a.mdb 　");
click(form + "targetButton");
check(text(form + "TargetFile"), there + "\\a.mdb", "the target of the box too");
boxes();
const attempt = (target, ...answers) => {
    setText(form + "TargetFile", target);
    ["はい", ...answers].forEach(word => answer(word));
    click(form + "StartButton");
    return boxes().slice(1);
};
check(attempt("  ", "OK").map(box => box.title), ["ピリオドなし"], "blanks are a name");
check(attempt(" " + there + "\\a.mdb", "OK").map(box => box.title), ["ドライブ名なし"], "a blank in front hides the drive");
for (const [typed, shown] of [["\\a.mdb ", "MDB "], ["\\a. ", " "], ["\\a.mdb　", "MDB　"]]) {
    const found = attempt(there + typed, "キャンセル");
    check(found.map(box => box.title), ["ファイル拡張子の誤り"], JSON.stringify(typed) + ": the blank belongs to the extension");
    ok(found[0].text.includes("拡張子が「" + shown + "」では"), JSON.stringify(typed) + ": as it is told");
    check(text(form + "TargetFile"), there + typed, JSON.stringify(typed) + ": the box keeps it");
}
check(attempt(there + "\\a.mdb ", "OK", "OK").map(box => box.title), ["ファイル拡張子の誤り", "変換処理終了"], "OK replaces it");
check(rows(folder + "/a.MDB").length, 1, "by the extension in capitals");
check(exists(folder + "/a.mdb"), false, "and makes no other");

// The new dictionary's box.
menu("mnuFileCreate");
answerFile(folder + "/new.mdb ");
click("frmCreateDB.Command1");
const [box] = boxes();
check(box.defaultText, "", "the file box opens without a name");
check(text("frmCreateDB.Text1"), there + "\\new.mdb", "the path is trimmed");
const create = (path, ...answers) => {
    setText("frmCreateDB.Text1", path);
    answers.forEach(word => answer(word));
    click("frmCreateDB.Command2");
    return boxes().map(shown => shown.title);
};
check(create("  " + there + "\\dotted. 　", "はい", "OK"), ["ファイル拡張子なし", "新規辞書データベースファイルの作成完了"], "no extension behind the blanks");
check(exists(folder + "/dotted.mdb"), true, "the file has no blanks");
check(create("  " + there + "\\other.txt ", "OK", "OK"), ["ファイル拡張子の誤り", "新規辞書データベースファイルの作成完了"], "another extension within blanks");
check(exists(folder + "/other.MDB"), true, "the file has none either");
