// The font and colour dialog: what it shows, what a choice does, saving and the ways to close it.
const captions = ["辞書名", "検索対象･検索語", "見出し語リスト", "見出し語", "発音記号", "訳語", "用例",
    "検索一致文字列(見出し語)", "検索一致文字列(訳語･用例)"];
const sample = row => "frmColorSelect.Label0(" + row + ")";
const button = row => "frmColorSelect.Command" + row;
const font = (name, size, color, bold, italic, strikeout, underline) =>
    ({name, size, color, bold, italic, strikeout, underline});
const gothic = "ＭＳ Ｐゴシック";
const files = () => readBytes(appFile("FontDefi.dat")) + "|" + readBytes(appFile("sscDefi.dat"));
const restart = {
    title: "変更有効時の確認",
    text: "変更された設定はアプリケーションを一度閉じて、\r\n再起動した際に有効となります。",
    icon: 64, buttons: ["OK"], beep: 0,
};
const question = {
    title: "保存確認", text: "設定が変更されています。閉じる前に変更した内容で保存しますか？",
    icon: 32, buttons: ["はい", "いいえ", "キャンセル"], beep: 0,
};
const shown = (box, expected, what) => {
    for (const key in expected)
        check(box[key], expected[key], what + ": " + key);
};
const open = () => {
    menu("mnuColorSel");
    ok(isOpen("frmColorSelect"), "the dialog is open");
};

start();
const before = files();
open();
check(caption("frmColorSelect"), "フォントと色の設定", "its caption");
check(enabled("frmFind"), false, "the main window is out of reach");
check(caption("frmColorSelect.Label1"), "現在の設定値：", "the heading");
check(caption("frmColorSelect.Command9"), "保存", "save");
check(caption("frmColorSelect.Command10"), "閉じる", "close");
for (let row = 0; row < 9; ++row) {
    check(caption(sample(row)), captions[row], "sample " + row);
    check(caption(button(row)), "変更", "its button");
    check(fontOf(sample(row)), font(gothic, 9, row <= 3 ? 0xff0000 : row >= 7 ? 0xff : 0, row === 3 || row >= 7,
        row === 6, false, row === 8), "sample " + row + " is written in its font");
}
check(focused(), "frmColorSelect.Command0", "the focus stands on the first button");

// Cancelling changes nothing.
answerFont(null);
click(button(0));
shown(boxes()[0], {kind: "font", title: "変換先辞書データベースファイルの設定",
    font: font(gothic, 9, 0xff0000, false, false, false, false)}, "the font box");
check(fontOf(sample(0)).size, 9, "a cancelled box leaves the sample");
check(state("FontSizes")[0], 9, "and the row");
click("frmColorSelect.Command10");
check(boxes(), [], "without a change it closes without a word");
check(isOpen("frmColorSelect"), false, "closed");
check(enabled("frmFind"), true, "the main window is back");
check(files(), before, "nothing was written");

// A choice of all seven values; saved.
open();
const mincho = font("ＭＳ 明朝", 12, 0x800080, true, true, true, true);
answerFont(mincho);
click(button(5));
check(fontOf(sample(5)), mincho, "the sample follows");
const outside = font("Face", 20, 0x123456, false, false, false, false);
answerFont(outside);
click(button(6));
check(fontOf(sample(6)), outside, "the sample shows a colour of its own as it was chosen");
answerFont(font("Entry", 11, 0x00ff00, false, true, false, true));
click(button(1));
const listFont = fontOf("frmFind.txtFind");
check(files(), before, "nothing is written before it is saved");
boxes();
answer("OK");
click("frmColorSelect.Command9");
const told = boxes();
check(told.length, 1, "one box");
shown(told[0], restart, "it says when the change shows");
ok(isOpen("frmColorSelect"), "the dialog stays");
const rules = readText(appFile("sscDefi.dat")).split("\r\n");
check(rules.length, 9, "eight lines");
check(rules[3], "#sty3 {line-height: 1.5; text-decoration: Underline;font-family: \"ＭＳ 明朝\"; font-size: 12pt;" +
    "color: Purple;font-weight: bold;font-style: Italic;}", "the rule of the meanings; no strike-through in it");
check(rules[4], "#sty4 {line-height: 1.5; text-decoration: none;font-family: \"Face\"; font-size: 20pt;" +
    "color: Black;font-weight: normal;font-style: normal;}", "a colour outside the table is black");
check(rules[1], "#sty1 {line-height: 1.5; text-decoration: none;font-family: \"ＭＳ Ｐゴシック\"; font-size: 9pt;" +
    "color: Blue;font-weight: bold;font-style: normal;}", "an unchanged rule");
