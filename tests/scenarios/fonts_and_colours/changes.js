// What counts as a change, what goes into the style sheet, and a save that fails half-way.
const button = row => "frmColorSelect.Command" + row;
const sample = row => "frmColorSelect.Label0(" + row + ")";
const fonts = appFile("FontDefi.dat"), style = appFile("sscDefi.dat");
const save = () => {
    answer("OK");
    click("frmColorSelect.Command9");
};
start();

// The default rows give the file that the start has made.
const byStart = readBytes(style);
remove(style);
menu("mnuColorSel");
save();
check(boxes().map(box => box.title), ["変更有効時の確認"], "saved");
check(readBytes(style), byStart, "the same style sheet");

// The first three rows stand for controls of the window, not for the page; a strike-through shows in no rule.
for (const row of [0, 1, 2]) {
    answerFont({name: "Face", size: 20, color: 0x0000ff, bold: true, italic: true, strikeout: true, underline: true});
    click(button(row));
}
answerFont({strikeout: true});
click(button(5));
save();
check(readBytes(style), byStart, "nothing of that in the style sheet");
check([0, 1, 2, 3].map(row => fontOf(sample(row)).size), [20, 20, 20, 9], "three rows have changed");
boxes();
click("frmColorSelect.Command10");
check([isOpen("frmColorSelect"), boxes()], [false, []], "saved is not changed");

// Each of the seven values of each row counts, and a change that is taken back is none.
const changes = [{name: "Other"}, {size: 11}, {color: 0x008080}, {bold: true}, {italic: true}, {strikeout: true},
    {underline: true}];
for (const [index, change] of changes.entries()) {
    const row = index === 4 ? 4 : 3 + index % 3;
    const key = Object.keys(change)[0];
    menu("mnuColorSel");
    const before = fontOf(sample(row));
    const wanted = typeof change[key] === "boolean" ? !before[key] : change[key];
    answerFont({[key]: wanted});
    click(button(row));
    check(fontOf(sample(row))[key], wanted, "the sample shows the " + key);
    answerFont({[key]: before[key]});
    click(button(row));
    boxes();
    click("frmColorSelect.Command10");
    check([isOpen("frmColorSelect"), boxes()], [false, []], key + " taken back: closed without a question");
    menu("mnuColorSel");
    answerFont({[key]: wanted});
    click(button(row));
    boxes();
    answer("いいえ");
    click("frmColorSelect.Command10");
    check(boxes().map(box => box.title), ["保存確認"], "asked about the " + key);
    menu("mnuColorSel");
    check(fontOf(sample(row)), before, "no: as it was");
    click("frmColorSelect.Command10");
}

// No goes back to what was saved last, not to what stood there at opening.
menu("mnuColorSel");
answerFont({size: 12});
click(button(3));
save();
answerFont({size: 13});
click(button(3));
answer("いいえ");
click("frmColorSelect.Command10");
check(state("FontSizes")[3], 12, "the size that was saved");
boxes();

// Where the style sheet cannot be written the fonts are not either: they would be there at the next start although
// they were refused. No notice comes, and it is still a change.
makeReadOnly(style);
const kept = readBytes(style);
menu("mnuColorSel");
answerFont({size: 14});
click(button(3));
boxes();
save();
check(boxes().map(box => box.title), ["エラー"], "told, and no notice of a restart");
check([readBytes(fonts).charCodeAt(3 * 44 + 30), readBytes(style)], [12, kept], "neither file is written");
answer("キャンセル");
click("frmColorSelect.Command10");
check([boxes().map(box => box.title), isOpen("frmColorSelect")], [["保存確認"], true], "it counts as not saved");
