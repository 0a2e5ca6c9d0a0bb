// What is wrong with an entry, in its order, each with its box; the entry and the dialog stay as they are.
const folder = tempDir();
const dictionary = folder + "/words.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}, {name: "Ｂook カナ", path: dictionary}]);
start();
menu("mnuDicAdd");
const before = state("Lexicons");
const refused = (title, message, what) => {
    answer("OK");
    click("frmDicList.ButtonOK");
    const [box] = boxes();
    check([box.title, box.text], [title, message], what);
    check([box.icon, box.beep, box.buttons], [48, 48, ["OK"]], what + ": icon, beep, button");
    check(state("Lexicons"), before, what + ": nothing is stored");
    check(state("frmDicList.IsDicListDirty"), 0, what + ": nothing has changed");
};
const inUse = name => "辞書名「" + name + "」は既に使用されています。\r\n\r\n別の名前をお使い下さい。";
const noFile = "辞書データファイルが選択されていません！\r\n\r\n右下のボタンをクリックしてダイアログボックスを表示し、\r\n" +
    "辞書データファイルを選択してください。";
const tooLong = (what, subject, length) => what + "が長すぎます！ (文字長: " + length + " バイト)\r\n\r\n" + subject +
    "の長さは半角文字一文字を１、全角文字一文字を２\r\nと計算して、合計が５０文字(バイト)以内にしてください。";
const chooseFile = path => {
    answerFile(path);
    click("frmDicList.Command1");
    boxes();
};

// 1: an edit takes a name that another entry bears.
clickRow("frmDicList.DicList", 0);
click("frmDicList.ButtonChange");
setText("frmDicList.Text1", " bOOK　ｶﾅ ");
refused("辞書名の重複", inUse("bOOK　ｶﾅ"), "the other entry's name");
check([focused(), selectedText("frmDicList.Text1")], ["frmDicList.Text1", " bOOK　ｶﾅ "], "the name is selected");
check(enabled("frmDicList.ButtonOK"), true, "and can be typed anew");
click("frmDicList.ButtonCancel");

// 2, 3: an addition without a file, without a name.
click("frmDicList.ButtonAdd");
setText("frmDicList.Text1", "");
refused("辞書データファイルの未選択", noFile, "no file, before no name");
check(focused() !== "frmDicList.Text1" || selectedText("frmDicList.Text1") === "", true, "the dialog stays as it is");
chooseFile(dictionary);
setText("frmDicList.Text1", " 　");
refused("辞書名なし", "辞書名が入力されていません！\r\n\r\n任意の辞書名を入力してください。", "blanks are no name");

// 4: the length of a name, in bytes.
setText("frmDicList.Text1", "語".repeat(26));
refused("不適切な辞書名", tooLong("辞書名", "辞書名", 52), "26 double-byte characters");
setText("frmDicList.Text1", "x".repeat(51));
refused("不適切な辞書名", tooLong("辞書名", "辞書名", 51), "51 single-byte characters");

// 5: that of a path, with a text that speaks of 50.
setText("frmDicList.Text1", "長い");
const longPath = total => {
    const start = drivePath(folder) + "\\";
    const rest = total - start.length - "\\a.mdb".length;
    const part = "p".repeat(Math.floor(rest / 2));
    return folder + "/" + part + "/" + "q".repeat(rest - part.length - 1) + "/a.mdb";
};
const exactly255 = longPath(255), exactly256 = longPath(256);
makeDictionary(exactly255, [["far", null, 1, "遠い", null]]);
makeDictionary(exactly256, [["farther", null, 1, "より遠い", null]]);
check(drivePath(exactly256).length, 256, "a path of 256 bytes");
chooseFile(exactly256);
refused("不適切なファイルパス長", tooLong("辞書のファイルパス", "ファイルパス", 256), "a path of 256 bytes");

// 6: a file that went.
const gone = folder + "/gone.mdb";
makeDictionary(gone, []);
chooseFile(gone);
remove(gone);
refused("辞書データファイルパスの誤り", "辞書データベース「" + drivePath(gone) + "」は存在しません！\r\n\r\n" +
    "辞書の設定後にデータファイルを削除、またはパス（保存場所）が変更されています。\r\n" +
    "確認後、正しい辞書データファイルを選択してください。", "the file went meanwhile");
check(caption("frmDicList"), "新規追加", "the dialog still adds");

// What is just short enough.
chooseFile(exactly255);
setText("frmDicList.Text1", "語".repeat(25));
click("frmDicList.ButtonOK");
check(boxes(), [], "25 double-byte characters and a path of 255 bytes pass");
check(state("Lexicons")[2].DicPath.length, 255, "the path is stored whole");
click("frmDicList.ButtonAdd");
setText("frmDicList.Text1", "かきく");
chooseFile(dictionary);
click("frmDicList.ButtonOK");
click("frmDicList.ButtonQuit");
const record = readBytes(appFile("lexicons.dat")).slice(2 * 309, 3 * 309);
check(record.slice(0, 50), "\x8c\xea".repeat(25), "the name fills its field");
check(record.slice(50, 305), drivePath(exactly255), "so does the path");
check(readBytes(appFile("lexicons.dat")).slice(3 * 309, 3 * 309 + 50), "\x82\xa9\x82\xab\x82\xad" + " ".repeat(44),
      "three kana are six bytes");
exit();
start();
check(items("frmFind.Combo1"), ["英和", "Ｂook カナ", "語".repeat(25), "かきく"], "all come back");
choose("frmFind.Combo1", 2);
typeText("frmFind.txtFind", "far");
check(items("frmFind.List1"), ["far"], "and are searched");
