// What is wrong with the two paths, in its order, each with its box.
const folder = tempDir();
const dictionary = folder + "/a.mdb", gone = folder + "/gone.mdb";
makeDictionary(dictionary, [["ice", null, 1, "氷", null]]);
const drive = drivePath(folder) + "\\";
setCatalogue([{name: "氷", path: dictionary, selected: true}, {name: "ない", path: gone}, {name: "遠い", path: "Q:\\far.mdb"}]);
start();
menu("mnuCompress");
const untouched = readBytes(dictionary);

const startWith = (backup, ...answers) => {
    if (backup !== null)
        setText("frmDBCompress.Text1", backup);
    answers.forEach(one => answer(one));
    click("frmDBCompress.Command2");
    const shown = boxes();
    check(state("frmDBCompress.IsOptimizing"), 0, "nothing is under way");
    check(visible("frmDBCompress.Command2"), true, "the dialog stays as it was");
    check(readBytes(dictionary), untouched, "the database is untouched");
    return shown;
};
const only = (shown, title, message, [icon, beep, buttons], what) => {
    check(shown.length, 1, what + ": one box");
    check([shown[0].title, shown[0].text], [title, message], what);
    check([shown[0].icon, shown[0].beep, shown[0].buttons], [icon, beep, buttons], what + ": icon, beep, buttons");
};
const warning = [48, 48, ["OK"]];

only(startWith(null, "OK"), "バックアップ用データベースファイル名なし",
     "最適化を行うファイルのファイルパスならびにファイル名が指定されていません！\r\n\r\nリストの中からファイルを指定してください。",
     warning, "nothing is chosen");
choose("frmDBCompress.Combo1", 1);
only(startWith("", "OK"), "最適化ファイルなし", "「" + drivePath(gone) + "」は存在しません！\r\n\r\n" +
     "このファイルは辞書の設定後に名前が変更されたか別のフォルダに移動、または削除された可能性があります。", [32, 32, ["OK"]],
     "the database is missing");
choose("frmDBCompress.Combo1", 2);
const badDrive = "最適化またはバックアップファイルの指定したパスのドライブ名が不正です！\r\n\r\n" +
    "ドライブがCD-ROMなどの読み取り専用かリムーバブルデスクの可能性があります。";
only(startWith(null, "OK"), "ドライブ名の不正", badDrive, [32, 32, ["OK"]], "the database's drive is missing");

choose("frmDBCompress.Combo1", 0);
only(startWith(" 　", "OK"), "バックアップ用データベースファイル名なし",
     "ファイルパスならびにファイル名が指定されていません！\r\n\r\nダイアログボックスを表示し、ファイルを指定してください。",
     warning, "no backup");
only(startWith("Z:\\backup", "OK"), "拡張子(またはピリオド)なし",
     "バックアップファイル名とその拡張子を分けるピリオドが\r\n" +
     "新規ファイル名の中にありません！ファイル名と拡張子を正しく指定してください。", warning, "no period");
only(startWith("backup.mdb", "OK"), "パスが不正(円マークなし)",
     "バックアップファイルが保存されるドライブまたはフォルダとを分ける\r\n\r\n" +
     "円マーク(\\)がこのファイルパス中ありません！ファイルパスを正しく指定してください。", warning, "no backslash");
only(startWith("\\dic\\backup.mdb", "OK"), "ドライブ名なし",
     "バックアップファイルのパス中にドライブ名が見つかりません。(例：「C:\\」) \r\n\r\n" +
     "確認後、ドライブならびにパスを正しく指定してください。", warning, "no drive");
only(startWith("Z:\\ .mdb", "OK"), "バックアップファイル名なし",
     "バックアップファイル名が拡張子のみです！\r\n\r\nファイル名を正しく指定してください。", warning, "no name");

// The extension.
const missing = ["ファイル拡張子なし", "バックアップファイル名に拡張子がありません。\r\n\r\n" +
    "拡張子「mdb」が必要です。ファイル名の後に「mdb」を付けますか？"];
const other = extension => ["異なったファイル拡張子",
    "Wordmere辞書ファイルの拡張子は「mdb」です。継続してこの拡張子を使用することをお勧めします。\r\n\r\n拡張子が「" + extension +
    "」では復旧後に正しく使用出来ない可能性があります。\r\n\r\nＯＫボタンをクリックすると拡張子は自動的に「" + extension +
    "」から「mdb」に置換されます。"];
const existing = folder + "/old.mdb";
writeBytes(existing, "old");
const clash = path => ["データベースファイル名の重複", "バックアップファイル名「" + path + "」は既に存在します！\r\n\r\n" +
    "別の名前に変更するか既存のファイルを別のフォルダに移動、または削除してから処理を行ってください。"];
