// expects: not ok 1 - unanswered_box.js: no answer to a message box: ヘルプファイル未検出
// expects: ok 2 - unanswered_box.js: it ends all the same
remove(appFile("Help.HLP"));
start();
check(boxes()[0].answer, "OK", "it ends all the same");
