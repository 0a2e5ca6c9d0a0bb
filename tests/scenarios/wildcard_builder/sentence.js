// The words of the sentence, texts of any length, and the ways out that save.
const history = appFile("Wildhist.dat");
start();
menu("mnuWildCardBuilder");
check([1, 2, 3, 4, 6, 5].map(number => caption("frmSearch.Label" + number)),
    ["見出し語が", "で始まる", "文字", "を間に含む", "文字", "で終わる文字列"], "the sentence");
check([1, 2, 3].map(number => caption("frmSearch.Command" + number)), ["OK", "キャンセル", "全項目消去"], "the buttons");

// More characters than a text box takes by itself.
const long = "語".repeat(40000);
setText("frmSearch.Text1", long);
check(text("frmSearch.Text1").length, 40000, "no length limit");
closeForm("frmSearch");
check(size(history), 2 * 40000 + 5 * 2, "all of it is saved");
menu("mnuWildCardBuilder");
check(text("frmSearch.Text1") === long, true, "and comes back");
click("frmSearch.Command3");

// The two signs that stand for the open ends come behind the limit of 255 characters.
setText("frmSearch.Text2", "x".repeat(253));
click("frmSearch.Command1");
check(text("frmFind.txtFind"), "%_" + "x".repeat(253) + "_%", "257 characters in the end");
menu("mnuWildCardBuilder");
setText("frmSearch.Text2", "x".repeat(254));
answer("OK");
click("frmSearch.Command1");
check(boxes().map(box => box.title), ["エラー"], "one character more is too many");
check(text("frmFind.txtFind").length, 257, "the entry box stays");

// All fields cleared where a middle stood alone: the hint names an empty start.
setText("frmSearch.Text2", "m");
click("frmSearch.Command3");
check(text("frmSearch.Text4"), "見出し語中の「」と 最後の文字までの文字数が", "what the emptied middle leaves");
check(["Hint1Head", "Hint1Tail", "Hint2Tail"].map(name => state("frmSearch." + name)),
    ["見出し語中の「」と ", "最後の文字までの文字数が", "最後の文字までの文字数が"], "in head and tails");

// The end of the program saves like the window frame.
setText("frmSearch.Text2", "middle");
choose("frmSearch.Combo2", "4");
exit();
check(readBytes(history), "\r\nmiddle\r\n\r\n\r\n4\r\n", "saved at the end of the program");
check(boxes(), [], "no further box");
