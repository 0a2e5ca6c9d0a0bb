// Files that went, were replaced, cannot be written or are empty; a catalogue that cannot be written.
const path = name => tempDir() + "/" + name + ".mdb";
makeDictionary(path("a"), [["ice", null, 1, "氷", null]]);
makeDictionary(path("b"), []);
setCatalogue([{name: "氷", path: path("a"), selected: true}, {name: "空", path: path("b")},
              {name: "ない", path: "Q:\\none\\x.mdb"}]);
start();
menu("mnuDicAdd");
const details = row => {
    clickRow("frmDicList.DicList", row);
    return [text("frmDicList.Label1"), text("frmDicList.Label2")];
};
ok(details(1)[0].startsWith("ファイルサイズ： "), "an empty database has a length");
check(details(2), ["上記ファイルを開けませんでした。", ""], "a drive that the machine lacks");
remove(path("a"));
check(details(0), ["上記ファイルを開けませんでした。", ""], "a file that went while the dialog is open");
mkdir(path("a"));
check(details(1)[0] !== details(0)[0], true, "another row in between");
check(details(0), ["上記ファイルを開けませんでした。", ""], "a folder in its place");
remove(path("a"));
writeBytes(path("a"), "");
check(details(1).length, 2, "another row in between");
check(details(0)[0], "ファイルサイズ：  バイト", "a file of no length");
writeBytes(path("a"), "no dictionary");
details(1);
check(details(0)[0], "ファイルサイズ： 13 バイト", "a file that is no dictionary can be catalogued all the same");
makeReadOnly(path("a"));
details(1);
check(details(0)[0], "ファイルサイズ： 13 バイト", "one that cannot be written too");
check(boxes(), [], "none of this shows a box");

// The catalogue cannot be written: told, and nothing is lost.
const before = readBytes(appFile("lexicons.dat"));
answer("はい");
click("frmDicList.ButtonDelete");
boxes();
for (const [what, number, text] of [["delete", 70, "書き込みできません。"], ["write", 61, "ディスクの空き容量が不足しています。"]]) {
    failNext(what, number);
    answer("OK");
    click("frmDicList.ButtonQuit");
    const [box] = boxes();
    check([box.title, box.text], ["エラー", "エラー番号  " + number + " Wordmere でエラーが発生しました。\r" + text],
          what + " fails");
    check(isOpen("frmDicList"), true, "the dialog stays");
    check(readBytes(appFile("lexicons.dat")), before, "the old catalogue is whole");
    check(state("frmDicList.IsDicListDirty"), -1, "the change is kept");
}
click("frmDicList.ButtonQuit");
check(isOpen("frmDicList"), false, "then it can be written");
check(items("frmFind.Combo1"), ["空", "ない"], "the main window has it");
check(state("CurrentDicName"), "空", "the first entry is in use now");
