// Entries whose files are not there: the start is silent, the first search tells.
const gone = tempDir() + "/gone.mdb";
const here = tempDir() + "/here.mdb";
makeDictionary(here, [["dew", null, 1, "露", null]]);
setCatalogue([{name: "消えた辞書", path: gone, selected: true}, {name: "よその国", path: "Q:\\far\\away.mdb"},
    {name: "ある", path: here}, {name: "名だけ", path: "relative.mdb"}]);
start();
check(boxes(), [], "a missing file is tolerated");
check([state("TableFirstWord"), state("TableFirstAutoID"), state("TableLastWord")], ["", 0, ""], "no table was read");
check([enabled("frmFind.Combo1"), enabled("frmFind.txtFind")], [true, true], "the boxes are open");
check(exists(gone), false, "the file is not made");

const expectMissing = (name, path) => {
    answer("OK");
    setText("frmFind.txtFind", "d");
    const [box] = boxes();
    check(box.title, "設定辞書「" + name + "」の辞書データベースなし", "the title");
    check(box.text, path + "\r\n\r\n上記の辞書データベースが存在しないかレコードが一件も登録されていません。\r\n" +
        "また、パスが変更されている可能性もあります。\r\n" +
        "メニューバーの [ツール]から [辞書設定] を選んで確認して下さい。", "the text");
    check([box.icon, box.beep, box.buttons], [16, 16, ["OK"]], "icon, beep and button");
    check(text("frmFind.txtFind"), "d", "what was typed stays");
};
expectMissing("消えた辞書", drivePath(gone));
choose("frmFind.Combo1", 1);
expectMissing("よその国", "Q:\\far\\away.mdb");
choose("frmFind.Combo1", 3);
expectMissing("名だけ", "relative.mdb");
choose("frmFind.Combo1", 2);
setText("frmFind.txtFind", "d");
check(items("frmFind.List1"), ["dew"], "the one that is there works");
check(exists(gone), false, "still nothing was made");
exit();
check(size(appFile("lexicons.dat")), 4 * 309, "and no entry is lost");
