// Searches for a text in meanings and in examples.
const dictionary = tempDir() + "/texts.mdb";
makeDictionary(dictionary, [
    ["zebra", null, 1, "a striped HORSE", "horses and zebras"],
    ["mule", null, 1, "馬とロバ", "as stubborn as a mule"],
    ["horse", null, 1, "horse", null],
    ["horse around", null, 2, null, "Don't horse around. 50% of_it"],
    ["ass", null, 1, "驢馬", "【馬】"],
]);
setCatalogue([{name: "馬", path: dictionary, selected: true}]);
start();

const search = (mode, typed) => {
    menu(mode);
    setText("frmFind.txtFind", typed);
    statements();
    press("frmFind.txtFind", "Enter");
    return items("frmFind.List1");
};

// The rows come as the table holds them.
for (const [mode, target, typed, where, expected] of [
    ["mnuTxtInMeaning", "mnuSrchFromAll", "horse", "Description Like '%horse%'", ["zebra", "horse"]],
    ["mnuTxtInMeaning", "mnuSrchFromAll", "馬", "Description Like '%馬%'", ["mule", "ass"]],
    ["mnuTxtInMeaning", "mnuSrchFromAll", "ろば", "Description Like '%ろば%'", ["mule"]],
    ["mnuTxtInMeaning", "mnuSrchFromWord", "horse", "WordPhrase = 1 AND Description Like '%horse%'", ["zebra", "horse"]],
    ["mnuTxtInMeaning", "mnuSrchFromPhrase", "horse", "WordPhrase = 2 AND Description Like '%horse%'", []],
    ["mnuTxtInExample", "mnuSrchFromAll", "Horse", "Example Like '%Horse%'", ["zebra", "horse around"]],
    ["mnuTxtInExample", "mnuSrchFromWord", "horse", "WordPhrase = 1 AND Example Like '%horse%'", ["zebra"]],
    ["mnuTxtInExample", "mnuSrchFromPhrase", "horse", "WordPhrase = 2 AND Example Like '%horse%'", ["horse around"]],
    ["mnuTxtInExample", "mnuSrchFromAll", "Don't", "Example Like '%Don''t%'", ["horse around"]],
    ["mnuTxtInExample", "mnuSrchFromAll", "50% of_", "Example Like '%50[%] of[_]%'", ["horse around"]],
    ["mnuTxtInExample", "mnuSrchFromAll", "馬】", "Example Like '%馬】%'", ["ass"]],
]) {
    menu(target);
    check(search(mode, typed), expected, target + " " + typed);
    check(statements()[0], "SELECT TOP 500 * FROM Dictionary WHERE " + where, target + " " + typed + ": the statement");
    check(status(), expected.length ? expected.length + "件の見出し語が見つかりました。" : "該当する見出し語は見つかりませんでした。",
        "the count");
}

// What was found is marked in the record's own characters, its first place alone.
menu("mnuSrchFromAll");
search("mnuTxtInMeaning", "horse");
ok(page().includes("<SPAN ID=sty1>zebra</SPAN>"), "the headword is plain");
ok(page().includes("<SPAN ID=sty3>a striped </SPAN><SPAN ID=sty6>HORSE</SPAN><SPAN ID=sty3></SPAN>"), "the meaning is marked");
ok(page().includes("<SPAN ID=sty4>【用例】 horses and zebras</SPAN></tr>"), "the example is plain");
search("mnuTxtInExample", "HORSE");
ok(page().includes("<SPAN ID=sty3>a striped HORSE</SPAN>"), "the meaning is plain");
ok(page().includes("<SPAN ID=sty4>【用例】 </SPAN><SPAN ID=sty6>horse</SPAN><SPAN ID=sty4>s and zebras</SPAN></tr>"),
    "the example is marked behind its label");
check(boxes(), [], "no box");
