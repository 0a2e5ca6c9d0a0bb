// Words that hold markers, and boxes at their limit.
setCatalogue([]);
start();
menu("mnuPreSrch");
menu("mnuAddSearchCondition");
check(caption("frmAddCondition.Label10"), "", "no dictionary, no name");
setText("frmAddCondition.Text3", "a/E:b");
setText("frmAddCondition.Text1", "m");
click("frmAddCondition.Command1");
check(text("frmFind.txtFind"), "a/E:b/T:m", "a marker in the word is not escaped");
answer("OK");
menu("mnuAddSearchCondition");
check(boxes().map(box => box.title), ["順序指定の誤り"], "and is read as one");
setText("frmAddCondition.Text3", "a/T:b");
click("frmAddCondition.Command1");
menu("mnuAddSearchCondition");
check(["Text3", "Text1", "Text2"].map(name => text("frmAddCondition." + name)), ["a", "B", ""], "taken apart at it");

// No box takes half a character at its end.
for (const name of ["Text3", "Text1", "Text2"]) {
    setText("frmAddCondition." + name, "a".repeat(254) + "😀");
    check(text("frmAddCondition." + name), "a".repeat(254), name + ": a character that has no room goes whole");
    press("frmAddCondition." + name, "End");
    typeText("frmAddCondition." + name, "bc");
    check(text("frmAddCondition." + name).length, 255, name + ": one more can be typed");
}
click("frmAddCondition.Command1");
check(text("frmFind.txtFind").length, 255 + 3 + 255 + 3 + 255, "all three are taken");
check(boxes(), [], "no further box");
