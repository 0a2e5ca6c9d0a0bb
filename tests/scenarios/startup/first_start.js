// The first start of all: an empty folder gets every settings file with its default content.
const name = "\x82\x6c\x82\x72 \x82\x6f\x83\x53\x83\x56\x83\x62\x83\x4e" + " ".repeat(15);
const blue = "\x00\x00\xff\x00", black = "\x00\x00\x00\x00", red = "\xff\x00\x00\x00";
const no = "\x00\x00", yes = "\xff\xff";
const font = (color, bold, italic, underline) => name + "\x09\x00" + color + bold + italic + no + underline;
const fonts = [
    font(blue, no, no, no), font(blue, no, no, no), font(blue, no, no, no),
    font(blue, yes, no, no), font(black, no, no, no), font(black, no, no, no), font(black, no, yes, no),
    font(red, yes, no, no), font(red, yes, no, yes),
].join("");

const files = ["FontDefi.dat", "sscDefi.dat", "ListDefi.dat", "lexicons.dat", "AgentDefi.dat", "home.html"];
for (const file of files)
    check(exists(appFile(file)), false, file + " is not there before");

answer("OK");
check(start({bare: true}), true, "the program starts in an empty folder");
check(boxes().map(box => box.title), ["ヘルプファイル未検出"], "and misses nothing but its help");
check(visible("frmFind"), true, "the main window is shown");

check(size(appFile("FontDefi.dat")), 396, "nine fonts of 44 bytes");
check(readBytes(appFile("FontDefi.dat")), fonts, "the default fonts");
check(readBytes(appFile("ListDefi.dat")), "05015050005001503000\r\n", "the default sizes of the lists");
check(readBytes(appFile("AgentDefi.dat")), "\x00default" + " ".repeat(248) + " ".repeat(50), "no character");
check(size(appFile("AgentDefi.dat")), 306, "one record");
check(size(appFile("lexicons.dat")), 0, "an empty catalogue");
check(readText(appFile("sscDefi.dat")).split("\r\n").length, 9, "eight lines of style");
ok(size(appFile("home.html")) > 0, "a page to show");

check(enabled("frmFind.Combo1"), false, "no dictionary to choose");
check(enabled("frmFind.txtFind"), false, "nothing to search in");
check(text("frmFind.Combo1"), "", "no dictionary's name");
check([state("CurrentDicName"), state("CurrentDicPath")], ["", ""], "no dictionary in use");
check([state("CatalogueFlag1"), state("CatalogueFlag2")], [0, 0], "both flags");
check(state("Lexicons"), null, "the catalogue has never held an entry");

const before = files.map(file => readBytes(appFile(file)));
exit();
check(files.map(file => readBytes(appFile(file))), before, "the end changes none of them");
answer("OK");
start({bare: true});
check(boxes().length, 1, "a second start says no more than the first");
check(files.map(file => readBytes(appFile(file))), before, "and changes none of them");
