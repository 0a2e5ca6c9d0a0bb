// The log is opened for each record: taken away in the midst of a run it is made anew, made read-only it ends the run.
start();
const form = "frmDataConv.";
const folder = tempDir();
writeText(folder + "/s.txt", "bad\r\n".repeat(20));
let number = 0;
const run = (...answers) => {
    menu("mnuCnv");
    choose(form + "ConvDicLst", 1);
    answerFile(folder + "/s.txt"); click(form + "sourceButton");
    answerFile(folder + "/" + ++number + ".mdb"); click(form + "targetButton");
    boxes();
    ["はい", ...answers].forEach(word => answer(word));
    click(form + "StartButton");
    return boxes().slice(1);
};
atYield(20 + 5, () => remove(appFile("ConvErr.log")));
const found = run("OK");
ok(found[0].text.includes("ConvErr.log へ保存されました。"), "the report says that the records were kept");
check(exists(appFile("ConvErr.log")), true, "it is there again, with the records behind");
atYield(20 + 5, () => makeReadOnly(appFile("ConvErr.log")));
check(run("OK", "OK").map(box => box.title), ["変換処理エラー", "変換処理未完了"], "a log that may not be written ends the run");
