// A catalogue that cannot be written leaves the old file whole, is told, and the program still ends.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
const entries = [{name: "氷", path: dictionary, selected: true}, {name: "火", path: dictionary}];

const endWith = (what, number, text) => {
    setCatalogue(entries);
    const before = readBytes(appFile("lexicons.dat"));
    start();
    writeBytes(appFile("ListData.dat"), "results");
    choose("frmFind.Combo1", 1);
    failNext(what, number);
    answer("OK");
    exit();
    const [box] = boxes();
    check(box.title, "エラー", what + " fails");
    check(box.text, "エラー番号  " + number + " Wordmere でエラーが発生しました。\r" + text, "with its number");
    check([box.icon, box.buttons], [16, ["OK"]], "its icon and button");
    check(readBytes(appFile("lexicons.dat")), before, "the old catalogue is whole");
    check(exists(appFile("ListData.dat")), false, "the rest of the end goes on");
    check(openForms(), [], "and the program has ended");
};
endWith("delete", 70, "書き込みできません。");
endWith("rename", 70, "書き込みできません。");
endWith("write", 61, "ディスクの空き容量が不足しています。");

// The catalogue itself is saved where the result store cannot be deleted.
setCatalogue(entries);
start();
choose("frmFind.Combo1", 1);
writeBytes(appFile("ListData.dat"), "results");
makeReadOnly(appFile("ListData.dat"));
answer("OK");
exit();
check(boxes().map(box => box.title), ["エラー"], "a result store that stays is told");
check(readBytes(appFile("lexicons.dat")).slice(309 + 305, 309 + 307), "\xff\xff", "the choice is saved");
check(readBytes(appFile("ListData.dat")), "results", "the result store stays");
