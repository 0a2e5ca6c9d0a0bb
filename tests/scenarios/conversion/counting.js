// Counting the lines: the small window, stopping by each button, refusals, sources without lines or that are gone.
start();
const form = "frmDataConv.";
const fileControls = ["ConvDicLst", "SourceFile", "TargetFile", "sourceButton", "targetButton"];
const names = ["英辞郎／和英辞郎", "１行テキスト", "ＰＤＩＣテキスト", "ＣＳＶ（カンマ区切り）", "MS Glossary"];
const folder = tempDir();
const source = folder + "/ten.csv";
writeText(source, "x\r\n".repeat(10));
let number = 0;
const run = (format, path, answers) => {
    if (!isOpen("frmDataConv"))
        menu("mnuCnv");
    choose(form + "ConvDicLst", format);
    answerFile(path);
    click(form + "sourceButton");
    answerFile(folder + "/" + ++number + ".mdb");
    click(form + "targetButton");
    boxes();
    answer("はい");
    answers.forEach(word => answer(word));
    click(form + "StartButton");
    return boxes().slice(1);
};
const able = () => fileControls.map(name => enabled(form + name));
const all = [true, true, true, true, true];
const none = [false, false, false, false, false];
const cancelled = {kind: "message", title: "Wordmere", text: "レコード件数確認はキャンセルされました。", icon: 0, beep: 0};
const cancelledBox = box => ({kind: box.kind, title: box.title, text: box.text, icon: box.icon, beep: box.beep});

