// Reading a pasted text aloud.
const record = (flag, folder, file) => flag + folder + " ".repeat(255 - folder.length) + file + " ".repeat(50 - file.length);
writeBytes(appFile("AgentDefi.dat"), record("\x01", "default", "Neko.acs"));
start();
speech();
mouseDown("frmFind.Picture28");
check(isOpen("frmSpeaking"), true, "it opens");
check(caption("frmSpeaking"), "英文読み上げ", "its title");
check(enabled("frmFind"), true, "the main window stays usable");
for (const [name, words, tip] of [
    ["Command1", "クリップボードから貼り付け", "クリップボードの内容をボックスに移動、表示します"],
    ["Command2", "読み上げ", "表示中の英文を読み上げます"],
    ["Command3", "閉じる", "英文読み上げのダイアログを閉じます"],
    ["Command4", "クリア", "表示中の内容をクリアします"],
]) {
    check(caption("frmSpeaking." + name), words, name + ": caption");
    check(toolTip("frmSpeaking." + name), tip, name + ": tool tip");
}
mouseDown("frmFind.Picture28");
check(openForms().filter(form => form === "frmSpeaking").length, 1, "a second click opens no second one");

const refused = (title, message, beep, what) =>
    check(boxes().map(box => [box.title, box.text, box.icon, box.beep]), [[title, message, 48, beep]], what);
const fail = () => { answer("OK"); click("frmSpeaking.Command2"); };
fail();
refused("英文発音不可", "発音する英文がありません！", 0, "no text");
for (const empty of [() => setClipboard(null), () => setClipboardImage()]) {
    empty();
    answer("OK");
    click("frmSpeaking.Command1");
    refused("テキストデータなし", "クリップボードにデータがありません！", 48, "no text to paste");
}
setClipboard(" 　Two lines,\r\nof English. 　");
click("frmSpeaking.Command1");
check(text("frmSpeaking.Text1"), "Two lines,\r\nof English.", "pasted, trimmed");
click("frmSpeaking.Command2");
let calls = speech();
check(calls.map(each => each.call), ["Show", "Show", "MoveTo", "Speak"], "it is read");
check(calls[3].args, ["Two lines,\r\nof English."], "as it stands");
check(focused(), "frmSpeaking.Text1", "the focus goes to the text");
setText("frmSpeaking.Text1", "日本語");
fail();
refused("英文発音不可", "英文以外の文字(全角文字)が含まれています！", 0, "no English");
setText("frmSpeaking.Text1", "<b>mark</b> & \\pau=9999\\ [[x]]\u0001 ".repeat(2000));
click("frmSpeaking.Command2");
check(speech().map(each => each.call), ["Show", "Show", "Speak"], "whatever it is, it is read");
click("frmSpeaking.Command4");
check(text("frmSpeaking.Text1"), "", "emptied");

// Switched off while it is open.
menu("mnuSpeakingSetting");
click("frmSpeakingSetting.Check1");
click("frmSpeakingSetting.Command2");
check(isOpen("frmSpeakingSetting"), false, "saved and closed");
check(speech().map(each => each.call), ["Unload", "Connected"], "in the middle of its text the character goes");
setText("frmSpeaking.Text1", "owl");
fail();
ok(boxes()[0].text.indexOf("未設定です！\r\nメニューバーから") > 0, "speech is off");
press("frmSpeaking.Text1", "Esc");
check(isOpen("frmSpeaking"), false, "Esc closes it");
answer("OK");
mouseDown("frmFind.Picture28");
check(boxes().map(box => box.title), ["英文発音機能未設定"], "and it does not open without speech");
check(isOpen("frmSpeaking"), false, "really");
