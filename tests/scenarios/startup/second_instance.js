// A second copy on the same folder tells why, shows its splash and ends; the first goes on untouched.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["sea", null, 1, "海", null], ["seal", null, 1, "印章", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start({splash: true});
typeText("frmFind.txtFind", "sea");
writeBytes(appFile("ListData.dat"), "left alone");

let told = 0;
answer(box => {
    told = Date.now();
    check(isOpen("StartupForm") && visible("StartupForm"), false, "the splash is not shown yet");
    check(pointer(), 0, "no hourglass yet");
    return "OK";
});
check(start({second: true}), false, "a second copy gives way");
ok(Date.now() - told >= 3000, "after its splash");
const shown = boxes();
check(shown.length, 1, "one box");
check(shown[0].title, "アプリケーション重複起動エラー", "its title");
check(shown[0].text, "Wordmere は既に開かれています。二重起動はできません！", "its text");
check(shown[0].icon, 48, "its icon");
check(shown[0].buttons, ["OK"], "its button");
check(openForms(), ["frmFind"], "no second main window");
check(text("frmFind.txtFind"), "sea", "the first keeps what was typed");
check(items("frmFind.List1"), ["sea", "seal"], "and its list");
check(state("CurrentDicName"), "英和", "and its dictionary");
check(readBytes(appFile("ListData.dat")), "left alone", "and its working files");
typeText("frmFind.txtFind", "l");
check(items("frmFind.List1"), ["seal"], "it works on");

exit();
check(start(), true, "when it has ended the folder is free");
