// Files that are there and cannot be read: told, the values stay at their start, and no file is lost for it.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["pond", null, 1, "池", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}, {name: "二", path: dictionary}]);
start();
exit();
const files = ["FontDefi.dat", "sscDefi.dat", "ListDefi.dat", "lexicons.dat", "AgentDefi.dat"];
const whole = files.map(file => readBytes(appFile(file)));
const restore = () => files.forEach((file, i) => writeBytes(appFile(file), whole[i]));

const startWithoutReading = (what, number, description) => {
    failNext("read", number);
    answer("OK");
    start();
    check(boxes().map(box => [box.title, box.text]),
        [["エラー", "エラー番号  " + number + " Wordmere でエラーが発生しました。\r" + description]], what);
    check(visible("frmFind"), true, "the window appears");
};
const failures = [[57, "デバイス I/O エラーです。"], [70, "書き込みできません。"]];

for (const [number, description] of failures) {
    startWithoutReading("the fonts", number, description);
    check(state("FontSizes"), [9, 9, 9, 9, 9, 9, 9, 9, 9], "every slot has its default");
    check(fontOf("frmFind.List1").name, "ＭＳ Ｐゴシック", "and the controls use it");
    check(text("frmFind.Combo1"), "英和", "the catalogue is read");
    exit();
    check(files.map(file => readBytes(appFile(file))), whole, "all files are as they were");

    remove(appFile("FontDefi.dat"));
    startWithoutReading("the sizes of the lists", number, description);
    check([state("IncListCount"), state("WordBookMax")], [50, 300], "the initial values");
    check(text("frmFind.Combo1"), "英和", "the catalogue is read");
    exit();
    check(files.map(file => readBytes(appFile(file))), whole, "all files are as they were");

    // Without fonts to read and with nothing in the sizes, the catalogue comes first.
    remove(appFile("FontDefi.dat"));
    writeBytes(appFile("ListDefi.dat"), "");
    startWithoutReading("the catalogue", number, description);
    check(state("Lexicons"), null, "no catalogue");
    check([state("CatalogueFlag1"), state("CatalogueFlag2")], [0, 0], "both flags");
    check(items("frmFind.Combo1"), [], "nothing to choose");
    exit();
    check(readBytes(appFile("lexicons.dat")), whole[3], "and the end does not write over it");
    restore();

    remove(appFile("FontDefi.dat"));
    writeBytes(appFile("ListDefi.dat"), "");
    writeBytes(appFile("lexicons.dat"), "");
    startWithoutReading("the character", number, description);
    check([state("SpeechEnabled"), state("CharacterFile")], [0, ""], "no character");
    check(state("HtmlHeaderLines").length, 9, "the header is read");
    exit();
    check(readBytes(appFile("AgentDefi.dat")), whole[4], "its file is as it was");
    restore();
}

start();
check(boxes(), [], "the next start has nothing to tell");
check(items("frmFind.Combo1"), ["英和", "二"], "and everything is back");
