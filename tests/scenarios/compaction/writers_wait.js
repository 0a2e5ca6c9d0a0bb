// Nobody writes to the dictionary before its copy is whole.
const folder = tempDir(), dictionary = folder + "/words.mdb";
const many = [];
for (let i = 0; i < 60000; ++i)
    many.push(["word " + i, null, 2, "意味 " + i + "あ".repeat(700), null]);
makeDictionary(dictionary, many);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
menu("mnuCompress");
choose("frmDBCompress.Combo1", 0);
let told = "";
// The first yield is the progress layout's.
atYield(2, () => {
    try {
        deleteRow(dictionary, 1);
    } catch (failure) {
        told = String(failure);
    }
});
answer("OK");
click("frmDBCompress.Command2");
ok(told.includes("辞書データベースは他のプログラムが使用中です。"), "a writer is told that the file is in use: " + told);
check(boxes().map(box => box.title), ["最適化完了"], "the run is none the worse");
check([rows(dictionary).length, rows(folder + "/BKUP_words.mdb").length], [60000, 60000], "every row is there, in the backup too");
check(exists(dictionary + "-journal"), false, "nothing is left beside it");
deleteRow(dictionary, 1);
check(rows(dictionary).length, 59999, "and then it can be written");
closeForm("frmDBCompress");
