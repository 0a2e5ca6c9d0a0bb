// The steps of the start come in their order: what a step that fails tells comes before the next one has begun.
const dictionary = tempDir() + "/words.mdb";
writeText(dictionary, "no dictionary");
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
for (const folder of ["FontDefi.dat", "sscDefi.dat", "home.html"])
    mkdir(appFile(folder));
writeText(appFile("ListDefi.dat"), "o5015050005001503002\r\n");
writeBytes(appFile("AgentDefi.dat"), "\x01default" + " ".repeat(248) + "none.acs" + " ".repeat(42));
remove(appFile("Help.HLP"));

const blue = 0xff0000;
const seen = [];
const look = box => {
    seen.push({
        title: box.title,
        number: (/^エラー番号 ( ?-?\d+) /.exec(box.text) || ["", ""])[1].trim(),
        dictionary: state("CurrentDicName"),
        width: bounds("frmFind").width,
        color: colorOf("frmFind.txtFind"),
        fresh: state("ListIsFresh"),
        mode: checked("mnuIncSrch"),
        status: status(),
        character: state("CharacterFile"),
        tip: toolTip("frmFind.Picture19"),
        left: state("SavedPicture17Left") > 0,
        shown: visible("frmFind"),
    });
    return "OK";
};
for (let i = 0; i < 8; ++i)
    answer(look);
start({screenWidth: 1920});
boxes();

const before = {dictionary: "", width: seen[0].width, color: seen[0].color, fresh: 0, mode: false, status: "", character: "",
    tip: seen[0].tip, left: false, shown: false};
const loaded = Object.assign({}, before, {dictionary: "英和"});
const laidOut = Object.assign({}, loaded, {width: 12000, color: blue, fresh: 1, mode: true, status: "Ready"});
const spoken = Object.assign({}, laidOut, {character: "none.acs"});
const told = Object.assign({}, spoken, {tip: "見出し語内容を15件前へ移動", left: true});
const step = (title, number, facts) => Object.assign({title, number}, facts);
ok(before.width !== 12000 && before.color !== blue && before.tip !== told.tip, "the window is not as it will be");
[
    ["the fonts", step("エラー", "52", before)],
    ["the style", step("エラー", "52", before)],
    ["the sizes of the lists", step("エラー", "13", before)],
    ["the catalogue and its dictionary", step("エラー", "-2147467259", loaded)],
    ["the help, behind size, fonts, list, mode and status", step("ヘルプファイル未検出", "", laidOut)],
    ["the character", step("キャラクタ ファイルの誤り", "", spoken)],
    ["the header, behind tool tips and places", step("エラー", "52", told)],
    ["the page", step("エラー", "52", told)],
].forEach(([what, expected], i) => check(seen[i], expected, what));
check(seen.length, 8, "nothing else is told");
check(visible("frmFind"), true, "and the window comes");
for (const number of [17, 18]) {
    const saved = state("SavedPicture" + number + "Left"), left = bounds("frmFind.Picture" + number).left;
    ok(Math.abs(saved - left) < 15, "the place of picture " + number + " is kept: " + saved + ", " + left);
}
