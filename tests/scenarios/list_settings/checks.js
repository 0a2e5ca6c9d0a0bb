// The eight checks in their order, with their messages and where the focus goes.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run", null, 1, "走る", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const file = appFile("ListDefi.dat");
const defaults = {Text1: "50", Combo1: "15", Text4: "50", Combo2: "15", Text2: "500", Text3: "300"};
const fill = values => {
    for (const name of Object.keys(defaults))
        setText("frmListSettings." + name, values[name] ?? defaults[name]);
};
const listTitle = "見出し語リスト件数設定エラー", entryTitle = "見出し語内容の表示件数設定エラー";
menu("mnuListSettings");
const before = readBytes(file);
for (const [values, words, title, focus] of [
    [{Text1: "10", Combo1: "15"}, "インクリメンタル検索時の「見出し語のリスト件数」は「見出し語内容の表示件数」と同じ、または大きい値を設定してください。",
        listTitle, "Text1"],
    [{Text4: "10", Combo2: "15"}, "条件検索時の「見出し語のリスト件数」は「見出し語内容の表示件数」と同じ、または大きい値を設定してください。",
        listTitle, "Text4"],
    [{Text1: "301"}, "インクリメンタル検索時の「見出し語のリスト件数」は最大300件です。", listTitle, "Text1"],
    [{Text4: "301"}, "条件検索時の「見出し語のリスト件数」は最大300件です。", listTitle, "Text4"],
    [{Combo1: "31"}, "インクリメンタル検索時の「見出し語内容の表示件数」は最大30件です。", entryTitle, "Combo1"],
    [{Text2: "30001"}, "条件検索時の「見出し語の最大リスト件数」は最大30000件です。", listTitle, "Text2"],
    [{Text2: "99999"}, "条件検索時の「見出し語の最大リスト件数」は最大30000件です。", listTitle, "Text2"],
    [{Combo2: "31"}, "条件検索時の「見出し語内容の表示件数」は最大30件です。", entryTitle, "Combo2"],
    [{Text3: "1001"}, "マイ ワードブックの「最大登録・表示数」は最大1000件です。", "マイ ワードブックの登録・表示設定エラー", "Text3"],
    // The first of several.
    [{Text1: "1", Text4: "1", Combo1: "31", Text2: "99999", Combo2: "31", Text3: "9999"},
        "インクリメンタル検索時の「見出し語のリスト件数」は「見出し語内容の表示件数」と同じ、または大きい値を設定してください。", listTitle, "Text1"],
    [{Text1: "999", Text4: "1", Combo2: "31"},
        "条件検索時の「見出し語のリスト件数」は「見出し語内容の表示件数」と同じ、または大きい値を設定してください。", listTitle, "Text4"],
    [{Text1: "999", Text4: "999"}, "インクリメンタル検索時の「見出し語のリスト件数」は最大300件です。", listTitle, "Text1"],
    [{Text2: "30001", Combo2: "31"}, "条件検索時の「見出し語の最大リスト件数」は最大30000件です。", listTitle, "Text2"],
]) {
    fill(values);
    focusOn("frmListSettings.Command2");
    answer("OK");
    click("frmListSettings.Command1");
    check(boxes(), [{kind: "message", title: title, text: words, icon: 48, beep: 48, buttons: ["OK"], defaultButton: "OK",
        answer: "OK"}], JSON.stringify(values));
    check([focused(), selectedText("frmListSettings." + focus)], ["frmListSettings." + focus, text("frmListSettings." + focus)],
        "the focus is in " + focus + ", its number selected");
    check(isOpen("frmListSettings"), true, "the dialog stays");
}
check(readBytes(file), before, "nothing was written");
check([state("IncListCount"), state("MaxListCount"), state("WordBookMax")], [50, 500, 300], "nothing is in use");

// What passes: the limits, and zero.
for (const [values, line] of [
    [{Text1: "300", Combo1: "30", Text4: "300", Combo2: "30", Text2: "30000", Text3: "1000"}, "30030300300003010000"],
    [{Text1: "15", Text4: "15"}, "01515015005001503000"],
    [{Text1: "0", Combo1: "0", Text4: "0", Combo2: "0", Text2: "0", Text3: "0"}, "00000000000000000000"],
    [{Text1: "007", Combo1: "007", Text2: "00007"}, "00707050000071503000"],
    [{}, "05015050005001503000"],
]) {
    fill(values);
    click("frmListSettings.Command1");
    check(readBytes(file), line + "\r\n", "written: " + line);
}
check(boxes(), [], "without a message");
click("frmListSettings.Command2");
check(isOpen("frmListSettings"), false, "closed without a question");
