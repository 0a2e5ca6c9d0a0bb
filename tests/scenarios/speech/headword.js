// Saying the entry box: its messages, the sequence of calls, and the one move to the corner.
const record = (flag, folder, file) => flag + folder + " ".repeat(255 - folder.length) + file + " ".repeat(50 - file.length);
const title = "英文発音不可";
const off = "「英文発音機能を使用しない」を選択、またはキャラクタ ファイルが未設定です！\r\n" +
    "メニューバーから [ツール] ＞ [キャラクタの設定] を選択して設定をおこなってください。";
const refusal = (typed, message, what) => {
    setText("frmFind.txtFind", typed);
    answer("OK");
    menu("mnuSpeakKeyWord");
    check(boxes().map(box => [box.title, box.text, box.icon, box.buttons]), [[title, message, 48, ["OK"]]], what);
    check(speech(), [], what + ": nothing is said");
};

const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["owl", null, 1, "ふくろう", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
start();
check(state("SpeechEnabled"), 0, "off by default");
check(state("CharacterFile"), "Fukuro.acs", "though there are characters");
check(speech(), [], "nothing is loaded");
refusal("", "発音する英文がありません！", "no text");
refusal("  　 ", "発音する英文がありません！", "blanks alone");
refusal("an 語", "英文以外の文字(全角文字)が含まれています！", "a wide character");
refusal("owl", off, "speech off");
refusal("ｱｲｳ", off, "half-width katakana pass the check");
exit();

writeBytes(appFile("AgentDefi.dat"), record("\x01", "default", ""));
start({screenWidth: 1000});
const path = drivePath(appFile("msagent/Chars")) + "\\Fukuro.acs";
check(speech(), [
    {call: "Connected", args: [true]},
    {call: "Load", args: ["Fukuro", path]},
    {call: "LanguageID", args: [1033]},
], "the character is loaded at the start, not shown");
check(state("CharacterMoved"), 0, "nor moved");
refusal(" ", "発音する英文がありません！", "no text, with speech on");
refusal("日本", "英文以外の文字(全角文字)が含まれています！", "no English, with speech on");

setText("frmFind.txtFind", "The owl 　");
focusOn("frmFind.List1");
menu("mnuSpeakKeyWord");
const calls = speech();
check(calls.map(each => each.call), ["Show", "Show", "MoveTo", "Speak"], "shown twice, moved, and speaking");
check(calls[3].args, ["The owl 　"], "the text as it was typed");
check(calls[2].args[0], 1000 - 140, "the right edge of the screen");
ok(calls[2].args[1] > 0, "and its lower one");
check(state("CharacterMoved"), 1, "moved");
check(focused(), "frmFind.txtFind", "the focus goes back to the text");
setText("frmFind.txtFind", "again");
menu("mnuSpeakKeyWord");
check(speech().map(each => each.call), ["Show", "Show", "Speak"], "it stays where it is from then on");
setText("frmFind.txtFind", "x".repeat(100000));
menu("mnuSpeakKeyWord");
check(speech().length, 3, "a long text is no matter");
menu("mCancel");
check(speech(), [], "cancelling says nothing");
check(boxes(), [], "no box");
exit();
check(speech(), [], "at the end the character just goes, speaking or not");

// Without a voice, and again from a new start: the figure is moved again.
failNext("voice", 53);
start();
speech();
setText("frmFind.txtFind", "silent words");
menu("mnuSpeakKeyWord");
check(speech().map(each => each.call), ["Show", "Show", "MoveTo", "Speak"], "a start moves it anew");
