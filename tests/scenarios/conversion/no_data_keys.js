// A source without data leaves the dialog of the first format disabled as a whole: neither keys nor buttons do anything,
// the frame closes it. The other formats leave it as it was.
start();
const form = "frmDataConv.";
const folder = tempDir();
writeBytes(folder + "/empty.csv", "");
for (let format = 0; format < 5; ++format) {
    menu("mnuCnv");
    choose(form + "ConvDicLst", format);
    answerFile(folder + "/empty.csv");
    click(form + "sourceButton");
    answerFile(folder + "/" + format + ".mdb");
    click(form + "targetButton");
    answer("はい");
    answer("OK");
    click(form + "StartButton");
    check(boxes().slice(-1)[0].title, "変換元ファイルにデータなし", format + ": no data");
    check(enabled("frmDataConv"), format !== 0, format + ": the dialog as a whole");
    press(form + "TargetFile", "Esc");
    check(isOpen("frmDataConv"), format === 0, format + ": Esc");
    if (format === 0) {
        click(form + "QuitButton");
        press(form + "TargetFile", "Enter");
        check([isOpen("frmDataConv"), boxes()], [true, []], "neither button does anything");
        closeForm("frmDataConv");
    }
    check([isOpen("frmDataConv"), enabled("frmFind")], [false, true], format + ": closed");
}
