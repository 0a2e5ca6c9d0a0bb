// What each format makes of its lines, and where its run departs from the others'.
start();
const form = "frmDataConv.";
const folder = tempDir();
let number = 0;
const target = () => folder + "/" + number + ".mdb";
const run = (format, content, answers, extension = ".csv") => {
    if (!isOpen("frmDataConv"))
        menu("mnuCnv");
    ++number;
    const source = folder + "/" + number + extension;
    writeText(source, content);
    choose(form + "ConvDicLst", format);
    answerFile(source);
    click(form + "sourceButton");
    answerFile(target());
    click(form + "targetButton");
    boxes();
    answer("はい");
    answers.forEach(word => answer(word));
    click(form + "StartButton");
    return boxes().slice(1);
};
const stored = () => rows(target()).sort((a, b) => a.AutoID - b.AutoID)
    .map(row => [row.Word, row.Pronunciation, row.WordPhrase, row.Description, row.Example]);
const log = () => readText(appFile("ConvErr.log"));
const unfinished = "変換処理は完了を待たずにキャンセルされました。";
const failureText = (number, source, description) => "変換元のファイルを確認してください。\r\n\r\nエラー番号: " + number +
    "\r\nエラーソース: " + source + "\r\nエラー内容: " + description;
const numberOf = box => Number(box.text.match(/エラー番号: (-?\d+)\r\n/)[1]);

// EIJIRO.
let found = run(0, ["■abandon  {動-1} : 〔計画などを〕断念する、中止する", "■kick the bucket  {句} : 死ぬ / 【用例】：He kicked the bucket.",
    "■apple : 【レベル】1、【発音！】aepl、【＠】アプル", "■noseparator", "apple : りんご", "", "■ : 空"].join("\r\n"), ["OK"]);
check(stored(), [
    ["abandon", "", 1, "{動-1} : 〔計画などを〕断念する、中止する", ""],
    ["kick the bucket", "", 2, "{句} : 死ぬ", "He kicked the bucket."],
    ["apple", "aepl、【＠】アプル", 1, "", ""],
    ["", "", 1, "空", ""]], "EIJIRO: rows");
check(log(), "■noseparator\r\napple : りんご\r\n\r\n", "EIJIRO: bad records as they were read");
check(found[0].text.split("\r\n").slice(0, 5), ["変換元レコード数: 7件", "", "変換不可レコード数: 3件", "", "最終変換レコード数: 4件"], "EIJIRO: the report");

// One-line text.
run(1, "apple /// りんご\\ 林檎\r\na /// b /// c\r\n  New York  ///  x \r\napple///りんご\r\n  bad one \r\n", ["OK"]);
check(stored(), [["apple", "", 1, "りんご●林檎", ""], ["a", "", 1, "b /// c", ""], ["New York", "", 2, " x ", ""]], "one line: rows");
check(log(), "apple///りんご\r\n  bad one \r\n", "one line: bad records untrimmed");

// Lengths.
const wide = count => "あ".repeat(count);
run(1, wide(256) + " /// " + wide(1025) + "\r\n", ["OK"]);
check(stored().map(row => [row[0].length, row[3].length]), [[255, 1024]], "texts are cut at the lengths of their columns");
run(3, `"w","${wide(65)}","d","${wide(1025)}"\r\n`, ["OK"]);
check(stored().map(row => [row[1].length, row[4].length]), [[64, 1024]], "pronunciations and examples too");

// CSV.
run(3, ['"ice cream","aiskri:m","アイスクリーム","ice cream cone"', '  "apple","","りんご",""　', '"a","b","c"', "  apple,b,c,d ", '　"a" x '].join("\r\n"), ["OK"]);
check(stored(), [["ice cream", "aiskri:m", 2, "アイスクリーム", "ice cream cone"], ["apple", "", 1, "りんご", ""]], "CSV: rows");
check(log(), '"a","b","c"\r\napple,b,c,d\r\n"a" x\r\n', "CSV: bad records trimmed");
for (const [line, number, what] of [["", 5, "an empty line"], [" 　 ", 5, "a blank line"], ["x", 5, "a line of one character"],
    ['"' + '"'.repeat(254) + '"', 6, "256 quote marks"], ['"' + "x".repeat(20) + '""""""","y"', 5, "a length below zero"]]) {
    found = run(3, '"a","","b",""\r\n' + line + '\r\n"c","","d",""\r\n', ["OK", "OK"]);
    check(found.map(box => [box.title, box.icon, box.beep]), [["変換処理エラー", 16, 0], ["変換処理未完了", 64, 0]], "CSV: " + what + " ends the run");
    check(numberOf(found[0]), number, "CSV: " + what + ": its number");
    check(found[1].text, unfinished, "CSV: " + what + " is no bad record");
    check(stored(), [["a", "", 1, "b", ""]], "CSV: " + what + ": the rows before stay");
}

