// The shared state as a start leaves it, the next start in the same folder too.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ash", null, 1, "灰", null], ["ask", null, 1, "尋ねる", "ask me"]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const initial = {
    SearchMode: 0, SearchTarget: 0, StopRequested: 0, ConvStopFlag: 1,
    CompositeKind: 0, SearchText: "", CompositeMeaningText: "", CompositeExampleText: "",
    WordPattern: "", MeaningPattern: "", ExamplePattern: "",
    IncListCount: 50, IncEntriesPerPage: 15, ListPageSize: 50, MaxListCount: 500, EntriesPerPage: 15, WordBookMax: 300,
    HitCount: 0, ListFirstPos: 0, ListLastPos: 0, ListPageNo: 0, EntryFirstPos: 0, EntryLastPos: 0,
    SearchConnection: false, SearchRecordset: false, ViewConnection: false, ViewRecordset: false,
    IncWords: [], IncAutoIDs: [], CurrentDicName: "英和", CurrentDicPath: drivePath(dictionary),
    CatalogueFlag1: -1, CatalogueFlag2: -1, ListHidden: 0,
    CurrentWord: "", CurrentAutoID: 0, SavedIncSearchText: "", EditOpenMode: 0, SpeechEnabled: 0,
    PageFirstWord: "", PageFirstAutoID: 0, PageLastWord: "", PageLastAutoID: 0,
    ListClickActive: 0, ListClickIndex: 0, ListClickAutoID: 0, ListIsFresh: 1,
};
const look = () => {
    const found = {};
    for (const name of Object.keys(initial))
        found[name] = state(name);
    return found;
};
start();
check(look(), initial, "the first start");
check(state("FontNames").length, 9, "nine fonts");
for (const field of ["FontSizes", "FontColors", "FontBolds", "FontItalics", "FontStrikes", "FontUnderlines"])
    check(state(field).length, 9, "nine " + field);

// A run that leaves nothing as it was.
typeText("frmFind.txtFind", "as");
clickRow("frmFind.List1", 1);
menu("mnuSrchFromWord");
menu("mnuHideListBox");
menu("mnuTxtInExample");
setText("frmFind.txtFind", "me");
press("frmFind.txtFind", "Enter");
check([state("SearchMode"), state("SearchTarget"), state("HitCount"), state("SearchText"), state("ListHidden")],
    [5, 1, 1, "me", 1], "another mode, target, hit, and no list");
exit();
start();
check(look(), initial, "nothing of it comes back");
check(visible("frmFind.List1"), true, "the list is there");
check([text("frmFind.txtFind"), items("frmFind.List1")], ["", []], "and is empty");