for (let format = 0; format < 5; ++format) {
    const name = names[format] + ": ";
    let seen;
    // Its button.
    atYield(3, () => {
        seen = [openForms(), enabled("frmDataConv"), able(), caption("frmRecCount"), caption("frmRecCount.Label1"), caption("frmRecCount.Label2"),
            caption("frmRecCount.Command1"), caption(form + "StartButton"), enabled(form + "StartButton"), enabled(form + "QuitButton"),
            state("ConvStopFlag"), state("StopRequested"), pointer()];
        click("frmRecCount.Command1");
        seen.push(state("StopRequested"), able());
    });
    const [box, ...more] = run(format, source, ["OK"]);
    check(seen, [["frmFind", "frmDataConv", "frmRecCount"], format !== 0, none, "「" + names[format] + "」形式辞書ファイルの確認中．．．",
        format === 2 ? "変換元テキストファイルの内容とレコード数を調べています。" : "変換元テキストファイルのレコード数を調べています。",
        "数分かかることがあります。しばらくお待ち下さい．．．", "キャンセル", "キャンセル", true, true, 0, 0, 11, 1, all],
        name + "the window of the counting");
    check(cancelledBox(box), cancelled, name + "cancelled");
    check(more, [], name + "without more");
    check([state("ConvStopFlag"), caption(form + "StartButton"), pointer(), enabled("frmDataConv"), able(), openForms()],
        [1, "スタート", 0, true, all, ["frmFind", "frmDataConv"]], name + "the dialog is idle");
    check(rows(folder + "/" + number + ".mdb"), [], name + "the target was made and is empty");

    // The frame of the small window counts as its button; closing the dialog is refused.
    atYield(2, () => {
        answer("OK");
        closeForm("frmDataConv");
        closeForm("frmRecCount");
        seen = [isOpen("frmDataConv"), isOpen("frmRecCount"), state("StopRequested")];
    });
    const found = run(format, source, ["OK"]);
    check(seen, [true, true, 1], name + "frames during the counting");
    check(found.map(b => b.text), ["[×]ボタンをクリックして処理をキャンセルできません！\r\n\r\n[キャンセル]ボタンをクリックしてキャンセルしてください。", cancelled.text],
        name + "the dialog refuses");
    check([found[0].title, found[0].icon, found[0].beep, found[0].buttons], ["[×]ボタン使用不可", 48, 0, ["OK"]], name + "its box");

    // A source that is gone.
    const gone = run(format, folder + "/gone.csv", ["OK", "OK"]);
    check([gone[0].title, gone[0].icon, gone[0].beep], ["データ変換異常終了", 16, 0], name + "a source that is gone");
    check(gone[0].text, "レコード変換中にエラーが発生しました。処理を中断します\r\n\r\n変換元のファイルは間違いなく「" + names[format] +
        "」形式の辞書ですか？\r\n\r\n変換元のファイルならびに変換ファイルのデータ形式を確認してください。", name + "its words");
    check(gone.slice(1).map(cancelledBox), [cancelled], name + "then the counting counts as cancelled");
    check([state("ConvStopFlag"), caption(form + "StartButton"), pointer(), enabled("frmDataConv")], [1, "スタート", 0, true], name + "idle again");
    check(able(), format === 2 ? none : all, name + "the controls of the files");
    closeForm("frmDataConv");
    check([isOpen("frmDataConv"), enabled("frmFind")], [false, true], name + "the dialog closes");

    // A source without lines.
    const empty = folder + "/empty.csv";
    writeBytes(empty, "");
    const [noData, ...others] = run(format, empty, ["OK"]);
    check([noData.title, noData.icon, noData.beep, noData.buttons], ["変換元ファイルにデータなし", 48, 0, ["OK"]], name + "an empty source");
    check(noData.text, "変換元のファイル「" + drivePath(empty) + "」にはデータが存在しません！\r\n\r\nファイルの内容を確認後、もう一度処理をおこなってください。",
        name + "its words");
    check(others, [], name + "without more");
    check([state("ConvStopFlag"), caption(form + "StartButton"), pointer(), able()], [1, "スタート", 0, all], name + "idle again");
    check(enabled("frmDataConv"), format !== 0, name + "the dialog as a whole");
    check(rows(folder + "/" + number + ".mdb"), [], name + "the target was made and is empty");
    closeForm("frmDataConv");
    check([isOpen("frmDataConv"), enabled("frmFind")], [false, true], name + "and closes by its frame");

    // The start button asks to stop: the counting goes on, and nothing is converted.
    if (format === 0)
        continue;
    atYield(2, () => {
        click(form + "StartButton");
        seen = [state("ConvStopFlag"), state("StopRequested"), isOpen("frmRecCount")];
    });
    const stopped = run(format, source, ["OK"]);
    check(seen, [1, 0, true], name + "the start button stops the run, not the counting");
    check(stopped.map(b => [b.title, b.text]), [["変換処理未完了", "変換処理は完了を待たずにキャンセルされました。"]], name + "it ends before the first line");
    check(rows(folder + "/" + number + ".mdb"), [], name + "with no row");
    check(isOpen("frmDataConv"), false, name + "and the dialog goes");

    // The button that closes ends the counting, and the dialog goes when the run has returned.
    atYield(2, () => {
        click(form + "QuitButton");
        seen = [isOpen("frmDataConv"), state("ConvStopFlag"), enabled("frmFind")];
    });
    const quit = run(format, source, ["OK"]);
    check(seen, [true, 1, false], name + "the dialog waits for its run");
    check(quit.map(cancelledBox), [cancelled], name + "whose counting ends");
    check([isOpen("frmDataConv"), enabled("frmFind"), openForms()], [false, true, ["frmFind"]], name + "then it goes");

    // The frame during a stop that was asked for: no box, and it goes when the run has returned.
    atYield(2, () => {
        click(form + "StartButton");
        closeForm("frmDataConv");
        seen = isOpen("frmDataConv");
    });
    check(run(format, source, ["OK"]).map(b => b.title), ["変換処理未完了"], name + "closed while it stops: no refusal");
    check([seen, isOpen("frmDataConv")], [true, false], name + "and it goes at the end");
}
check(state("StopRequested"), 0, "no search is stopped by it");

// A source that cannot be read on.
atYield(4, () => failNext("read", 57));
check(run(1, source, ["OK", "OK"]).map(b => b.title), ["データ変換異常終了", "Wordmere"], "a failure within the counting");
check(isOpen("frmRecCount"), false, "takes the small window away");
