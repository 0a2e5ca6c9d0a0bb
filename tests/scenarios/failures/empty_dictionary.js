// A dictionary without a record: nothing to tell at the start; a search tells and the program goes on.
const empty = tempDir() + "/empty.mdb", good = tempDir() + "/good.mdb";
makeDictionary(empty);
makeDictionary(good, [["fern", null, 1, "羊歯", null]]);
setCatalogue([{name: "空", path: empty, selected: true}, {name: "良い", path: good}]);
start();
check(boxes(), [], "the start is silent");
check([state("TableFirstWord"), state("TableFirstAutoID"), state("TableLastWord")], ["", 0, ""], "no first, no last");
answer("OK");
typeText("frmFind.txtFind", "f");
check(boxes().length, 1, "a search tells");
check(text("frmFind.txtFind"), "f", "what was typed stays");
menu("mnuSrchFromWord");
check(items("frmFind.List1"), [], "words alone: none, and nothing to tell");
choose("frmFind.Combo1", "良い");
typeText("frmFind.txtFind", "f");
check(items("frmFind.List1"), ["fern"], "another dictionary works");
exit();
check(rows(empty), [], "the empty one is still a dictionary");
