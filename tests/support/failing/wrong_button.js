// expects: not ok 1 - wrong_button.js: box "ヘルプファイル未検出": it has no button "はい" but OK
remove(appFile("Help.HLP"));
answer("はい");
start();
