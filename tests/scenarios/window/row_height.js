// The rows of the list are 1.3 times as high as those of a list that is written in the same font.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, Array.from({length: 120}, (_, i) => ["x" + i, null, 1, "語", null]));
setCatalogue(Array.from({length: 60}, (_, i) => ({name: "辞書" + i, path: dictionary, selected: i === 0})));
writeText(appFile("ListDefi.dat"), "12015050005001503000\r\n");
start();
setText("frmFind.txtFind", "x");

// How many rows a page of the list has, and so how high each is.
const rowHeight = list => {
    clickRow(list, 0);
    press(list, "PageDown");
    const rows = selectedRow(list) + 1;
    ok(rows > 3 && rows < items(list).length, list + " shows " + rows + " rows");
    return bounds(list).height / rows;
};
const high = rowHeight("frmFind.List1");
menu("mnuDicAdd");
check([fontOf("frmDicList.DicList").name, fontOf("frmDicList.DicList").size],
    [fontOf("frmFind.List1").name, fontOf("frmFind.List1").size], "the fonts are the same");
const share = high / rowHeight("frmDicList.DicList");
ok(share > 1.15 && share < 1.45, "a row is " + share.toFixed(2) + " times as high");
closeForm("frmDicList");
