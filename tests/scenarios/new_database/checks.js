// Each check of the path: its box, its sound, its answers, and what becomes of the text.
const folder = tempDir();
const dos = drivePath(folder);
start();
menu("mnuFileCreate");

function create(path, ...answers) {
    setText("frmCreateDB.Text1", path);
    for (const word of answers)
        answer(word);
    click("frmCreateDB.Command2");
    return boxes();
}
const shape = box => [box.beep, box.icon, box.buttons, box.title, box.text];
const refusals = {
    empty: [48, 48, ["OK"], "新規辞書データベースファイル名なし",
        "ファイルパスならびにファイル名が指定されていません！\r\n\r\nダイアログボックスを表示し、ファイルを指定してください。"],
    period: [48, 48, ["OK"], "拡張子(またはピリオド)なし",
        "変換先のWordmere辞書ファイル名とその拡張子を分けるピリオドが\r\n" +
        "新規ファイル名の中にありません！ファイル名と拡張子を正しく指定してください。"],
    backslash: [48, 48, ["OK"], "パスが不正(円マークなし)",
        "新規のWordmere辞書ファイル作成されるパスにはドライブ名とフォルダとを分ける\r\n\r\n" +
        "円マーク(\\)がこのファイルパス中ありません！ファイルパスを正しく指定してください。"],
    drive: [48, 48, ["OK"], "ドライブ名なし",
        "新規のWordmere辞書ファイルのパス中にドライブ名が見つかりません。(例：「C:\\」) \r\n\r\n" +
        "確認後、ドライブならびにパスを正しく指定してください。"],
    stem: [48, 48, ["OK"], "辞書データベースファイル名なし",
        "新規のWordmere辞書ファイル名が拡張子のみです！\r\n\r\nファイル名を正しく指定してください。"],
};
const refused = [
    ["", "empty"], ["  ", "empty"], ["　 ", "empty"],
    ["C:\\dic\\new", "period"], ["new", "period"],
    ["C:new.mdb", "backslash"], ["new.mdb", "backslash"], ["C:/dic/new.mdb", "backslash"], [".", "backslash"],
    ["dic\\new.mdb", "drive"], ["\\dic\\new.mdb", "drive"], ["1:\\new.mdb", "drive"], ["CD:\\new.mdb", "drive"],
    ["Ｃ:\\new.mdb", "drive"], ["C：\\new.mdb", "drive"], ["\\\\server\\share\\new.mdb", "drive"],
    ["C:\\.mdb", "stem"], ["C:\\dic\\.mdb", "stem"], ["C:\\dic\\ .mdb", "stem"], ["C:\\.", "stem"],
];
for (const [path, which] of refused) {
    check(create(path, "OK").map(shape), [refusals[which]], "«" + path + "» is refused");
    check(text("frmCreateDB.Text1"), path, "and stays in the box");
}

// No extension: asked, and it may be given one.
const noExtension = [32, 32, ["はい", "いいえ"], "ファイル拡張子なし",
    "新規Wordmere辞書データベースファイル名に拡張子がありません。\r\n\r\n" +
    "拡張子「mdb」が必要です。ファイル名の後に「mdb」を付けますか？"];
const wrongExtension = extension => [48, 48, ["OK", "キャンセル"], "ファイル拡張子の誤り",
    "Wordmere辞書ファイルの拡張子は「mdb」です。\r\n\r\n拡張子が「" + extension +
    "」ではWordmere形式の辞書に正しく変換出来ません。\r\n\r\nOKボタンをクリックすると拡張子は自動的に「" + extension +
    "」から「mdb」に置換されます。"];
const done = stem => [48, 64, ["OK"], "新規辞書データベースファイルの作成完了",
    "データベースファイル「" + stem +
    ".mdb」が無事作成されました。Wordmereのデータベースとして使用するためには辞書の登録が必要です。\r\n\r\n" +
    "メニューバーのツールから辞書設定を選び、辞書の登録を行ってください。"];

check(create(dos + "\\yes.", "はい", "OK").map(shape), [noExtension, done("yes")], "the extension is put behind");
check(exists(folder + "/yes.mdb"), true, "in small letters");
check(text("frmCreateDB.Text1"), "", "the box is emptied");

check(create(dos + "\\no.", "いいえ", "キャンセル").map(shape), [noExtension, wrongExtension("")],
    "without it the extension is wrong");
check(text("frmCreateDB.Text1"), dos + "\\no.", "a refusal leaves the text");
check(create(dos + "\\no.", "いいえ", "OK", "OK").map(shape), [noExtension, wrongExtension(""), done("no")],
    "and is replaced");
check(exists(folder + "/no.MDB"), true, "in capitals");

// Another extension: replaced or refused.
check(create(dos + "\\new.txt", "キャンセル").map(shape), [wrongExtension("TXT")], "another extension is asked");
check(text("frmCreateDB.Text1"), dos + "\\new.txt", "a refusal leaves the text");
check(exists(folder + "/new.MDB"), false, "and makes nothing");
let shown = "";
setText("frmCreateDB.Text1", dos + "\\new.txt");
answer("OK");
answer(box => {
    shown = text("frmCreateDB.Text1");
    return "OK";
});
click("frmCreateDB.Command2");
check(boxes().map(shape), [wrongExtension("TXT"), done("new")], "it is replaced");
check(shown, dos + "\\new.MDB", "in the box too");
check(exists(folder + "/new.MDB"), true, "the file bears capitals");
check(create(dos + "\\a.b\\c", "キャンセル").map(shape), [wrongExtension("B\\C")], "a period of a folder counts");
check(create(dos + "\\ｚ.ｍｄｂ", "キャンセル").map(shape), [wrongExtension("ＭＤＢ")], "a wide extension is another one");
check(create(dos + "\\a.b.mdb", "OK").map(shape), [done("a.b")], "the last period counts");
check(create(dos + "\\Mixed.mDb", "OK").map(shape), [done("Mixed")], "case of the extension does not matter");
check(exists(folder + "/Mixed.mDb"), true, "and stays as it was typed");

// A file that is there is refused and not touched.
const taken = folder + "/taken.mdb";
writeText(taken, "mine");
const isTaken = path => [32, 32, ["OK"], "データベースファイル名の重複", "「" + path +
    "」は既に存在します！\r\n\r\n別の名前に変更するか既存のファイルを別のフォルダに移動、または削除してから処理を行ってください。"];
check(create(drivePath(taken), "OK").map(shape), [isTaken(drivePath(taken))], "a file that is there is refused");
check(text("frmCreateDB.Text1"), drivePath(taken), "its path stays in the box");
check(readText(taken), "mine", "the file is untouched");
check(create(dos + "\\taken.", "はい", "OK").map(shape), [noExtension, isTaken(drivePath(taken))],
    "also when the extension was put behind");
check(text("frmCreateDB.Text1"), drivePath(taken), "the box holds the new path");
check(create(" " + drivePath(taken) + " ", "OK").map(shape), [isTaken(drivePath(taken))], "blanks do not hide it");
check(text("frmCreateDB.Text1"), " " + drivePath(taken) + " ", "and stay in the box");
check(readText(taken), "mine", "the file is still untouched");
check(isOpen("frmCreateDB"), true, "the dialog stays open through it all");
check(enabled("frmFind"), false, "and the main window waits");
