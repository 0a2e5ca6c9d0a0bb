// The two ways to close, with a question each when something was changed.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run", null, 1, "走る", null], ["ruin", null, 1, "廃墟", null], ["rust", null, 1, "錆", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const file = appFile("ListDefi.dat"), standard = "05015050005001503000\r\n";
const question = (words, chosen) => [{kind: "message", title: "変更確認", text: words, icon: 32, beep: 32,
    buttons: ["はい", "いいえ", "キャンセル"], defaultButton: "はい", answer: chosen}];
const ways = [
    {what: "the button", close: () => click("frmListSettings.Command2"),
        words: "設定内容が変更されています。閉じる前に変更した内容で保存しますか？", navigates: 1},
    {what: "Esc", close: () => press("frmListSettings.Text1", "Esc"),
        words: "設定内容が変更されています。閉じる前に変更した内容で保存しますか？", navigates: 1},
    {what: "the frame", close: () => closeForm("frmListSettings"),
        words: "設定内容が変更されています。閉じる前に変更した内容を保存しますか？", navigates: 0},
];
for (const way of ways) {
    remove(file);
    restart();
    menu("mnuPreSrch");
    setText("frmFind.txtFind", "ru");
    press("frmFind.txtFind", "Enter");

    // Nothing changed: no question.
    menu("mnuListSettings");
    way.close();
    check([isOpen("frmListSettings"), enabled("frmFind")], [false, true], way.what + ": nothing changed");
    check(items("frmFind.List1").length, 3, "the list stays");
    // A change that is taken back is none.
    menu("mnuListSettings");
    setText("frmListSettings.Text1", "51");
    setText("frmListSettings.Text1", "050");
    click("frmListSettings.Option3");
    click("frmListSettings.Option1");
    way.close();
    check([isOpen("frmListSettings"), boxes()], [false, []], "nothing changed in the end");

    // Each of the seven values counts.
    for (const [control, value] of [["Text1", "51"], ["Combo1", "14"], ["Text4", "51"], ["Text2", "501"], ["Combo2", "14"],
        ["Text3", "301"], ["Option2", null]]) {
        menu("mnuListSettings");
        if (value === null)
            click("frmListSettings." + control);
        else
            setText("frmListSettings." + control, value);
        answer("いいえ");
        way.close();
        check(boxes(), question(way.words, "いいえ"), way.what + " asks about " + control);
        check([isOpen("frmListSettings"), enabled("frmFind")], [false, true], "no: closed");
    }
    check([readBytes(file), items("frmFind.List1").length, text("frmFind.txtFind")], [standard, 3, "ru"],
        "no: nothing is written, nothing goes");

    // Cancel: back to the first field.
    menu("mnuListSettings");
    setText("frmListSettings.Text3", "301");
    focusOn("frmListSettings.Text3");
    answer("キャンセル");
    way.close();
    check(boxes(), question(way.words, "キャンセル"), "asked");
    check([isOpen("frmListSettings"), enabled("frmFind"), focused(), text("frmListSettings.Text3")],
        [true, false, "frmListSettings.Text1", "301"], "cancelled: the dialog stays");
    check(state("frmListSettings.CloseHandled"), 0, "and the closing is not dealt with");

    // Yes with a value that is not allowed: told, and the dialog stays.
    setText("frmListSettings.Text3", "1001");
    answer("はい");
    answer("OK");
    way.close();
    check(boxes().map(box => box.title), ["変更確認", "マイ ワードブックの登録・表示設定エラー"], "asked, then told");
    check([isOpen("frmListSettings"), focused(), readBytes(file)], [true, "frmListSettings.Text3", standard],
        "the dialog stays");
    check(items("frmFind.List1").length, 3, "the list too");

    // Yes: saved, and the main window is emptied.
    setText("frmListSettings.Text3", "400");
    navigations();
    answer("はい");
    way.close();
    check(boxes(), question(way.words, "はい"), "asked");
    check([isOpen("frmListSettings"), enabled("frmFind")], [false, true], "yes: closed");
    check([readBytes(file), state("WordBookMax")], ["05015050005001504000\r\n", 400], "saved");
    check([items("frmFind.List1"), text("frmFind.txtFind"), status(), exists(appFile("ListData.dat"))], [[], "", "", false],
        "the main window is emptied");
    check(navigations().length, way.navigates, "pages shown");
    check(page().includes("廃墟"), false, "the page is empty");
}
