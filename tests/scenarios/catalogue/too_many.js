// More records than the count can hold: told, nothing is taken, and the file survives.
const record = "x".repeat(50) + "C:\\x.mdb" + " ".repeat(247) + "\x00\x00\x00\x00";
const content = record.repeat(32768);
writeBytes(appFile("lexicons.dat"), content);
answer("OK");
start();
const [box] = boxes();
check(box.title, "エラー", "the count overflows");
check(box.text, "エラー番号  6 Wordmere でエラーが発生しました。\rオーバーフローしました。", "and says so");
check(visible("frmFind"), true, "the window comes");
check(state("Lexicons"), null, "no catalogue");
exit();
ok(readBytes(appFile("lexicons.dat")) === content, "the file is as it was");

writeBytes(appFile("lexicons.dat"), record.repeat(2000));
start();
check(items("frmFind.Combo1").length, 2000, "two thousand are no trouble");
exit();
check(size(appFile("lexicons.dat")), 2000 * 309, "and all are kept");
