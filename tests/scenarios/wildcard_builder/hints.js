// What the two hints say, change by change.
start();
menu("mnuWildCardBuilder");
const fromFirst = "見出し語の最初の文字から", toLast = "最後の文字までの文字数が";
const from = word => "見出し語中の「" + word + "」と ", to = word => "「" + word + "」の間の文字数が";
const secondShown = () => ["Text5", "Label6", "Combo2"].map(name => visible("frmSearch." + name));
const hints = () => ["Hint1Head", "Hint1Tail", "Hint2Head", "Hint2Tail"].map(name => state("frmSearch." + name));

check(hints(), [fromFirst, toLast, "", toLast], "at load");
check(text("frmSearch.Text4"), "見出し語の文字数が\r\n", "the fixed text until the first change");
check(secondShown(), [false, false, false], "no second gap");

setText("frmSearch.Text1", "ab");
check(text("frmSearch.Text4"), from("ab") + toLast, "a start");
setText("frmSearch.Text3", " ing ");
check(text("frmSearch.Text4"), from("ab") + to("ing"), "a start and an end, trimmed");
check(secondShown(), [false, false, false], "still one gap");
setText("frmSearch.Text2", "x");
check(secondShown(), [true, true, true], "a middle brings the second gap");
check(text("frmSearch.Text4"), from("ab") + to("x"), "the first gap ends at the middle");
check(text("frmSearch.Text5"), from("x") + to("ing"), "the second one at the end");
setText("frmSearch.Text3", "");
check(text("frmSearch.Text5"), from("x") + toLast, "the second gap follows the end");
check(text("frmSearch.Text4"), from("ab") + to("x"), "the first one does not");
setText("frmSearch.Text3", "ed");
check(text("frmSearch.Text5"), from("x") + to("ed"), "and again");
setText("frmSearch.Text1", "");
check(text("frmSearch.Text4"), fromFirst + to("x"), "no start");
choose("frmSearch.Combo2", "7");
check(text("frmSearch.Combo2"), "7", "a second length");
setText("frmSearch.Text2", "  ");
check(secondShown(), [false, false, false], "a middle of blanks is none");
check(text("frmSearch.Combo2"), "", "the second length goes with it");
check(text("frmSearch.Text4"), fromFirst + to("ed"), "the first gap ends at the end again");
setText("frmSearch.Text2", "y");
check(text("frmSearch.Combo2"), "", "and does not come back");
setText("frmSearch.Text3", "");
setText("frmSearch.Text2", "");
check(text("frmSearch.Text4"), "見出し語中の「」と 最後の文字までの文字数が", "nothing but an emptied middle");
setText("frmSearch.Text1", "a");
check(text("frmSearch.Text4"), from("a") + toLast, "a start mends that");
setText("frmSearch.Text2", "m");
setText("frmSearch.Text2", "");
check(text("frmSearch.Text4"), from("a") + toLast, "a middle that came and went");

// Typing in combos and hints is discarded.
choose("frmSearch.Combo1", "12");
typeText("frmSearch.Combo1", "3a語");
check(text("frmSearch.Combo1"), "12", "the combo keeps its row");
setText("frmSearch.Combo1", "55");
check(text("frmSearch.Combo1"), "12", "in every way");
const hint = text("frmSearch.Text4");
typeText("frmSearch.Text4", "x語");
setText("frmSearch.Text4", "x");
check(text("frmSearch.Text4"), hint, "so does the hint");
check(items("frmSearch.Combo1").length, 100, "an empty row and 99 lengths");
check([0, 1, 2, 99].map(row => items("frmSearch.Combo1")[row]), ["", "1", "2", "99"], "in order");
check(items("frmSearch.Combo2"), items("frmSearch.Combo1"), "both the same");
press("frmSearch.Combo1", "Down");
check(text("frmSearch.Combo1"), "13", "the arrow keys choose");
press("frmSearch.Combo1", "Home");
check(text("frmSearch.Combo1"), "", "the empty row is the first");

// All fields cleared.
setText("frmSearch.Text1", "ab");
setText("frmSearch.Text2", "cd");
setText("frmSearch.Text3", "ef");
choose("frmSearch.Combo1", "1");
choose("frmSearch.Combo2", "2");
click("frmSearch.Command3");
check(["Text1", "Text2", "Text3", "Combo1", "Combo2"].map(name => text("frmSearch." + name)), ["", "", "", "", ""],
    "the fields are empty");
check(focused(), "frmSearch.Text1", "the focus is in the first");
check(text("frmSearch.Text4"), fromFirst + toLast, "the hint follows");
check(secondShown(), [false, false, false], "and the second gap goes");
check(isOpen("frmSearch"), true, "the dialog stays");

// A long Japanese text.
const long = "長い見出し語の一部".repeat(30);
setText("frmSearch.Text1", long);
check(text("frmSearch.Text4"), from(long) + toLast, "is named whole");
ok(bounds("frmSearch").width < 12000, "the dialog keeps its width");
check(["Text1", "Text4", "Combo1", "Text2", "Text3"].every(name => {
    const place = bounds("frmSearch." + name);
    return place.width > 0 && place.left + place.width <= bounds("frmSearch").width;
}), true, "and every control its place");
check(boxes(), [], "no box");
