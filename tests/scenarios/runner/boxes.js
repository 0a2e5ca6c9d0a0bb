// Boxes: recorded, answered by values and by functions, of the default handling too.
remove(appFile("Help.HLP"));
answer("OK");
start();
const shown = boxes();
check(shown.length, 1, "the missing help is told");
check(shown[0].kind, "message", "its kind");
check(shown[0].title, "ヘルプファイル未検出", "its title");
check(shown[0].icon, 48, "its icon");
check(shown[0].buttons, ["OK"], "its buttons");
check(shown[0].answer, "OK", "and its answer");
check(boxes(), [], "what was drained is gone");

let seen = null;
answer(box => {
    seen = box.title;
    return "OK";
});
check(start({second: true}), false, "a second instance gives way");
check(seen, "アプリケーション重複起動エラー", "a function answers, and sees the box");
check(boxes().length, 1, "and it is recorded");
check(isOpen("frmFind"), true, "the first goes on");
exit();

// A box of the default handling counts as expected when an answer waits for it.
answer("OK");
failNext("read", 57);
writeText(appFile("Help.HLP"), "help");
start();
const failures = boxes();
check(failures.length, 1, "one failure went to the default handling");
check(failures[0].title, "エラー", "its title");
check(failures[0].icon, 16, "its icon");
