// The dialog as it opens: its controls, what choosing a format does, the file boxes, the hint, and how it closes.
start();
menu("mnuCnv");
const form = "frmDataConv.";
check(isOpen("frmDataConv"), true, "the menu entry opens the dialog");
check(enabled("frmFind"), false, "the main window takes no input meanwhile");
check(caption("frmDataConv"), "データ変換", "its caption");
check(state("ConvStopFlag"), 1, "no run is in progress");
check(["Frame1", "Frame2", "Frame3", "Label2", "Label3", "Label4"].map(name => caption(form + name)),
    ["変換元辞書", "Ｗｏｒｄｍｅｒｅ辞書", "進行状況", "データ形式：", "ファイル名：", "ファイル名："], "frames and labels");
check(caption(form + "StartButton"), "スタート", "the start button");
check(caption(form + "QuitButton"), "閉じる", "the button that closes");
check(caption(form + "sourceButton"), "...", "the buttons of the file boxes");
check(caption(form + "targetButton"), "...", "both");
check(toolTip(form + "targetButton"), "ファイル選択のダイアログ ボックスを表示します", "the tip of the target's");
check(toolTip(form + "sourceButton"), "", "the source's has none");
check(caption(form + "Label1"), "0%", "the percentage");
check(progress(form + "ProgressBar1").value, 0, "the bar");
for (const name of ["ConvDicLst", "SourceFile", "sourceButton", "TargetFile", "targetButton", "StartButton", "QuitButton"])
    check(enabled(form + name), true, name + " can be used");

// Formats.
const formats = [
    ["英辞郎／和英辞郎", "見出し語と他の項目が主にコロンで区切られたデータです。"],
    ["１行テキスト", "見出し語と他の項目が「///」で区切られたデータです。"],
    ["ＰＤＩＣテキスト", "見出し語と他の項目が改行コードで区切られたデータです。"],
    ["ＣＳＶ（カンマ区切り）", "各データ項目がカンマで区切られたデータです。"],
    ["MS Glossary", "ＭＳ社製品中に含まれる文字列を集めた対訳データです。"],
];
check(items(form + "ConvDicLst"), formats.map(format => format[0]), "the formats");
check(state(form + "FormatNames"), formats.map(format => format[0]), "kept by the dialog");
check(state(form + "FormatDescriptions"), formats.map(format => format[1]), "with their descriptions");
check(selectedRow(form + "ConvDicLst"), 0, "the first one is chosen");
check(caption(form + "DicDesc"), formats[0][1], "and described");
check(state(form + "FormatIndex"), 0, "and known by its place");
for (const place of [4, 2, 0, 1, 3]) {
    choose(form + "ConvDicLst", place);
    check(state(form + "FormatIndex"), place, formats[place][0] + " is known by its place");
    check(caption(form + "DicDesc"), formats[place][1], "and described");
    check(focused(), form + "SourceFile", "and the focus goes on");
}
press(form + "ConvDicLst", "Down");
check(state(form + "FormatIndex"), 4, "the arrow keys choose too");
check(focused(), form + "SourceFile", "and go on");
typeText(form + "ConvDicLst", "M ");
check(selectedRow(form + "ConvDicLst"), 4, "what is typed there is discarded");
choose(form + "ConvDicLst", 0);

// The boxes of the files.
typeText(form + "SourceFile", "C:\\a.txt");
check(text(form + "SourceFile"), "", "the source takes no typing");
typeText(form + "TargetFile", "C:\\a.mdb");
check(text(form + "TargetFile"), "C:\\a.mdb", "the target does");
boxes();
const source = tempDir() + "/a.txt";
writeText(source, "■a : b\r\n");
answerFile(source);
click(form + "sourceButton");
check(text(form + "SourceFile"), drivePath(source), "the chosen source");
answerFile(null);
click(form + "sourceButton");
check(text(form + "SourceFile"), drivePath(source), "stays when the box is cancelled");
const sourceBox = boxes()[0];
check([sourceBox.kind, sourceBox.title, sourceBox.mustExist, sourceBox.createPrompt, sourceBox.defaultText, sourceBox.filterIndex],
    ["file", "変換元テキストファイルの選択", true, false, "", 1], "the box for the source");
