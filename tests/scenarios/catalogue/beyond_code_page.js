// Names and paths with characters that code page 932 lacks come through files and restarts.
const dictionaries = [
    {name: "Français é", path: tempDir() + "/café ə/dictionnaire à 語.mdb"},
    {name: "😀 絵文字", path: tempDir() + "/絵😀.mdb"},
    {name: "A&B &#x41; ～－￥", path: tempDir() + "/a&b &#x41;.mdb"},
    {name: "表ソ能", path: tempDir() + "/表ソ能十.mdb"},
];
dictionaries.forEach(({path}, i) => makeDictionary(path, [["mot" + i, "é", 1, "語😀", "ə & é"]]));
setCatalogue(dictionaries.map((entry, i) => ({name: entry.name, path: entry.path, selected: i === 0})));
start();
check(items("frmFind.Combo1"), dictionaries.map(entry => entry.name), "the names");
dictionaries.forEach(({name, path}, i) => {
    choose("frmFind.Combo1", i);
    check(state("CurrentDicName"), name, "the name " + name);
    check(state("CurrentDicPath"), drivePath(path), "its path");
    setText("frmFind.txtFind", "m");
    check(items("frmFind.List1"), ["mot" + i], "its rows");
    ok(page().includes("&#233;") && page().includes("&#128512;"), "the page writes them as references");
});
settle();
ok(paneText().includes("語😀"), "and the pane shows them");
exit();

const bytes = readBytes(appFile("lexicons.dat"));
check(bytes.length, 4 * 309, "four records");
check(bytes.slice(0, 50), "Fran&#xE7;ais &#xE9;" + " ".repeat(30), "a reference in the name");
check(bytes.slice(618, 618 + 14), "A&B &#x26;#x41", "an ampersand that would read as one");
start();
check(items("frmFind.Combo1"), dictionaries.map(entry => entry.name), "all come back");
check(state("CurrentDicName"), "表ソ能", "the last one chosen");
check(state("TableFirstWord"), "mot3", "and its table");
check(state("Lexicons").slice(0, 4).map(entry => entry.DicPath), dictionaries.map(entry => drivePath(entry.path)),
    "with every path");
