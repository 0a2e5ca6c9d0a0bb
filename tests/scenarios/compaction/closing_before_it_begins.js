// The window frame still closes while the progress layout is painted: nothing is done then.
const folder = tempDir(), dictionary = folder + "/words.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
menu("mnuCompress");
choose("frmDBCompress.Combo1", 0);
const untouched = readBytes(dictionary);
let during = null;
atYield(1, () => {
    during = [state("frmDBCompress.IsOptimizing"), visible("frmDBCompress.Label4")];
    closeForm("frmDBCompress");
    during.push(isOpen("frmDBCompress"));
});
click("frmDBCompress.Command2");
check(during, [0, true, false], "it closes");
check([boxes(), isOpen("frmDBCompress"), enabled("frmFind"), pointer()], [[], false, true, 0], "without a word");
check([readBytes(dictionary) === untouched, exists(folder + "/BKUP_words.mdb"), exists(tempFolder() + "TemporaryDBBackupFile.mdb")],
      [true, false, false], "no file was touched");
menu("mnuCompress");
check([visible("frmDBCompress.Combo1"), text("frmDBCompress.Text1")], [true, ""], "and opens again");
closeForm("frmDBCompress");