const told = shown => shown.map(box => [box.title, box.text]);

let shown = startWith(drive + "old.", "はい", "OK");
check(told(shown), [missing, clash(drive + "old.mdb")], "the extension is added, then the backup exists");
check([shown[0].icon, shown[0].beep, shown[0].buttons], [32, 32, ["はい", "いいえ"]], "the question's icon, beep, buttons");
check([shown[1].icon, shown[1].beep, shown[1].buttons], [48, 32, ["OK"]], "the clash's icon, beep, button");
check(text("frmDBCompress.Text1"), drive + "old.mdb", "the field has it too");
shown = startWith(drive + "old.", "いいえ", "キャンセル");
check(told(shown), [missing, other("")], "without an extension it is another one");
check([shown[1].icon, shown[1].beep, shown[1].buttons], [48, 48, ["OK", "キャンセル"]], "icon, beep, buttons");
check(text("frmDBCompress.Text1"), drive + "old.", "cancelled: the field stays");
writeBytes(folder + "/old.MDB", "old");
shown = startWith(drive + "old.txt", "OK", "OK");
check(told(shown), [other("TXT"), clash(drive + "old.MDB")], "another extension is replaced");
check(text("frmDBCompress.Text1"), drive + "old.MDB", "in the field too");
shown = startWith(drive + "d.ic\\backup", "キャンセル");
check(told(shown), [other("IC\\BACKUP")], "a period in a folder's name alone");
writeBytes(folder + "/old.Mdb", "old");
check(told(startWith(drive + "old.Mdb", "OK")), [clash(drive + "old.Mdb")], "capitals do not matter");

// Drives, and paths as this machine writes them.
only(startWith("Q:\\backup.mdb", "OK"), "ドライブ名の不正", badDrive, [32, 32, ["OK"]], "the backup's drive is missing");
check(told(startWith(existing, "OK")), [clash(drive + "old.mdb")], "a path of this machine");
check(text("frmDBCompress.Text1"), drive + "old.mdb", "becomes a drive path, in the field too");
check(told(startWith(drivePath(dictionary), "OK")), [clash(drivePath(dictionary))], "the database itself exists already");

// Without a backup the path is checked all the same, but for what stands there.
const without = ["バックアップファイル作成確認", "「バックアップファイルを作成しない」オプションが選択されています！\r\n\r\n" +
    "本当にバックアップファイルを作成せずに処理を進めてよろしいですか？"];
const uncheckedWith = backup => {
    if (checked("frmDBCompress.Check1"))
        click("frmDBCompress.Check1");
    setText("frmDBCompress.Text1", backup);
    click("frmDBCompress.Check1");
};
uncheckedWith(drivePath(dictionary));
shown = startWith(null, "キャンセル");
check(told(shown), [without], "first it is asked for");
check([shown[0].icon, shown[0].beep, shown[0].buttons], [32, 32, ["OK", "キャンセル"]], "icon, beep, buttons");
shown = startWith(null, "OK", "OK");
check(told(shown), [without, ["同一ファイル", "最適化ファイルとバックアップファイルが同じです！\r\n\r\nファイルを正しく選択してください。"]],
      "both paths are the same");
check([shown[1].icon, shown[1].beep, shown[1].buttons], [48, 48, ["OK"]], "icon, beep, button");
uncheckedWith("backup");
check(told(startWith(null, "OK", "OK"))[1][0], "拡張子(またはピリオド)なし", "the form of the path counts");
uncheckedWith(drive + "old.txt");
check(told(startWith(null, "OK", "キャンセル"))[1][0], "異なったファイル拡張子", "so does its extension");

// The free space, on the drive of the database.
click("frmDBCompress.Check1");
const grouped = number => String(number).replace(/(\d)(?=(\d{3})+$)/g, "$1,");
freeSpace(size(dictionary) - 1);
only(startWith(drive + "new.mdb", "OK"), "ドライブの空き容量不足",
     "最適化を行うためには、バックアップファイルを保存するディスクドライブに最適化するファイルと同じサイズのファイルを保存できる" +
     "空き領域が必要です。空き容量を確保してからもう一度処理を行ってください。\r\n\r\n最適化するファイルのサイズ： " +
     grouped(size(dictionary)) + " バイト\r\n利用可能なドライブの空き容量： " + grouped(size(dictionary) - 1) + " バイト",
     warning, "too little space");
check([exists(folder + "/new.mdb"), readBytes(existing)], [false, "old"], "nothing was written anywhere");
closeForm("frmDBCompress");
