// Every step of the start fails by itself: it is told, the steps behind it run, and the window always appears.
// A folder that stands in the place of a file fails its step and no other.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["rain", null, 1, "雨", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const catalogue = readBytes(appFile("lexicons.dat"));
start();
exit();

const badName = "エラー番号  52 Wordmere でエラーが発生しました。\rファイル名または番号が不正です。";
const startWith = (what, expected) => {
    expected.forEach(() => answer("OK"));
    start();
    const shown = boxes();
    check(shown.map(box => box.text), expected, what + ": what is told");
    check(shown.map(box => [box.title, box.icon]), expected.map(() => ["エラー", 16]), what + ": its look");
    check(visible("frmFind"), true, what + ": the window appears");
    check(caption("frmFind"), "Wordmere", what + ": with its title");
    check(status(), "Ready", what + ": and its status");
    check([state("SearchMode"), checked("mnuIncSrch")], [0, true], what + ": and its mode");
    check(enabled("frmFind"), true, what + ": it takes input");
    check(pointer(), 0, what + ": the pointer is the default one");
};

for (const [file, expected, values] of [
    ["FontDefi.dat", [badName], () => check(state("FontSizes"), [9, 9, 9, 9, 9, 9, 9, 9, 9], "the default fonts")],
    ["sscDefi.dat", [badName, badName], () => check(state("HtmlHeaderLines"), [], "no header")],
    ["ListDefi.dat", [badName], () => check(state("IncListCount"), 50, "the initial sizes")],
    ["lexicons.dat", [badName], () => check(state("Lexicons"), null, "no catalogue")],
    ["AgentDefi.dat", [badName], () => check(state("SpeechEnabled"), 0, "no character")],
    ["home.html", [badName], () => check(visible("frmFind.txtFind"), true, "the dictionary view")],
]) {
    const whole = readBytes(appFile(file));
    remove(appFile(file));
    mkdir(appFile(file));
    startWith(file, expected);
    values();
    if (state("Lexicons") !== null) {
        check(text("frmFind.Combo1"), "英和", file + ": the dictionary is chosen");
        check(state("TableFirstWord"), "rain", file + ": its table is read");
    }
    exit();
    remove(appFile(file));
    writeBytes(appFile(file), whole);
    check(readBytes(appFile("lexicons.dat")), catalogue, file + ": the catalogue is as it was");
}

// Reading that fails on the device.
failNext("read", 57);
startWith("the first read", ["エラー番号  57 Wordmere でエラーが発生しました。\rデバイス I/O エラーです。"]);
check(text("frmFind.Combo1"), "英和", "the steps behind it run");
exit();
for (const operation of ["Open", "MoveLast", "Value", "Close", "Index"]) {
    failNext(operation, 61);
    answer("OK");
    start();
    check(boxes().length, 1, operation + " of the dictionary fails");
    check(visible("frmFind"), true, "the window appears");
    check([state("CatalogueFlag1"), state("CurrentDicName")], [-1, "英和"], "the catalogue is loaded");
    check([state("ViewConnection"), state("SearchConnection")], [false, false], "nothing is held open");
    setText("frmFind.txtFind", "r");
    check(items("frmFind.List1"), ["rain"], "and the search works");
    exit();
}
