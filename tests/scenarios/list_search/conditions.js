// Further conditions behind "/T:" and "/E:".
const dictionary = tempDir() + "/runs.mdb";
makeDictionary(dictionary, [
    ["run away", null, 2, "逃げる FLEE", "run away from home"],
    ["run down", null, 2, "走り下りる", "to RUN down"],
    ["run up", null, 2, "走り寄る flee", null],
    ["runner", null, 1, "走る人 100%", "a runner's shoe_lace"],
]);
setCatalogue([{name: "走", path: dictionary, selected: true}]);
start();

const search = (mode, typed) => {
    menu(mode);
    setText("frmFind.txtFind", typed);
    statements();
    press("frmFind.txtFind", "Enter");
    return items("frmFind.List1");
};
const select = "SELECT TOP 500 * FROM Dictionary WHERE ", order = " ORDER BY Word ASC";

for (const [typed, kind, meaning, example, where, expected] of [
    ["run/T:flee", 1, "FLEE", "", "Word Like 'run%_%' AND Description Like '%FLEE%'", ["run away", "run up"]],
    ["run/t:走/e:down", 3, "走", "down", "Word Like 'run%_%' AND Description Like '%走%' AND Example Like '%down%'",
        ["run down"]],
    ["run/E:RUN", 2, "", "RUN", "Word Like 'run%_%' AND Example Like '%RUN%'", ["run away", "run down", "runner"]],
    ["run/T:/E:", 0, "", "", "Word Like 'run%_%'", ["run away", "run down", "run up", "runner"]],
    ["run/T: 　/E: ", 0, " 　", " ", "Word Like 'run%_%'", ["run away", "run down", "run up", "runner"]],
    ["run /T:flee/E:home", 3, "flee", "home", "Word Like 'run %_%' AND Description Like '%flee%' AND Example Like '%home%'",
        ["run away"]],
    ["run/T:100%", 1, "100%", "", "Word Like 'run%_%' AND Description Like '%100[%]%'", ["runner"]],
    ["run/E:r's shoe_", 2, "", "r's shoe_", "Word Like 'run%_%' AND Example Like '%r''s shoe[_]%'", ["runner"]],
    ["run/T:f/t:lee", 1, "FLEE", "", "Word Like 'run%_%' AND Description Like '%FLEE%'", ["run away", "run up"]],
]) {
    check(search("mnuPreSrch", typed), expected, typed);
    check(statements()[0], select + where + order, typed + ": the statement");
    check([state("CompositeKind"), state("CompositeMeaningText"), state("CompositeExampleText")], [kind, meaning, example],
        typed + ": its parts");
    check(text("frmFind.txtFind"), typed, "the box is left alone");
}
menu("mnuSrchFromWord");
check(search("mnuPostSrch", "er/T:走/E:shoe"), ["runner"], "all three among the words");
check(statements()[0], select + "WordPhrase = 1 AND Word Like '%_%er' AND Description Like '%走%' AND Example Like '%shoe%'" +
    order, "in one statement");
menu("mnuSrchFromAll");
check(search("mnuWildCard", "run%/T:100%/E:shoe"), ["runner"], "in a wildcard search too");
check(statements()[0], select + "Word Like 'run%' AND Description Like '%100[%]%' AND Example Like '%shoe%'" + order,
    "where the conditions are literal");

// The modes that search texts take the word part alone.
for (const [mode, column] of [["mnuTxtInMeaning", "Description"], ["mnuTxtInExample", "Example"]]) {
    search(mode, "run/T:走/E:x");
    check(statements()[0], select + column + " Like '%run%'", mode + ": no further condition");
    check(state("CompositeKind"), 0, mode + ": none is kept");
    check([state("MeaningPattern"), state("ExamplePattern")], ["%走%", "%x%"], mode + ": but the patterns are");
}

// Without a word part nothing happens.
search("mnuPreSrch", "run");
const before = [state("SearchText"), state("WordPattern"), state("CompositeMeaningText"), state("HitCount")];
for (const typed of ["/T:x", "/E:x", "/T:x/E:y", "/t:"]) {
    check(search("mnuPreSrch", typed), [], typed + ": an empty list");
    check(statements(), [], typed + ": no statement");
    check(status(), "検索中...", typed + ": the status bar as the key left it");
    check([state("SearchText"), state("WordPattern"), state("CompositeMeaningText"), state("HitCount")], before,
        typed + ": nothing was taken");
    check([visible("frmFind.Picture0"), visible("frmFind.Picture00"), pointer()], [true, false, 0], typed + ": ready");
}

// Markers in the wrong order.
for (const typed of ["run/E:y/T:x", "run/e:y/t:x"]) {
    answer("OK");
    check(search("mnuPreSrch", typed), [], typed + ": finds nothing");
    const [box] = boxes();
    check(box.title, "順序指定の誤り", typed + ": the title");
    check(box.text, "複合検索の「/E:」と「/T:」の使い方の順番が正しくありません！\r\n\r\n" +
        "検索する見出し語に続いて「/E:」、「/T:」の順番で\r\n訳語、用例中の文字列の設定をおこなってください。", "the text");
    check([box.icon, box.beep, box.buttons], [48, 48, ["OK"]], "an exclamation with its beep");
    check(statements(), [], "no statement");
    check(status(), "検索中...", "the status bar as the key left it");
    check([visible("frmFind.Picture0"), visible("frmFind.Picture00"), pointer()], [true, false, 0], "ready again");
}
