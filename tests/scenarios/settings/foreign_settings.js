// Settings files that hold anything at all: the window comes, what is wrong is told, and no file is written over.
let seed = 20;
const random = limit => {
    seed = (seed * 1103515245 + 12345) % 0x80000000;
    return Math.floor(seed / 256) % limit;
};
const common = [0, 32, 255, 0x2d, 0x30, 0x39, 0x26, 13, 10, 0x82];
const bytes = length => Array.from({length}, () =>
    String.fromCharCode(random(4) === 0 ? random(256) : common[random(common.length)])).join("");
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["moss", null, 1, "苔", null], ["most", null, 1, "大抵", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const catalogue = readBytes(appFile("lexicons.dat"));
const sizes = {"FontDefi.dat": 396, "sscDefi.dat": 900, "ListDefi.dat": 22, "AgentDefi.dat": 306, "favorite.dat": 600};
const usual = [/^エラー$/, /^キャラクタ ファイルの誤り$/, /^設定辞書「[^]*」の辞書データベースなし$/];

let told;
const hear = box => {
    told.push(box.title);
    answer(hear);
    return "OK";
};
answer(hear);

for (let round = 1; round <= 40; ++round) {
    const written = {};
    for (const file of Object.keys(sizes)) {
        written[file] = bytes(random(2) === 0 ? sizes[file] : random(2 * sizes[file]));
        writeBytes(appFile(file), written[file]);
    }
    const tail = bytes(random(900));
    writeBytes(appFile("lexicons.dat"), catalogue + tail);
    told = [];
    start();
    const wrong = [];
    if (!visible("frmFind") || status() !== "Ready")
        wrong.push("no window");
    if (state("CurrentDicPath") !== drivePath(dictionary))
        wrong.push("another dictionary");
    if (state("IncListCount") > 1) {
        setText("frmFind.txtFind", "mo");
        if (state("SearchTarget") < 2 && items("frmFind.List1")[0] !== "moss")
            wrong.push("nothing found");
    }
    if (!told.every(title => usual.some(pattern => pattern.test(title))))
        wrong.push("told " + told);
    exit();
    boxes();
    for (const file of Object.keys(sizes))
        if (readBytes(appFile(file)) !== written[file])
            wrong.push(file + " is written over");
    if (size(appFile("lexicons.dat")) !== 309 * (1 + Math.floor(tail.length / 309 + 0.5)) ||
        !readBytes(appFile("lexicons.dat")).startsWith(catalogue))
        wrong.push("the catalogue is damaged");
    check(wrong, [], "round " + round);
}
