// The checks of the two files, in their order: sounds, boxes, answers, and what becomes of the target.
start();
const form = "frmDataConv.";
const folder = tempDir();
const source = folder + "/word list.txt";
writeText(source, "■a : b\r\n");
const there = drivePath(folder);
menu("mnuCnv");

// Starts with the answers and gives the boxes behind the confirmation; a run that begins ends in the counting.
const attempt = (format, sourcePath, target, answers) => {
    if (!isOpen("frmDataConv"))
        menu("mnuCnv");
    choose(form + "ConvDicLst", format);
    if (sourcePath) {
        answerFile(sourcePath);
        click(form + "sourceButton");
    }
    setText(form + "TargetFile", target);
    boxes();
    answer("はい");
    for (const word of answers)
        answer(word);
    click(form + "StartButton");
    return boxes().slice(1);
};
const seen = box => [box.title, box.icon, box.beep, box.buttons, box.answer];
const idle = what => check([caption(form + "StartButton"), state("ConvStopFlag"), enabled(form + "TargetFile"), pointer()],
    ["スタート", 1, true, 0], what + ": the dialog stays idle");

// 1: no source.
let [box] = attempt(0, null, "x", ["OK"]);
check(seen(box), ["変換元テキストファイルの未選択", 48, 48, ["OK"], "OK"], "no source");
check(box.text, "変換元のテキストファイルが選択されていません！\r\n\r\nダイアログボックスを表示し、ファイルを指定してください。", "its words");
idle("no source");

// 2 to 6: targets that end the checks.
const refused = [
    ["", "辞書データベースファイル名なし", 48, "変換先のWordmere辞書ファイル名がありません！\r\n\r\nダイアログボックスを表示し、ファイルを指定してください。"],
    ["C:\\dic\\a", "ピリオドなし", 48, "変換先のWordmere辞書ファイル名とその拡張子を分けるピリオドが\r\n変換先ファイル中にありません！ファイル名を正しく指定してください。"],
    ["a.mdb", "円マークなし", 48, "変換先のWordmere辞書ファイルの存在するドライブまたはフォルダとを分ける\r\n\r\n円マーク(\\)がこのファイルパス中ありません！ファイルパスを正しく指定してください。"],
    ["C:a.mdb", "円マークなし", 48, null],
    ["a\\b.mdb", "ドライブ名なし", 32, "変換先のWordmere辞書ファイルのパス中にドライブ名が見つかりません。(例：「C:\\」) \r\n\r\n確認後、ドライブならびにパスを正しく指定してください。"],
    ["12:\\b.mdb", "ドライブ名なし", 32, null],
    ["C:\\.mdb", "辞書データベースファイル名なし", 48, "変換先のWordmere辞書ファイル名が拡張子のみです！\r\n\r\nファイル名を正しく指定してください。"],
    ["C:\\dic\\ 　.mdb", "辞書データベースファイル名なし", 48, null],
];
for (const [target, title, beep, words] of refused) {
    [box] = attempt(0, source, target, ["OK"]);
    check(seen(box), [title, 48, beep, ["OK"], "OK"], JSON.stringify(target));
    if (words)
        check(box.text, words, JSON.stringify(target) + ": its words");
    check(text(form + "TargetFile"), target, JSON.stringify(target) + " stays as it was typed");
    idle(JSON.stringify(target));
}

// 7: the extension is missing.
const noExtension = "変換先のWordmere辞書ファイル名に拡張子がありません。\r\n\r\n拡張子「mdb」が必要です。ファイル名の後に「mdb」を付けますか？";
const wrong = ext => "変換先のWordmere辞書ファイルの拡張子は「mdb」です。\r\n\r\n拡張子が「" + ext +
    "」ではWordmere形式の辞書に正しく変換出来ません。\r\n\r\nOKボタンをクリックすると拡張子は自動的に「" + ext + "」から「mdb」に置換されます。";
const missing = folder + "/none.txt"; // the counting fails, so that nothing is converted
const endWords = ["OK", "OK"];
let found = attempt(0, missing, there + "\\a.", ["はい", ...endWords]);
check(seen(found[0]), ["ファイル拡張子なし", 64, 64, ["はい", "いいえ"], "はい"], "no extension");
check(found[0].text, noExtension, "its words");
check(text(form + "TargetFile"), there + "\\a.mdb", "はい appends it");
ok(exists(folder + "/a.mdb"), "and the target is made");
check(found.map(b => b.title), ["ファイル拡張子なし", "データ変換異常終了", "Wordmere"], "without a further question");
found = attempt(0, missing, there + "\\b．", ["はい", ...endWords]);
check(text(form + "TargetFile"), there + "\\b．.mdb", "behind a full-width period, with a period");
found = attempt(0, missing, there + "\\c.", ["いいえ", "OK", ...endWords]);
check(found.map(b => b.title), ["ファイル拡張子なし", "ファイル拡張子の誤り", "データ変換異常終了", "Wordmere"], "いいえ leads to the next question");
check(seen(found[1]), ["ファイル拡張子の誤り", 48, 32, ["OK", "キャンセル"], "OK"], "which has OK and cancel");
check(found[1].text, wrong(""), "and an empty extension");
check(text(form + "TargetFile"), there + "\\c.MDB", "OK puts the extension in capitals");
[, box] = attempt(0, missing, there + "\\d.", ["いいえ", "キャンセル"]);
check(text(form + "TargetFile"), there + "\\d.", "cancelled, the target stays");
idle("cancelled");