const record = readBytes(appFile("FontDefi.dat")).slice(44 * 5, 44 * 6);
check(record, "\x82\x6c\x82\x72 \x96\xbe\x92\xa9" + " ".repeat(21) + "\x0c\x00\x80\x00\x80\x00" +
    "\xff\xff".repeat(4), "the record of the meanings");
check(fontOf("frmFind.txtFind"), listFont, "the window keeps its look until the next start");
check(state("HtmlHeaderLines")[3].includes("9pt"), true, "and so do the pages");
click("frmColorSelect.Command10");
check(boxes(), [], "saved is not changed");
exit();
start();
check(fontOf("frmFind.txtFind"), font("Entry", 11, 0x00ff00, false, true, false, true), "the next start shows it");
ok(state("HtmlHeaderLines")[3].includes("ＭＳ 明朝"), "the pages too");

// Saving with nothing changed writes both files all the same.
open();
remove(appFile("sscDefi.dat"));
remove(appFile("FontDefi.dat"));
answer("OK");
click("frmColorSelect.Command9");
check(boxes().length, 1, "it says so again");
check(size(appFile("FontDefi.dat")), 396, "the fonts are there");
check(readText(appFile("sscDefi.dat")).split("\r\n"), rules, "the style too");
click("frmColorSelect.Command10");
exit();

// The three answers at closing, by the button and by the frame.
for (const close of [() => click("frmColorSelect.Command10"), () => closeForm("frmColorSelect"),
    () => press(button(0), "Esc")]) {
    start();
    const kept = files();
    const style = readBytes(appFile("sscDefi.dat"));
    const size0 = state("FontSizes")[0];
    open();
    answerFont({size: size0 + 1});
    click(button(0));
    boxes();
    answer("キャンセル");
    close();
    shown(boxes()[0], question, "asked");
    ok(isOpen("frmColorSelect"), "cancelled: it stays");
    check(state("FontSizes")[0], size0 + 1, "with what was chosen");
    answer("いいえ");
    close();
    check(boxes().length, 1, "no: nothing more");
    check(isOpen("frmColorSelect"), false, "closed");
    check(enabled("frmFind"), true, "the main window is back");
    check(state("FontSizes")[0], size0, "no puts the rows back");
    check(files(), kept, "and writes nothing");
    open();
    check(fontOf(sample(0)).size, size0, "opened again it shows the old value");
    answerFont({size: size0 + 1});
    click(button(0));
    boxes();
    answer("はい");
    answer("OK");
    close();
    const both = boxes();
    check(both.length, 2, "the question and the notice");
    shown(both[1], restart, "yes says when it shows");
    check(isOpen("frmColorSelect"), false, "closed");
    ok(readBytes(appFile("FontDefi.dat")).slice(30, 31) === String.fromCharCode(size0 + 1), "yes writes the fonts");
    check(readBytes(appFile("sscDefi.dat")), style, "but not the style");
    exit();
}

// By keys alone.
start();
open();
press(button(0), "Tab");
check(focused(), "frmColorSelect.Command1", "Tab goes down the rows");
answerFont({size: 16});
press(button(1), "Enter");
check(boxes().length, 1, "Enter presses the button with the focus");
check(fontOf(sample(1)).size, 16, "and its row changes");
press(button(8), "Tab");
check(focused(), "frmColorSelect.Command9", "behind the rows the saving");
answer("OK");
press("frmColorSelect.Command9", "Enter");
check(boxes().length, 1, "saved");
press("frmColorSelect.Command9", "Tab");
check(focused(), "frmColorSelect.Command10", "then the closing");
press("frmColorSelect.Command10", "Tab");
check(focused(), "frmColorSelect.Label1", "the heading can be reached too");
press("frmColorSelect.Label1", "Esc");
check(isOpen("frmColorSelect"), false, "Esc closes");
exit();

// The label's own colour belongs to no row.
start();
open();
const rows = state("FontColors");
answerColor(null);
click("frmColorSelect.Label1");
check(boxes()[0].kind, "color", "a colour box");
answerColor(0x0000ff);
click("frmColorSelect.Label1");
check(colorOf("frmColorSelect.Label1"), 0x0000ff, "the heading is red");
answerColor(0x0000ff);
click("frmColorSelect.Label1");
check(boxes().pop().color, 0x0000ff, "the box begins with the present colour");
check(state("FontColors"), rows, "no row has changed");
click("frmColorSelect.Command10");
check(boxes(), [], "and nothing is asked");
