// Settings that cannot be made at the start: told, and the program runs on what it would have written.
const told = {61: "ディスクの空き容量が不足しています。", 70: "書き込みできません。"};
const expectFailure = (what, number) => {
    const shown = boxes();
    check(shown.map(box => [box.title, box.text, box.icon]),
        [["エラー", "エラー番号  " + number + " Wordmere でエラーが発生しました。\r" + told[number], 16]], what);
    check(visible("frmFind"), true, "the window comes");
};
start();
exit();
const files = ["FontDefi.dat", "sscDefi.dat", "ListDefi.dat", "AgentDefi.dat"];
const whole = files.map(file => readBytes(appFile(file)));

for (const [file, values] of [
    ["FontDefi.dat", () => check(state("FontSizes"), [9, 9, 9, 9, 9, 9, 9, 9, 9], "the default fonts are in use")],
    ["ListDefi.dat", () => check([state("IncListCount"), state("MaxListCount")], [50, 500], "so are the sizes")],
    ["AgentDefi.dat", () => check(state("SpeechEnabled"), 0, "the character is off")],
])
    for (const [operation, number] of [["rename", 70], ["write", 61]]) {
        remove(appFile(file));
        failNext(operation, number);
        answer("OK");
        start();
        expectFailure(file + " cannot be made: " + operation, number);
        values();
        check(exists(appFile(file)), false, "no half file is left");
        exit();
        start();
        check(boxes(), [], "the next start mends it");
        exit();
        check(files.map(name => readBytes(appFile(name))), whole, "and all files are as they were");
    }

// The style is replaced when the fonts are lost: where that fails, the old style is whole.
writeText(appFile("sscDefi.dat"), "mine\r\n");
remove(appFile("FontDefi.dat"));
makeReadOnly(appFile("sscDefi.dat"));
answer("OK");
start();
expectFailure("the style is read-only", 70);
check(readText(appFile("sscDefi.dat")), "mine\r\n", "the old style stands");
check(size(appFile("FontDefi.dat")), 396, "the fonts are written");