// 8: another extension.
found = attempt(0, missing, there + "\\e.txt", ["OK", ...endWords]);
check(found[0].text, wrong("TXT"), "another extension");
check(text(form + "TargetFile"), there + "\\e.MDB", "is replaced");
ok(exists(folder + "/e.MDB"), "and the file made under that name");
mkdir(folder + "/my.dir");
found = attempt(0, missing, there + "\\my.dir\\f", ["OK", ...endWords]);
check(found[0].text, wrong("DIR\\F"), "a period in a folder's name counts");
check(text(form + "TargetFile"), there + "\\my.MDB", "and is where the name ends");
[box] = attempt(0, missing, there + "\\g.txt", ["キャンセル"]);
check(box.title, "ファイル拡張子の誤り", "cancelled");
check(text(form + "TargetFile"), there + "\\g.txt", "it stays");
ok(!exists(folder + "/g.MDB"), "and nothing is made");
idle("cancelled");
found = attempt(0, missing, there + "\\h.Mdb", endWords);
check(found[0].title, "データ変換異常終了", "case does not matter");
ok(exists(folder + "/h.Mdb"), "and stays in the name");

// 9: the target exists.
[box] = attempt(0, source, there + "\\a.mdb", ["いいえ"]);
check(seen(box), ["データベースファイルあり", 32, 32, ["はい", "いいえ"], "いいえ"], "the target exists");
check(box.text, "変換先のWordmere辞書ファイル「" + there + "\\a.mdb」は既に存在します！\r\n\r\n" +
    "この辞書に変換元のデータが追加されます。追加後の辞書は元の状態には戻りません。\r\n" +
    "追加する場合は、変換処理前に辞書ファイルのバックアップをお勧めします。\r\n\r\n" +
    "このまま変換元のデータを追加してよろしいですか？", "its words");
idle("not added to");
check(rows(folder + "/a.mdb"), [], "and nothing is added");

// 10 and 11: extensions of the source.
const dic = folder + "/my words.DiC";
writeText(dic, "a\r\nb\r\n");
found = attempt(2, dic, there + "\\i.mdb", ["いいえ"]);
check(seen(found[0]), ["ＰＤＩＣテキストの確認", 48, 32, ["はい", "いいえ"], "いいえ"], "a PDIC source that may be binary");
check(found[0].text, "変換元のテキストファイル「my words」の拡張子は「DIC」です。\r\n\r\n" +
    "拡張子が「DIC」のファイルは多くの場合、ＰＤＩＣ専用のデータ形式で'バイナリ'ファイルです。\r\n\r\n" +
    "現在、Wordmereでは変換元ファイルは'テキスト'ファイルのみ可能であり、ＰＤＩＣ'バイナリ'形式のファイルが選択された場合、正しく変換できません。\r\n\r\n" +
    "変換元のファイルは間違いなくＰＤＩＣ'テキスト'ファイルですか？", "its words");
check(rows(folder + "/i.mdb"), [], "the target was made all the same");
idle("refused");
[box] = attempt(4, source, there + "\\j.mdb", ["いいえ"]);
check(seen(box), ["変換元ファイルの確認", 48, 32, ["はい", "いいえ"], "いいえ"], "a glossary that is no csv");
check(box.text, "変換元のテキストファイル「word list」の拡張子は「TXT」です。\r\n\r\n" +
    "'MS Glossary'ファイルの拡張子は通常、カンマ区切りデータの「CSV」が使用されています。\r\n\r\n" +
    "変換元ファイルを誤って選択するとデータは正しく変換できません。\r\n\r\n" +
    "変換元のファイルは間違いなく'MS Glossary'ファイルですか？", "its words");
idle("refused");
found = attempt(2, dic, there + "\\i.mdb", ["はい", "はい", "OK", "OK"]);
check(found.map(b => b.title), ["データベースファイルあり", "ＰＤＩＣテキストの確認", "変換処理エラー", "変換処理未完了"], "agreed to, the run goes on");
check(attempt(0, dic, there + "\\k.mdb", ["OK"]).map(b => b.title), ["変換処理終了"], "the other formats do not ask");

// A path of the host is taken as its drive path.
found = attempt(0, source, folder + "/host.mdb", ["OK"]);
check(found.map(b => b.title), ["変換処理終了"], "a typed host path serves");
ok(exists(folder + "/host.mdb"), "as the file that it names");
