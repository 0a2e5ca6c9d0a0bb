// A catalogue that holds bytes which are no Shift_JIS: what nobody changes is written as it was read.
const utf8 = s => unescape(encodeURIComponent(s));
const pad = (s, n) => s + " ".repeat(n - s.length);
const rec = (n, p, f) => pad(n, 50) + pad(p, 255) + f + "\x00\x00";
const good = tempDir() + "/good.mdb";
makeDictionary(good, [["moss", null, 1, "苔", null]]);
const dp = drivePath(good);
for (const [what, r] of [
    ["utf-8 name", rec(utf8("英和辞典"), dp, "\xff\xff")],
    ["utf-8 path", rec("x", utf8("Z:\\home\\ユーザー\\辞書\\英和.mdb"), "\xff\xff")],
    ["FD FE FF", rec("\xfd\xfe\xff\x80\xa0", dp, "\xff\xff")],
    ["50 undecodable", rec("\xff".repeat(50), dp, "\xff\xff")],
    ["lead at the end of the field", rec(" ".repeat(49) + "\x83", dp, "\xff\xff")],
]) {
    writeBytes(appFile("lexicons.dat"), r);
    if (what === "utf-8 path")
        answer("OK");
    start();
    boxes();
    exit();
    check(readBytes(appFile("lexicons.dat")), r, what + ": the end writes what was read");
}
