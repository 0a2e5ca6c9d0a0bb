// What a search leaves as it was when it has no word part, no hits or no dictionary; and blanks by the start button.
const dictionary = tempDir() + "/stay.mdb";
makeDictionary(dictionary, Array.from({length: 5}, (_, i) => ["w " + (i + 1), null, 1, "訳" + (i + 1), "例"]));
setCatalogue([{name: "留", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05015003005000203000\r\n"); // 3 rows a page, 2 entries
start();
menu("mnuPreSrch");
const store = appFile("ListData.dat");
const go = {Enter: () => press("frmFind.txtFind", "Enter"), button: () => mouseDown("frmFind.Picture0")};
const search = (typed, by = "Enter") => {
    setText("frmFind.txtFind", typed);
    statements();
    go[by]();
};
const pictures = () => [14, 15, 17, 18].filter(number => visible("frmFind.Picture" + number));
const taken = () => ["CompositeKind", "SearchText", "WordPattern", "MeaningPattern", "ExamplePattern", "CompositeMeaningText",
    "CompositeExampleText"].map(state);
const position = () => ["HitCount", "ListPageNo", "ListFirstPos", "ListLastPos", "EntryFirstPos"].map(state);

// Without a word part: the key leaves the store to the search, which does not come to it; the button deletes it.
for (const [by, stays] of [["Enter", true], ["button", false]]) {
    search("w/T:訳/E:例", by);
    check(pictures(), [14, 15, 17, 18], by + ": pages to be hidden");
    const before = [taken(), position()];
    for (const typed of ["/T:x", "/E:y"]) {
        search(typed, by);
        check([taken(), position()], before, by + " " + typed + ": nothing is taken, the place stays");
        check([items("frmFind.List1"), pictures(), statements()], [[], [], []], by + " " + typed + ": an empty list, no pictures");
        check(exists(store), stays, by + " " + typed + ": the store");
        check(status(), "検索中...", by + " " + typed + ": the status bar");
        check(state("StopRequested"), 0, by + " " + typed + ": no stop");
    }
}

// Without hits the number of the last ones stays, and the place.
search("w");
mouseDown("frmFind.Picture15");
clickRow("frmFind.List1", 1);
const place = position();
check(place, [5, 2, 4, 5, 5], "on the second page");
search("nothing/T:q");
check(position(), place, "no hits: the place stays");
check(taken(), [1, "nothing", "nothing%_%", "%Q%", "%%", "Q", ""], "but the texts are taken");
check([pictures(), size(store)], [[], 0], "no pictures, an empty store");

// Without the dictionary the word is taken, the conditions are not.
const content = readBytes(dictionary);
remove(dictionary);
answer("OK");
search("z/T:m/E:n");
check(boxes().map(box => box.title), ["設定辞書「留」の辞書データベースなし"], "told");
check(taken(), [3, "z", "z%_%", "%Q%", "%%", "Q", ""], "kind and word are taken, no more");
check([position(), size(store), statements()], [place, 0, []], "place and store stay");
writeBytes(dictionary, content);

// A text of blanks is a text for the button too.
for (const by of ["Enter", "button"]) {
    menu("mnuMidSrch");
    search(" ", by);
    check(statements()[0], "SELECT TOP 500 * FROM Dictionary WHERE Word Like '%_% %_%' ORDER BY Word ASC", by + ": a blank is sought");
    check([items("frmFind.List1"), text("frmFind.txtFind")], [["w 1", "w 2", "w 3"], " "], by + ": and found");
}
check(boxes(), [], "no other box");