check(sourceBox.filter, "テキスト ファイル (*.txt) | *.txt|カンマ区切り テキスト ファイル (*.csv) | *.csv|すべてのファイル (*.*)|*.*",
    "its filters");
answerFile(tempDir() + "/new.mdb");
click(form + "targetButton");
ok(text(form + "TargetFile").endsWith("\\new.mdb"), "the chosen target");
answerFile(null);
click(form + "targetButton");
check(text(form + "TargetFile"), "", "goes when the box is cancelled");
const targetBox = boxes()[0];
check([targetBox.kind, targetBox.title, targetBox.mustExist, targetBox.createPrompt, targetBox.defaultText, targetBox.filterIndex],
    ["file", "変換先辞書データベースファイルの設定", false, true, "", 1], "the box for the target");
check(targetBox.filter, "データベース ファイル (*.mdb) | *.mdb|すべてのファイル (*.*)|*.*", "its filters");

// The hint.
const hint = "処理を開始する前にすべてのアプリケーションを閉じて下さい。";
check(text(form + "MsgText"), "", "no hint at first");
hover(form + "StartButton");
check(text(form + "MsgText"), hint, "the pointer over the start button brings it");
hover(form + "StartButton");
check(text(form + "MsgText"), hint, "and keeps it");
hover("frmDataConv");
check(text(form + "MsgText"), "", "over the form it goes");
hover(form + "StartButton");
hover(form + "Label2");
check(text(form + "MsgText"), "", "over a label as well");

// The confirmation, and its No.
hover(form + "StartButton");
for (let place = 0; place < formats.length; ++place) {
    choose(form + "ConvDicLst", place);
    answer("いいえ");
    click(form + "StartButton");
    const [question] = boxes();
    check([question.title, question.icon, question.beep, question.buttons],
        ["変換内容の確認", 48, 32, ["はい", "いいえ"]], formats[place][0] + ": the confirmation");
    check(question.text, "変換元の ｢" + formats[place][0] + "｣ 形式のテキストファイルを\r\n" +
        "Wordmereで使用するためのデータ形式に変換します。\r\n\r\n" +
        "データ形式、ファイル名等に誤りのないことを再度確認してください。\r\n\r\n" +
        "データ変換処理を開始してよろしいですか？", "its words");
}
check(text(form + "MsgText"), hint, "at No the hint stays");
check(caption(form + "StartButton"), "スタート", "and nothing begins");
answer("はい");
answer("OK");
choose(form + "ConvDicLst", 0);
click(form + "StartButton");
check(text(form + "MsgText"), "", "a confirmed start clears it");
check(boxes().map(box => box.title), ["変換内容の確認", "辞書データベースファイル名なし"], "the checks come after the confirmation");

// Closing.
click(form + "QuitButton");
check(isOpen("frmDataConv"), false, "the button closes");
check(enabled("frmFind"), true, "and gives the main window back");
check(state("ConvStopFlag"), 1, "with no run in progress");
menu("mnuCnv");
check([text(form + "SourceFile"), text(form + "TargetFile"), selectedRow(form + "ConvDicLst")], ["", "", 0],
    "it opens again as new");
closeForm("frmDataConv");
check(isOpen("frmDataConv"), false, "the frame closes too");
check(enabled("frmFind"), true, "and gives the main window back");
menu("mnuCnv");
press(form + "TargetFile", "Esc");
check(isOpen("frmDataConv"), false, "and so does Esc");
menu("mnuCnv");
answer("いいえ");
press(form + "TargetFile", "Enter");
check(boxes().map(box => box.title), ["変換内容の確認"], "Enter is the start button");