// PDIC text.
const pairs = count => Array.from({length: count}, (_, i) => "w" + i + "\r\n m" + i + " ").join("\r\n") + "\r\n";
found = run(2, "\r\n空\r\n" + pairs(51) + "  New York\r\n\r\n　\r\n林檎\r\n", ["OK"]);
check(found.map(box => [box.title, box.text, box.icon, box.beep, box.buttons]), [["Wordmere", "無事変換されました。", 0, 0, ["OK"]]], "PDIC: the report");
check(stored().slice(0, 2), [["", "", 1, "空", ""], ["w0", "", 1, "m0", ""]], "PDIC: a blank first line is an empty word");
check(stored().slice(-2), [["New York", "", 2, "", ""], ["New York", "", 2, "林檎", ""]], "PDIC: a blank line is the word before");
found = run(2, pairs(25), ["OK", "OK"]);
check(found.map(box => box.title), ["変換処理エラー", "変換処理未完了"], "PDIC: fewer than 100 lines fail");
check(found[0].text, failureText(11, "Wordmere", found[0].text.split("エラー内容: ")[1]), "PDIC: by a division");
check(stored(), [["w0", "", 1, "m0", ""]], "PDIC: behind the first row");
const odd = pairs(150) + "last\r\n";
found = run(2, odd, ["OK", box => {
    check([state("ConvStopFlag"), caption(form + "Label1"), progress(form + "ProgressBar1").value], [0, "99%", 301], "PDIC: at the failure");
    return "OK";
}, "OK"]);
check([found[0].title, found[0].icon, found[0].beep, found[0].buttons], ["変換元レコードの行数誤り", 48, 32, ["OK", "キャンセル"]], "PDIC: odd lines are asked about");
check(found[0].text, "変換元のレコード行数が奇数です。\r\n" +
    "このデータ形式は奇数行が見出し語、偶数数行が訳語の２行一組の形式から成るテキストファイルです。\r\n\r\n" +
    "変換元のファイルは間違いなく「ＰＤＩＣテキスト」形式の辞書ですか？\r\n\r\n" +
    "このまま継続しますと最後のレコードは処理されず、データ形式誤りのエラーメッセージが表示されます。\r\n\r\n" +
    "[OKボタン]をクリックするとこのまま処理を続けます。", "PDIC: its words");
check([found[1].title, found[1].icon, found[1].beep], ["変換元のファイルの誤り", 48, 0], "PDIC: the missing translation is told");
check(found[1].text, "変換元のファイルがＰＤＩＣテキスト形式とは異なるか\r\nまたはバイナリ形式のファイルである可能性があります。\r\n" +
    "変換元のファイルが「テキスト」形式であることを\r\n再度確認してからもう一度処理を行ってください。", "PDIC: its words");
check([found[2].title, found[2].text], ["変換処理未完了", unfinished], "PDIC: then as unfinished");
check(stored().length, 150, "PDIC: all pairs are stored");
found = run(2, odd, ["キャンセル"]);
check(found.map(box => box.title), ["変換元レコードの行数誤り"], "PDIC: cancelled at the question");
check([isOpen("frmDataConv"), state("ConvStopFlag"), caption(form + "StartButton"), enabled(form + "TargetFile"), pointer()], [true, 1, "スタート", true, 0],
    "PDIC: the dialog is idle");
check(stored(), [], "PDIC: the target is empty");

// MS Glossary.
const heads = "one\r\ntwo\r\n";
found = run(4, heads + 'Open,1,開く,2,MNU,Windows,Word,99\r\nPrint,1,印刷,2,MNU,NT\r\n"Save, As",1,"名前を付けて保存",2,BUT,NT,Excel\r\n' +
    ' a,b,c \r\n,1,空,2,TXT\r\n', ["OK"]);
check(stored(), [
    ["Open", "", 1, "開く", "【String Category】Menu Item\r\n【OS】Windows\r\n【Application】Word"],
    ["Print", "", 1, "印刷", "【String Category】Menu Item\r\n【OS】Windows\r\n【Application】N/A"],
    ["Save, As", "", 2, "名前を付けて保存", "【String Category】Button\r\n【OS】NT\r\n【Application】Excel"]], "glossary: rows");
check(log(), "a,b,c\r\n,1,空,2,TXT\r\n", "glossary: bad records trimmed");
check(found[0].text.split("\r\n")[0], "変換元レコード数: 5件", "glossary: the two heads do not count");
let bar;
found = run(4, heads, [() => { bar = progress(form + "ProgressBar1"); return "OK"; }]);
check(found[0].text, "変換元レコード数: 0件\r\n\r\n変換不可レコード数: 0件\r\n\r\n最終変換レコード数: 0件", "glossary: heads alone");
check(bar, {min: 0, max: 2, value: 0}, "glossary: the bar ends short of its maximum");
check(stored(), [], "glossary: no row");
found = run(4, "one", ["OK", "OK"]);
check(found.map(box => box.title), ["変換処理エラー", "変換処理未完了"], "glossary: one line is too few");
check(numberOf(found[0]), 62, "glossary: read past its end");
found = run(4, heads + "\r\nOpen,1,開く,2,MNU\r\n", ["OK", "OK"]);
check([found[0].title, numberOf(found[0])], ["変換処理エラー", 5], "glossary: an empty line ends the run");
check(stored(), [], "glossary: before any row");

// Words that are there already make further rows.
found = run(0, "■a : b\r\n", ["OK"]);
const twice = target();
menu("mnuCnv");
answerFile(folder + "/" + number + ".csv");
click(form + "sourceButton");
setText(form + "TargetFile", drivePath(twice));
["はい", "はい", "OK"].forEach(word => answer(word));
click(form + "StartButton");
check(rows(twice).map(row => [row.Word, row.AutoID]), [["a", 1], ["a", 2]], "the same source twice doubles its rows");
