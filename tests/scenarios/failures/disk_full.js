// The disk is full while a page is written: told once a keystroke, nothing is lost, and the next one works.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["elm", null, 1, "楡", null], ["elk", null, 1, "箆鹿", null], ["eel", null, 1, "鰻", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const full = "エラー番号  61 Wordmere でエラーが発生しました。\rディスクの空き容量が不足しています。";
settle();
navigations();

failNext("write", 61);
answer("OK");
typeText("frmFind.txtFind", "e");
const [box] = boxes();
check([box.title, box.text, box.buttons], ["エラー", full, ["OK"]], "the disk is full");
check(text("frmFind.txtFind"), "e", "what was typed stays");
check(navigations(), [], "a page in pieces is not shown");
check(pointer(), 0, "the pointer is the default one");
typeText("frmFind.txtFind", "l");
check(items("frmFind.List1"), ["elk", "elm"], "the next letter works");
ok(page().includes("箆鹿") && page().endsWith("</BODY></HTML>\r\n"), "and its page is whole");

// The blank page.
failNext("write", 61);
answer("OK");
press("frmFind.txtFind", "Esc");
check(boxes().length, 1, "the blank page cannot be written either");
check(text("frmFind.txtFind"), "", "the box is cleared");
check(items("frmFind.List1"), [], "the list too");
typeText("frmFind.txtFind", "eel");
check(items("frmFind.List1"), ["eel", "elk", "elm"], "and the program goes on");
check(rows(dictionary).length, 3, "the dictionary is untouched");
