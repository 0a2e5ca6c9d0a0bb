// Files that went, were replaced, are no dictionaries or cannot be written; an empty one; one that changes meanwhile.
const folder = tempDir();
const path = name => folder + "/" + name + ".mdb";
makeDictionary(path("a"), [["ice", null, 1, "氷", null]]);
makeDictionary(path("empty"), []);
writeBytes(path("text"), "no dictionary");
writeBytes(path("none"), "");
makeDictionary(path("locked"), [["lock", null, 1, "錠", null]]);
makeReadOnly(path("locked"));
const names = ["a", "empty", "text", "none", "locked"];
setCatalogue(names.map(name => ({name: name, path: path(name), selected: name === "a"})));
start();
const temporary = tempFolder() + "TemporaryDBBackupFile.mdb";
menu("mnuCompress");
const run = (name, ...answers) => {
    choose("frmDBCompress.Combo1", names.indexOf(name));
    answers.forEach(one => answer(one));
    click("frmDBCompress.Command2");
    const told = boxes().map(box => [box.title, box.text]);
    check([state("frmDBCompress.IsOptimizing"), pointer(), visible("frmDBCompress.Command2"), exists(temporary)],
          [0, 0, true, false], name + ": at rest, without a trace");
    return told;
};

check(run("empty", "OK")[0][0], "最適化完了", "an empty database can be compacted");
check(rows(path("empty")), [], "and stays empty");
ok(exists(folder + "/BKUP_empty.mdb"), "with its backup");
for (const name of ["text", "none"]) {
    const before = readBytes(path(name));
    const [[title, text]] = run(name, "OK");
    check(title, "エラー", name + " is no dictionary");
    ok(text.startsWith("エラー番号 -2147467259 JRO.JetEngine でエラーが発生しました。\r"), "as the engine says: " + text);
    check([readBytes(path(name)) === before, exists(folder + "/BKUP_" + name + ".mdb")], [true, false], "it is untouched");
}
const locked = readBytes(path("locked"));
check(run("locked", "OK"), [["エラー", "エラー番号  70 Wordmere でエラーが発生しました。\r書き込みできません。"]],
      "one that cannot be written is told of before the work");
check([readBytes(path("locked")) === locked, exists(folder + "/BKUP_locked.mdb")], [true, false], "and untouched");

// Another program changes the file while its backup is copied.
const many = [];
for (let i = 0; i < 60000; ++i)
    many.push(["word " + i, null, 2, "意味 " + i + "あ".repeat(700), null]);
makeDictionary(path("a"), many);
let changed = false;
// The first yield is the progress layout's.
atYield(2, () => {
    makeDictionary(path("a"), [["changed", null, 1, "変更", null]]);
    changed = true;
});
const [[title, text]] = run("a", "OK");
check(changed, true, "the file was replaced meanwhile");
check(title, "エラー", "that is told");
check(text, "エラー番号 -2147467259 JRO.JetEngine でエラーが発生しました。\r" +
    "最適化の間に辞書データベースが他のプログラムによって変更されました。", "as what it is");
check(rows(path("a")).map(row => row.Word), ["changed"], "and what was written stays");

// It goes while the dialog is open.
remove(path("a"));
check(run("a", "OK")[0][0], "最適化ファイルなし", "a file that went");
closeForm("frmDBCompress");
