// At most 255 entries are offered; more of them do no harm.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
const entry = number => ({name: "辞書" + number, path: tempDir() + "/" + number + ".mdb"});
for (const [count, offered] of [[255, 255], [256, 255], [300, 255]]) {
    const entries = [{name: "英和", path: dictionary, selected: true}];
    while (entries.length < count)
        entries.push(entry(entries.length + 1));
    setCatalogue(entries);
    start();
    menu("mnuCompress");
    check(items("frmDBCompress.Combo1").length, offered, count + " entries");
    choose("frmDBCompress.Combo1", 254);
    check(text("frmDBCompress.Label1"), "このデータベースファイルは辞書名が「辞書255」として使用されています。", "the last one's name");
    closeForm("frmDBCompress");
    menu("mnuDicAdd");
    check(items("frmDicList.DicList").length, count, "the catalogue's dialog lists all");
    closeForm("frmDicList");
    check(boxes(), [], "no box is shown");
    exit();
}
