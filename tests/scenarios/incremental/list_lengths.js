// The lengths of list and page: the least, the greatest, and none.
const dictionary = tempDir() + "/many.mdb";
const rows = [];
for (let i = 0; i < 1200; ++i)
    rows.push(["w" + String(i).padStart(4, "0"), null, 1, "訳" + i, null]);
makeDictionary(dictionary, rows);
setCatalogue([{name: "多数", path: dictionary, selected: true}]);

const entries = () => (page().match(/sty3>[^<]*/g) || []).length;
const startWith = (list, perPage) => {
    writeText(appFile("ListDefi.dat"), list + perPage + "050005001503000\r\n");
    start();
    check(state("IncListCount"), Number(list), "rows of the list: " + list);
    check(state("IncEntriesPerPage"), Number(perPage), "entries of the page: " + perPage);
};

startWith("050", "15");
typeText("frmFind.txtFind", "w");
check(items("frmFind.List1").length, 50, "the usual list");
check(entries(), 15, "and page");
check(state("PageLastWord"), "w0049", "the last row of the list");
exit();

startWith("999", "99");
typeText("frmFind.txtFind", "w");
check(items("frmFind.List1").length, 999, "the greatest list");
check(entries(), 99, "and page");
check(state("IncWords").length, 1000, "with the spare element");
check(state("PageLastWord"), "w0998", "its last row");
clickRow("frmFind.List1", 998);
check(text("frmFind.txtFind"), "w0998", "the last row can be clicked");
check(selectedRow("frmFind.List1"), 998, "and stays selected");
check(entries(), 99, "its page goes beyond the list");
menu("mnuSrchFromWord");
check(items("frmFind.List1"), ["w0998"], "the limited list");
setText("frmFind.txtFind", "w");
check(items("frmFind.List1").length, 999, "is as long");
clickRow("frmFind.List1", 990);
check(entries(), 9, "there a page ends with the list");
exit();

startWith("001", "15");
typeText("frmFind.txtFind", "w05");
check(items("frmFind.List1"), ["w0500"], "a list of one row");
check(entries(), 1, "has a page of one entry");
check(state("PageLastWord"), "w0500", "which is the last too");
menu("mnuSrchFromWord");
check(items("frmFind.List1"), ["w0500"], "the limited one as well");
statements();
exit();

startWith("010", "03");
setText("frmFind.txtFind", "w1198");
check(items("frmFind.List1"), ["w1198", "w1199"], "the end of the table");
check(state("PageLastWord"), "", "does not reach the list's last row");
exit();

// No rows at all: an empty list, an empty page, no failure.
startWith("000", "15");
navigations();
typeText("frmFind.txtFind", "w");
check(items("frmFind.List1"), [], "no rows");
check(entries(), 0, "no entries");
check(navigations().length, 1, "the page is shown");
check(page(), readText(appFile("sscDefi.dat")) + "</BODY></HTML>\r\n", "and whole");
menu("mnuSrchFromWord");
check(items("frmFind.List1"), [], "no rows of the limited list");
check(statements(), ["SELECT TOP 0 * FROM Dictionary WHERE WordPhrase = 1 AND Word like 'w%' ORDER BY Word, AutoID ASC"],
    "its statement asks for none");
check(status(), "", "nothing is left in the status bar");
exit();

startWith("010", "00");
typeText("frmFind.txtFind", "w");
check(items("frmFind.List1").length, 10, "rows without entries");
check(entries(), 0, "leave the page empty");
clickRow("frmFind.List1", 3);
check(entries(), 0, "also by a click");
menu("mnuSrchFromWord");
check(entries(), 0, "and of the limited search");
check(boxes(), [], "no box in all that");
