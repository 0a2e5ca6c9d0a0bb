// The first start in a folder that nobody may write: every step tells, and the window appears.
for (const file of ["Help.HLP", "favorite.dat"])
    remove(appFile(file));
makeReadOnly(appFile(""));
for (let i = 0; i < 8; ++i)
    answer("OK");
start({bare: true});
const shown = boxes();
const denied = "エラー番号  70 Wordmere でエラーが発生しました。\r書き込みできません。";
check(shown.map(box => box.title), ["エラー", "エラー", "エラー", "エラー", "ヘルプファイル未検出", "エラー", "エラー", "エラー"],
    "fonts, style, sizes, catalogue, help, character, header, page");
check(shown.filter(box => box.text === denied).length, 6, "six could not be written");
check(shown.filter(box => box.text.startsWith("エラー番号  53 ")).length, 1, "and the header could not be read");
check(visible("frmFind"), true, "the window appears");
check(state("FontSizes"), [9, 9, 9, 9, 9, 9, 9, 9, 9], "with the default fonts");
check(state("IncListCount"), 50, "and sizes");
check(state("SpeechEnabled"), 0, "without a character");
for (const file of ["FontDefi.dat", "sscDefi.dat", "ListDefi.dat", "lexicons.dat", "AgentDefi.dat", "home.html"])
    check(exists(appFile(file)), false, file + " is not there");
exit();
check(boxes(), [], "the end has nothing to save");
