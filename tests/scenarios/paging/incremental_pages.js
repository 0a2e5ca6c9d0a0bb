// The two pictures that page through the entries of the incremental search.
const dictionary = tempDir() + "/twenty.mdb";
const rows = [];
for (let i = 20; i >= 1; --i)
    rows.push(["w" + String(i).padStart(2, "0"), null, 1, "訳" + i, null]);
makeDictionary(dictionary, rows);
setCatalogue([{name: "二十", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "01006050005001503000\r\n");
start();

const home = drivePath(appFile("home.html"));
const entries = () => (page().match(/sty3>[^<]*/g) || []).map(found => Number(found.slice(6)));
const from = (first, last) => Array.from({length: last - first + 1}, (_, i) => first + i);
const back = () => mouseDown("frmFind.Picture19");
const forward = () => mouseDown("frmFind.Picture20");
const bound = (action, message) => {
    const shown = entries();
    navigations();
    answer("OK");
    action();
    const box = boxes()[0];
    check(box.title, "見出し語内容", message);
    check(box.text, message, "its text");
    check([box.icon, box.beep], [48, 48], "an exclamation with its beep");
    check(navigations(), [], "the page in the pane stays");
    check(page(), readText(appFile("sscDefi.dat")), "of the file only the header is written");
    return shown;
};

check(toolTip("frmFind.Picture19"), "見出し語内容を6件前へ移動", "the tool tips give the number");
check(toolTip("frmFind.Picture20"), "見出し語内容を6件先へ移動", "of entries");
navigations();
back();
forward();
check(navigations(), [], "before any page nothing happens");
check(boxes(), [], "and nothing is said");

typeText("frmFind.txtFind", "w03");
const list = items("frmFind.List1");
check(entries(), from(3, 8), "the page of the text");
navigations();
forward();
check(entries(), from(9, 14), "the next page");
check(navigations(), [home], "is shown once");
check(state("PageFirstWord"), "w09", "its first headword");
check(state("PageFirstAutoID"), 12, "and number");
check(items("frmFind.List1"), list, "the list does not follow");
check(text("frmFind.txtFind"), "w03", "nor does the text");
check(selectedRow("frmFind.List1"), -1, "nothing is selected");
check(state("ViewConnection"), false, "nothing stays open");
forward();
check(entries(), from(15, 20), "a page that ends with the table");
forward();
check(entries(), [20], "then the last row alone, for the count of steps");
check(state("PageFirstWord"), "w20", "is the page's first");
bound(forward, "データの末尾に到達しました！");
check(state("ViewConnection"), true, "the table stays open until the next operation");
bound(forward, "データの末尾に到達しました！");
check(state("PageFirstWord"), "w20", "the place stays");

back();
check(entries(), from(14, 19), "back from the last row: a full page in front of it");
back();
check(entries(), from(8, 13), "and again");
back();
check(entries(), from(2, 7), "and again");
back();
check(entries(), [1], "what is left in front, beginning with the first record");
check(state("PageFirstWord"), "w01", "which is the page's first");
bound(back, "データの先頭に到達しました！");
forward();
check(entries(), from(7, 12), "forward goes by a whole page, whatever was shown");

// Pages that meet the end of the table.
setText("frmFind.txtFind", "w16");
check(entries(), from(16, 20), "a short page");
forward();
check(entries(), [20], "is followed by the last row");
setText("frmFind.txtFind", "w19");
forward();
check(entries(), [20], "so is the last but one");
setText("frmFind.txtFind", "w04");
back();
check(entries(), from(1, 3), "three rows in front are a page of three");
clickRow("frmFind.List1", 3);
check(entries(), from(7, 12), "a click");
back();
check(entries(), from(1, 6), "is where paging starts from");
check(statements(), [], "no statement was needed");
