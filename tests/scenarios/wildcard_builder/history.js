// Wildhist.dat: what is written, by what, and what is read back.
const history = appFile("Wildhist.dat");
const fields = () => ["Text1", "Text2", "Text3", "Combo1", "Combo2"].map(name => text("frmSearch." + name));
start();
check(exists(history), false, "none at first");

// The cancel button alone does not save.
menu("mnuWildCardBuilder");
setText("frmSearch.Text1", "ab");
setText("frmFind.txtFind", "kept");
click("frmSearch.Command2");
check([isOpen("frmSearch"), exists(history)], [false, false], "cancelled by the button");
menu("mnuWildCardBuilder");
setText("frmSearch.Text1", "ab");
press("frmSearch.Text1", "Esc");
check([isOpen("frmSearch"), exists(history)], [false, false], "cancelled by Esc");
check(text("frmFind.txtFind"), "", "the entry box was out of reach and is left alone");

// OK saves the fields as typed, trimmed and not escaped.
menu("mnuWildCardBuilder");
setText("frmSearch.Text1", " 50% ");
setText("frmSearch.Text2", "語_");
setText("frmSearch.Text3", "　z");
choose("frmSearch.Combo1", "3");
choose("frmSearch.Combo2", "99");
click("frmSearch.Command1");
check(readBytes(history), "50%\r\n\x8c\xea_\r\nz\r\n3\r\n99\r\n", "five lines");
menu("mnuWildCardBuilder");
check(fields(), ["50%", "語_", "z", "3", "99"], "they are there again");
check([focused(), selectedText("frmSearch.Text1")], ["frmSearch.Text1", "50%"], "the first one selected");
check(["Text5", "Label6", "Combo2"].map(name => visible("frmSearch." + name)), [true, true, true], "the second gap too");
check(text("frmSearch.Text4"), "見出し語中の「50%」と 「語_」の間の文字数が", "and the hints follow");
check(text("frmSearch.Text5"), "見出し語中の「語_」と 「z」の間の文字数が", "both of them");

// The window frame saves.
setText("frmSearch.Text2", "");
closeForm("frmSearch");
check(readBytes(history), "50%\r\n\r\nz\r\n3\r\n\r\n", "closed by the frame");
check(enabled("frmFind"), true, "the main window takes input");
check(text("frmFind.txtFind"), "50[%]___語[_]" + "_".repeat(99) + "z", "the pattern of before stays");
menu("mnuWildCardBuilder");
click("frmSearch.Command3");
closeForm("frmSearch");
check(readBytes(history), "\r\n\r\n\r\n\r\n\r\n", "empty fields");

// What code page 932 lacks, and line ends that were pasted.
menu("mnuWildCardBuilder");
setText("frmSearch.Text1", "café");
setText("frmSearch.Text2", "&#xE9;");
setText("frmSearch.Text3", "a\r\nb");
closeForm("frmSearch");
check(readBytes(history), "caf&#xE9;\r\n&#x26;#xE9;\r\na b\r\n\r\n\r\n", "are kept");
menu("mnuWildCardBuilder");
check(fields(), ["café", "&#xE9;", "a b", "", ""], "and come back");
press("frmSearch.Text1", "Esc");

// Files that are shorter, longer or strange.
for (const [bytes, expected, what] of [
    ["", ["", "", "", "", ""], "an empty file"],
    ["ab", ["ab", "", "", "", ""], "one line without an end"],
    ["ab\r\ncd\r\n", ["ab", "cd", "", "", ""], "two lines"],
    [" ab \r\n\x81\x40cd\r\nef\r\n 4 \r\n5", ["ab", "cd", "ef", "4", "5"], "blanks around"],
    ["ab\ncd\nef\n4\n5\nmore\n", ["ab", "cd", "ef", "4", "5"], "a sixth line"],
    ["ab\r\ncd\r\nef\r\n100\r\nx\r\n", ["ab", "cd", "ef", "", ""], "lengths that the boxes do not offer"],
    ["ab\r\n\r\nef\r\n4\r\n5\r\n", ["ab", "", "ef", "4", ""], "a second length without a middle"],
    ["\x8c", ["・", "", "", "", ""], "half a character"],
    ["\x00\x00\r\n", ["\x00\x00", "", "", "", ""], "NUL"],
]) {
    writeBytes(history, bytes);
    menu("mnuWildCardBuilder");
    check(fields(), expected, what);
    press("frmSearch.Text1", "Esc");
    check(readBytes(history), bytes, "cancelling leaves the file: " + what);
}
check(boxes(), [], "no box in all of this");
restart();
menu("mnuWildCardBuilder");
ok(text("frmSearch.Text1").length > 0, "it outlives the program");
