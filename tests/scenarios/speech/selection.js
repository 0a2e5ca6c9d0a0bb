// Saying the selection of the pane, and what becomes of the clipboard.
const record = (flag, folder, file) => flag + folder + " ".repeat(255 - folder.length) + file + " ".repeat(50 - file.length);
const dictionary = tempDir() + "/two.mdb";
makeDictionary(dictionary, [["cat", null, 1, "a small animal", null], ["dog", null, 1, "犬", null]]);
setCatalogue([{name: "二", path: dictionary, selected: true}]);
const said = (message, what) => check(boxes().map(box => [box.title, box.text, box.icon]), [["英文発音不可", message, 48]], what);
const none = "発音する文字が選択されていません！", wide = "英文以外の文字(全角文字)が含まれています！";
const show = word => {
    setText("frmFind.txtFind", word);
    settle();
    menu("mnuSelectAll");
    settle();
};
const one = () => { menu("mnuListSettings"); setText("frmListSettings.Combo1", "1"); click("frmListSettings.Command1"); click("frmListSettings.Command2"); };

for (const flag of ["\x00", "\x01"]) {
    writeBytes(appFile("AgentDefi.dat"), record(flag, "default", "Neko.acs"));
    start();
    speech();
    one();
    const on = flag === "\x01";
    const what = on ? "on: " : "off: ";
    settle();

    for (const kept of ["  before ", null]) {
        setClipboard(kept);
        answer("OK");
        menu("mnuSpeakSelectedArea");
        said(none, what + "nothing selected");
        check(clipboard(), kept, what + "the clipboard stays as it was");
    }
    setClipboardImage();
    answer("OK");
    menu("mnuSpeakSelectedArea");
    said(none, what + "nothing selected over an image");
    check(clipboard(), null, what + "the image stays");
    answer("OK");
    menu("mnuSpeakSelectedArea");
    boxes();

    show("dog");
    setClipboard("  kept ");
    answer("OK");
    menu("mnuSpeakSelectedArea");
    said(wide, what + "a wide character");
    check(clipboard(), "kept", what + "the saved text comes back, trimmed");
    check(speech(), [], what + "nothing was said");

    show("cat");
    setClipboard("kept");
    if (!on)
        answer("OK");
    menu("mnuSpeakSelectedArea");
    if (on) {
        check(boxes(), [], "on: no box");
        const calls = speech();
        check(calls.map(each => each.call), ["Show", "Show", "MoveTo", "Speak"], "on: the sequence");
        ok(calls[3].args[0].indexOf("a small animal") >= 0, "on: the selection: " + calls[3].args[0]);
        check(clipboard(), "kept", "on: the clipboard has its text again");
        setClipboard(null);
        menu("mnuSpeakSelectedArea");
        ok(clipboard().indexOf("small") >= 0, "on: an empty one keeps the selection, for it is never emptied");
        check(speech().map(each => each.call), ["Show", "Show", "Speak"], "on: it stays where it is");
    } else {
        const shown = boxes();
        check(shown.length, 1, "off: told");
        ok(shown[0].text.indexOf("キャラクタ ファイルが未設定です！") > 0, "off: that speech is off");
        ok(clipboard().indexOf("a small animal") >= 0, "off: the clipboard is left with the selection");
        check(speech(), [], "off: nothing is said");
    }
    exit();
}
