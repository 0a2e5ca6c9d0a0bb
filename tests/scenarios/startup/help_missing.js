// A missing help file is told, and the program comes up all the same.
remove(appFile("Help.HLP"));
let title = null;
answer(box => {
    title = caption("frmFind");
    check(status(), "Ready", "the window is ready by then");
    return "OK";
});
start();
const [box] = boxes();
check(box.title, "ヘルプファイル未検出", "the title");
check(box.text, "ヘルプファイルがアプリケーションフォルダから\r\n" +
    "削除されています！ Wordmere は起動しますが、\r\n" +
    "ヘルプファイルは参照できません。", "the text");
check(box.icon, 48, "the icon");
check(box.buttons, ["OK"], "the button");
check(title, "Wordmere", "it comes behind the title");
check(visible("frmFind"), true, "the window is there");
check(exists(appFile("Help.HLP")), false, "what the user deleted does not come back");
exit();

mkdir(appFile("Help.HLP"));
answer("OK");
start();
check(boxes().map(shown => shown.title), ["ヘルプファイル未検出"], "a folder of that name is no help");
