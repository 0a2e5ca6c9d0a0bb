// Names and sizes that strain a record, and files that cannot be written.
const sample = row => "frmColorSelect.Label0(" + row + ")";
const open = () => menu("mnuColorSel");
const save = () => { answer("OK"); click("frmColorSelect.Command9"); };
const nameField = row => readBytes(appFile("FontDefi.dat")).slice(44 * row, 44 * row + 30);

start();
open();
const names = [
    ["N".repeat(30), "N".repeat(30), "a name that fills its field"],
    ["N".repeat(31), "N".repeat(30), "one byte more is cut"],
    ["ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰ", "\x82\x60\x82\x61\x82\x62\x82\x63\x82\x64\x82\x65\x82\x66\x82\x67\x82\x68" +
        "\x82\x69\x82\x6a\x82\x6b\x82\x6c\x82\x6d\x82\x6e", "double bytes, cut behind the fifteenth"],
    ["aＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰ", "a\x82\x60\x82\x61\x82\x62\x82\x63\x82\x64\x82\x65\x82\x66\x82\x67\x82\x68" +
        "\x82\x69\x82\x6a\x82\x6b\x82\x6c\x82\x6d ", "never in the middle of a character"],
    ["No Such Face 明朝", "No Such Face \x96\xbe\x92\xa9" + " ".repeat(13), "a font that is not installed"],
    ["Café", "Caf&#xE9;" + " ".repeat(21), "a character beyond the code page"],
];
for (const [name, bytes, what] of names) {
    answerFont({name});
    click("frmColorSelect.Command4");
    check(fontOf(sample(4)).name, name, what + ": the sample has it");
    save();
    check(nameField(4), bytes, what);
    ok(readText(appFile("sscDefi.dat")).includes("#sty2 {line-height: 1.5; text-decoration: none;font-family: \"" +
        name.replace("é", "&#233;") + "\";"), what + ": the rule has it whole");
}
answerFont({name: "Big", size: 32767});
click("frmColorSelect.Command4");
ok(bounds(sample(4)).height < 1000, "a huge sample does not burst the window");
save();
boxes();
click("frmColorSelect.Command10");
check(boxes(), [], "nothing asked");
exit();

// A size that no record can hold is refused, and the row keeps its own.
start();
open();
answerFont({size: 40000});
answer("OK");
click("frmColorSelect.Command4");
const overflow = boxes().pop();
check(overflow.title, "エラー", "the default handling");
ok(overflow.text.includes("エラー番号  6"), "an overflow");
check(state("FontSizes")[4], 32767, "the row keeps its size");

// The disk is full: told, nothing lost, still to be saved.
const kept = readBytes(appFile("FontDefi.dat")) + readBytes(appFile("sscDefi.dat"));
const now = () => readBytes(appFile("FontDefi.dat")) + readBytes(appFile("sscDefi.dat"));
answerFont({size: 10});
click("frmColorSelect.Command4");
failNext("write", 61);
answer("OK");
click("frmColorSelect.Command9");
const full = boxes().pop();
check(full.title, "エラー", "the default handling tells it");
ok(full.text.includes("エラー番号  61"), "the disk is full");
check(now(), kept, "both files are whole");
ok(isOpen("frmColorSelect"), "the dialog stays");
check(enabled("frmFind"), false, "and keeps the main window out of reach");

// The same at the close with Yes: it stays open, for what was chosen is not yet safe.
answer("はい");
failNext("write", 70);
answer("OK");
click("frmColorSelect.Command10");
check(boxes().map(box => box.title), ["保存確認", "エラー"], "asked and told");
ok(isOpen("frmColorSelect"), "it stays");
check(state("FontSizes")[4], 10, "with what was chosen");
check(now(), kept, "the files are whole");
save();
ok(readText(appFile("sscDefi.dat")).includes("font-size: 10pt"), "then it can be saved");
boxes();
click("frmColorSelect.Command10");

// The whole program ends while it is open with a change.
open();
answerFont({size: 14});
click("frmColorSelect.Command4");
boxes();
exit();
check(boxes(), [], "the end asks nothing");
start();
check(state("FontSizes")[4], 10, "and what was not saved is gone");
