// What stands behind the boxes that end a run before its first line, and where the dialog and the small window stand.
start();
const form = "frmDataConv.";
const folder = tempDir();
writeBytes(folder + "/empty.csv", "");
writeText(folder + "/odd.csv", "x\r\n".repeat(101));
const able = () => ["ConvDicLst", "SourceFile", "TargetFile", "sourceButton", "targetButton"].map(name => enabled(form + name));
const all = [true, true, true, true, true];
const none = [false, false, false, false, false];
const behind = () => [state("ConvStopFlag"), caption(form + "StartButton"), enabled("frmDataConv"), able(), isOpen("frmRecCount")];
let number = 0;
const run = (format, source, ...answers) => {
    menu("mnuCnv");
    choose(form + "ConvDicLst", format);
    answerFile(source);
    click(form + "sourceButton");
    answerFile(folder + "/" + ++number + ".mdb");
    click(form + "targetButton");
    ["はい", ...answers].forEach(word => answer(word));
    click(form + "StartButton");
    const found = boxes().filter(box => box.kind === "message").slice(1).map(box => box.title);
    if (isOpen("frmDataConv"))
        closeForm("frmDataConv");
    return found;
};
for (let format = 0; format < 5; ++format) {
    const name = format + ": ";
    let seen;
    const look = word => () => {
        seen = behind();
        return word;
    };
    check(run(format, folder + "/empty.csv", look("OK")), ["変換元ファイルにデータなし"], name + "no data");
    check(seen, [0, "キャンセル", format !== 0, none, false], name + "nothing is given back before that is read");
    check(run(format, folder + "/gone.csv", look("OK"), "OK"), ["データ変換異常終了", "Wordmere"], name + "a source that is gone");
    check(seen, [0, "キャンセル", format !== 0, none, true], name + "the small window stands behind the failure");
    check(run(format, folder + "/gone.csv", "OK", look("OK")), ["データ変換異常終了", "Wordmere"], name + "the second box");
    check(seen, [1, "スタート", format !== 0, none, false], name + "the run has ended by then, the controls come behind it");
}
let asked;
check(run(2, folder + "/odd.csv", () => {
    asked = behind();
    return "キャンセル";
}), ["変換元レコードの行数誤り"], "pairs of an odd number");
check(asked, [0, "キャンセル", true, none, false], "asked before anything is given back");

// The small window and the dialog stand in the same place.
const middle = name => {
    const place = bounds(name);
    return [place.left + place.width / 2, place.top + place.height / 2];
};
let places;
atYield(1, () => { places = [middle("frmDataConv"), middle("frmRecCount")]; });
run(1, folder + "/odd.csv", "キャンセル", "OK");
ok(places.length === 2 && [0, 1].every(i => Math.abs(places[0][i] - places[1][i]) <= 30), "both in the middle of the screen: " + JSON.stringify(places));
menu("mnuCnv");
check(able(), all, "a new dialog has its controls");
