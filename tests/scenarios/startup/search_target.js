// The last digit of the list sizes is the target that the program starts with.
const sizes = "0501505000500150300";
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [
    ["look", null, 1, "見る", null],
    ["look after", null, 2, "世話をする", null],
]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const menus = ["mnuSrchFromAll", "mnuSrchFromWord", "mnuSrchFromPhrase"];

for (const [target, label, list] of [
    [0, "単熟語：", ["look", "look after"]],
    [1, "単語：", ["look"]],
    [2, "熟語：", ["look after"]],
]) {
    writeBytes(appFile("ListDefi.dat"), sizes + target + "\r\n");
    start();
    check(state("SearchTarget"), target, "target " + target);
    check(text("frmFind.Label1"), label, "its label");
    check(menus.map(checked), menus.map((entry, i) => i === target), "its menu");
    check([visible("frmFind.Picture19"), visible("frmFind.Picture20")], [target === 0, target === 0], "entry paging");
    typeText("frmFind.txtFind", "look");
    check(items("frmFind.List1"), list, "what is searched");
    exit();
    check(readBytes(appFile("ListDefi.dat")), sizes + target + "\r\n", "the file stays");
}

// A digit that means nothing is taken as it stands: no menu is checked, and nothing breaks.
writeBytes(appFile("ListDefi.dat"), sizes + "9\r\n");
start();
check(state("SearchTarget"), 9, "a ninth target");
check(menus.map(checked), [false, false, false], "has no menu");
check(visible("frmFind.Picture19"), false, "and no entry paging");
typeText("frmFind.txtFind", "look");
check(items("frmFind.List1"), [], "nothing is of that kind");
menu("mnuSrchFromAll");
check(items("frmFind.List1"), ["look", "look after"], "choosing a target mends it");
