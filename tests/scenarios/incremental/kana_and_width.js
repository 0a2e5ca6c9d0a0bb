// Case, kana type and width do not matter for the place; voicing, small kana and accents do.
const dictionary = tempDir() + "/kana.mdb";
makeDictionary(dictionary, [
    ["cafe", null, 1, "喫茶", null],
    ["café", null, 1, "カフェ店", null],
    ["Cat", null, 1, "猫", null],
    ["ｃａｔ", null, 1, "全角の猫", null],
    ["かき", null, 1, "柿", null],
    ["ガキ", null, 1, "餓鬼", null],
    ["ｶﾞｷ", null, 1, "半角の餓鬼", null],
    ["がく", null, 1, "額", null],
    ["パン", null, 1, "麺麭", null],
    ["漢字", null, 1, "文字", null],
    ["😀", null, 1, "笑顔", null],
    ["😁 顔", null, 1, "にこにこ", null],
]);
setCatalogue([{name: "仮名", path: dictionary, selected: true}]);
start();

const first = (typed, count) => {
    setText("frmFind.txtFind", typed);
    return items("frmFind.List1").slice(0, count);
};

for (const typed of ["cat", "CAT", "ｃａｔ", "ＣＡＴ"])
    check(first(typed, 2), ["Cat", "ｃａｔ"], typed + " finds both widths and cases");
for (const typed of ["がき", "ガキ", "ｶﾞｷ", "ガき"])
    check(first(typed, 3), ["ガキ", "ｶﾞｷ", "がく"], typed + " finds each kana type");
check(first("ｶｷ", 1), ["かき"], "without voicing it is another word");
for (const typed of ["ぱん", "ﾊﾟﾝ", "パン"])
    check(first(typed, 1), ["パン"], typed + ": the half-width pair is one character");
check(first("ハン", 1), ["パン"], "a place between the words lists what follows");
check(first("cafe", 1), ["cafe"], "an accent counts");
check(first("café", 1), ["café"], "and finds its own word");
ok(items("frmFind.List1").indexOf("cafe") < 0, "behind the one without");
check(first("漢", 1), ["漢字"], "kanji");

// Characters of two units are typed, listed and shown whole.
setText("frmFind.txtFind", "");
typeText("frmFind.txtFind", "😁");
check(text("frmFind.txtFind"), "😁", "a character outside the first plane arrives whole");
check(items("frmFind.List1"), ["😁 顔"], "and has its place");
ok(page().indexOf("<SPAN ID=sty1>&#128513; 顔</SPAN>") > 0, "the page refers to it by its number");
clickRow("frmFind.List1", 0);
check(text("frmFind.txtFind"), "😁 顔", "a click brings it back");
press("frmFind.txtFind", "Home");
press("frmFind.txtFind", "Delete");
check(text("frmFind.txtFind"), "顔", "and it goes as one, with the blank behind it");

// The limited target compares the same way.
menu("mnuSrchFromWord");
statements();
check(first("ﾊﾟ", 5), ["パン"], "half-width voiced pair");
check(first("ＣＡ", 5), ["cafe", "café", "Cat", "ｃａｔ"], "width and case");
check(first("😀", 5), ["😀"], "two units");
check(first("ハ", 5), [], "voicing counts");
check(statements().length, 4, "one statement a change");
