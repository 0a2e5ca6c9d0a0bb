// FontDefi.dat: the fonts of the drop-down box, the entry box with its label, and the list.
const pad = (name, length) => name + " ".repeat(length - name.length);
const number16 = value => String.fromCharCode(value & 255, value >> 8 & 255);
const record = (name, size, color, bold, italic, strikeout, underline) => pad(name, 30) + number16(size) +
    number16(color) + number16(color >> 16) + [bold, italic, strikeout, underline].map(number16).join("");
const rest = record("Serif", 8, 0x112233, 0, 0, 0, 0).repeat(5);
const fonts = record("Combo Face", 11, 0x0000ff, -1, 0, 0, 0) + record("Entry Face", 14, 0x00ff00, 0, -1, 0, -1) +
    record("List Face", 12, 0x804020, 0, 0, -1, 0) + rest +
    record("\x82\x6c\x82\x72 \x83\x53\x83\x56\x83\x62\x83\x4e", 32767, 0xffffff, -1, -1, -1, -1);
check(fonts.length, 396, "nine records");

writeBytes(appFile("FontDefi.dat"), fonts);
start();
const font = (name, size, color, bold, italic, strikeout, underline) =>
    ({name, size, color, bold, italic, strikeout, underline});
check(fontOf("frmFind.Combo1"), font("Combo Face", 11, 0x0000ff, true, false, false, false), "the drop-down box");
check(fontOf("frmFind.txtFind"), font("Entry Face", 14, 0x00ff00, false, true, false, true), "the entry box");
check(fontOf("frmFind.Label1"), font("Entry Face", 9, 0x00ff00, false, true, false, true), "its label, always 9 points");
check(fontOf("frmFind.List1"), font("List Face", 12, 0x804020, false, false, true, false), "the list");
check(state("FontNames"), ["Combo Face", "Entry Face", "List Face", "Serif", "Serif", "Serif", "Serif", "Serif",
    "ＭＳ ゴシック"], "the names");
check(state("FontSizes"), [11, 14, 12, 8, 8, 8, 8, 8, 32767], "the sizes");
check(state("FontColors"), [0xff, 0xff00, 0x804020, 0x112233, 0x112233, 0x112233, 0x112233, 0x112233, 0xffffff],
    "the colours");
check(state("FontBolds"), [-1, 0, 0, 0, 0, 0, 0, 0, -1], "bold");
check(state("FontItalics"), [0, -1, 0, 0, 0, 0, 0, 0, -1], "italic");
check(state("FontStrikes"), [0, 0, -1, 0, 0, 0, 0, 0, -1], "struck out");
check(state("FontUnderlines"), [0, -1, 0, 0, 0, 0, 0, 0, -1], "underlined");
exit();
check(readBytes(appFile("FontDefi.dat")), fonts, "the end does not write it");

// A name that fills its field, and one padded with NUL.
const full = "N".repeat(30);
writeBytes(appFile("FontDefi.dat"), record(full, 9, 0, 0, 0, 0, 0) + "Short" + "\x00".repeat(25) +
    fonts.slice(44 + 30, 88) + pad("Caf&#xE9;", 30) + fonts.slice(88 + 30));
start();
check(state("FontNames").slice(0, 3), [full, "Short", "Café"], "a full field, one with NUL, one beyond the code page");
exit();

// A file cut short: the records that are missing have no name and no size; the program stands it.
for (const length of [0, 1, 44, 44 + 31, 395]) {
    writeBytes(appFile("FontDefi.dat"), fonts.slice(0, length));
    start();
    check(state("FontNames").length, 9, "nine slots from " + length + " bytes");
    check(state("FontNames")[0], length >= 30 ? "Combo Face" : length === 1 ? "C" : "", "what is there is read");
    check(state("FontSizes")[7], length >= 395 ? 8 : 0, "what is missing is zero");
    check(visible("frmFind"), true, "the window comes");
    ok(bounds("frmFind.txtFind").height > 150, "the entry box has a height");
    exit();
    check(size(appFile("FontDefi.dat")), length, "the file is not touched");
}

// Sizes that no font can have.
writeBytes(appFile("FontDefi.dat"), record("Face", -9, 0xff, 0, 0, 0, 0).repeat(9));
start();
check(state("FontSizes")[0], -9, "below zero");
ok(fontOf("frmFind.List1").size > 0, "the list is written with a size all the same");
exit();
writeBytes(appFile("FontDefi.dat"), record("Face", 32767, 0xff, 0, 0, 0, 0).repeat(9));
start();
check(fontOf("frmFind.List1").size, 32767, "the greatest size is taken as it stands");
check(bounds("frmFind").width, 12000, "and the window keeps its own");
