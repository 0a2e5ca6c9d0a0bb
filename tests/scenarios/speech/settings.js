// The settings of the character.
const record = (flag, folder, file) => flag + folder + " ".repeat(255 - folder.length) + file + " ".repeat(50 - file.length);
const file = appFile("AgentDefi.dat");
const chars = drivePath(appFile("msagent/Chars"));
const form = "frmSpeakingSetting.";
const guarded = ["Combo1", "Label1", "Label2", "Label3", "Text1", "Command1"];
const states = () => guarded.map(name => enabled(form + name));
const all = value => guarded.map(() => value);
const calls = () => speech().map(each => each.call);
const missing = "上記のファイルなし。発音機能は現在無効。";

const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["owl", null, 1, "ふくろう", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
start();
menu("mnuSpeakingSetting");
check(caption("frmSpeakingSetting"), "キャラクタの設定", "its title");
check([caption(form + "Check1"), caption(form + "Label1"), caption(form + "Label2"), caption(form + "Command1"),
    caption(form + "Command2"), caption(form + "Command3")],
    ["英文発音機能を使用しない", "キャラクタ ファイルのフォルダパス：", "使用するキャラクタのファイル名：", "...", "OK", "閉じる"], "captions");
check(enabled("frmFind"), false, "the main window waits");
check([checked(form + "Check1"), states()], [true, all(false)], "off at first, and all of it disabled");
check(text(form + "Text1"), chars, "the default folder");
check(items(form + "Combo1"), ["Fukuro.acs", "Neko.acs"], "the characters that come with the program");
check([text(form + "Combo1"), caption(form + "Label3")], ["Fukuro.acs", ""], "the first is the one in use");
const fresh = readBytes(file);
click(form + "Command3");
check([isOpen("frmSpeakingSetting"), boxes()], [false, []], "unchanged it closes without a question");
check(enabled("frmFind"), true, "the main window is back");
menu("mnuSpeakingSetting");
click(form + "Command2");
check([isOpen("frmSpeakingSetting"), readBytes(file) === fresh, calls()], [false, true, []], "nor does OK do anything");

// Switched on.
menu("mnuSpeakingSetting");
click(form + "Check1");
check(states(), all(true), "unticked, all of it is enabled");
click(form + "Check1");
check(states(), all(false), "and disabled again");
click(form + "Check1");
choose(form + "Combo1", "Neko.acs");
answer("キャンセル");
click(form + "Command3");
check(boxes().map(box => [box.title, box.text, box.icon, box.buttons]),
    [["終了確認", "設定内容が変更されています。保存せずに終了してよろしいですか？", 32, ["OK", "キャンセル"]]], "asked");
check(isOpen("frmSpeakingSetting"), true, "cancelled, it stays");
click(form + "Command2");
check(readBytes(file), record("\x01", "default", "Neko.acs"), "written");
check(calls(), ["Connected", "Load", "LanguageID"], "ready at once, for nothing was loaded before");
check([state("SpeechEnabled"), state("CharacterID"), state("CharacterPath"), state("CharacterMoved")],
    [1, "Neko", chars + "\\Neko.acs", 0], "the state of it");
setText("frmFind.txtFind", "hello");
menu("mnuSpeakKeyWord");
check(calls(), ["Show", "Show", "MoveTo", "Speak"], "it speaks in its corner");
menu("mnuSpeakingSetting");
check([checked(form + "Check1"), text(form + "Combo1")], [false, "Neko.acs"], "as it was left");
click(form + "Command2");
check([calls(), state("CharacterMoved")], [[], 1], "OK without a change keeps it in its place");

// Another character.
menu("mnuSpeakingSetting");
choose(form + "Combo1", "Fukuro.acs");
click(form + "Command2");
const changed = speech();
check(changed.map(each => each.call), ["Unload", "Connected", "Connected", "Load", "LanguageID"], "closed and opened");
check([changed[0].args, changed[3].args[0]], [["Neko"], "Fukuro"], "the old one and the new one");
check(state("CharacterMoved"), 0, "to be moved again");
menu("mnuSpeakKeyWord");
check(calls(), ["Show", "Show", "MoveTo", "Speak"], "as it is");

// Folders: the warning, the browser, the default one in another case, one without a character.
const other = tempDir() + "/other", empty = tempDir() + "/empty";
mkdir(other);
mkdir(empty);
writeBytes(other + "/Mine.ACS", readBytes(appFile("msagent/Chars/Neko.acs")));
writeBytes(other + "/note.txt", "");
menu("mnuSpeakingSetting");
answer("OK");
answerFolder(other);
click(form + "Command1");
const warned = boxes();
check([warned[0].title, warned[0].text, warned[0].icon], ["フォルダパス変更の注意",
    "キャラクタ ファイルのデフォルト(既定)フォルダは\r\n通常はシステムフォルダ(Windows、WINNT等)中の\r\n" +
    "\\msagent\\char です。この処理でフォルダパスを\r\n不用意に変更するとキャラクタ ファイルを正しく参照\r\n" +
    "出来なくなる可能性がありますのでご注意ください。", 0], "warned first");
check([warned[1].kind, warned[1].title], ["folder", "フォルダを選択してください。"], "then asked");
check([text(form + "Text1"), items(form + "Combo1"), text(form + "Combo1")], [drivePath(other), ["Mine.ACS"], "Mine.ACS"], "the folder's characters");
answer("OK");
answerFolder(null);
click(form + "Command1");
boxes();
check(text(form + "Text1"), drivePath(other), "cancelled, the folder stays");
setText(form + "Text1", drivePath(other) + "\\");
check(items(form + "Combo1"), ["Mine.ACS"], "a backslash at its end is dropped");
setText(form + "Text1", other);
check(items(form + "Combo1"), ["Mine.ACS"], "a path of the host will do");
setText(form + "Text1", "Q:\\nowhere");
check([items(form + "Combo1"), text(form + "Combo1")], [[], ""], "no such folder");
setText(form + "Text1", drivePath(other));
click(form + "Command2");
check(readBytes(file), record("\x01", drivePath(other), "Mine.ACS"), "written with its folder");
check(state("CharacterID"), "Mine", "and in use");
speech();

menu("mnuSpeakingSetting");
setText(form + "Text1", chars.toUpperCase());
check(items(form + "Combo1"), ["Fukuro.acs", "Neko.acs"], "the default folder in another case");
click(form + "Command2");
check(readBytes(file), record("\x01", "default", "Fukuro.acs"), "is written as the default one");
check(calls(), ["Unload", "Connected", "Connected", "Load", "LanguageID"], "and its character is there");
menu("mnuSpeakingSetting");
setText(form + "Text1", drivePath(empty));
check([items(form + "Combo1"), text(form + "Combo1")], [[], ""], "a folder without a character");
click(form + "Command2");
check(readBytes(file), record("\x00", drivePath(empty), ""), "switches speech off");
check([state("SpeechEnabled"), state("NoCharacterFile"), calls()], [0, true, ["Unload", "Connected"]], "and the character is closed");

menu("mnuSpeakingSetting");
click(form + "Check1");
setText(form + "Text1", chars);
answer("OK");
click(form + "Command3");
check([boxes().length, isOpen("frmSpeakingSetting")], [1, false], "left without saving");
check(readBytes(file), record("\x00", drivePath(empty), ""), "nothing was written");
exit();

// A file that has gone, and one that is no character.
writeBytes(file, record("\x01", drivePath(other), "Gone.acs"));
answer("OK");
start();
const told = boxes();
check([told[0].title, told[0].icon], ["キャラクタ ファイルの誤り", 48], "a character that is not there is told");
ok(told[0].text.indexOf(drivePath(other) + "\\Gone.acs") > 0, "by its path");
check(state("SpeechEnabled"), 0, "and speech is off");
menu("mnuSpeakingSetting");
check([text(form + "Combo1"), caption(form + "Label3"), state("NoCharacterFile")], ["Gone.acs", missing, true], "shown, and told");
choose(form + "Combo1", "Mine.ACS");
check(caption(form + "Label3"), "", "another one is there");
click(form + "Command2");
check(state("SpeechEnabled"), 1, "it is in use");
writeBytes(other + "/Bad.acs", "\xD0\xCF\x11\xE0 not ours");
menu("mnuSpeakingSetting");
setText(form + "Text1", drivePath(empty));
setText(form + "Text1", drivePath(other));
choose(form + "Combo1", "Bad.acs");
answer("OK");
click(form + "Command2");
const bad = boxes();
check(bad.map(box => box.title), ["キャラクタ ファイルの誤り"], "a foreign file is refused");
ok(bad[0].text.indexOf("ファイル形式が正しくありません。") > 0, "clearly");
check([isOpen("frmSpeakingSetting"), state("SpeechEnabled")], [false, 0], "and speech is off");
menu("mnuSpeakingSetting");
closeForm("frmSpeakingSetting");
check([isOpen("frmSpeakingSetting"), state("SpeechEnabled")], [false, 0], "looking at the settings does not switch it on");
answer("OK");
menu("mnuSpeakKeyWord");
check(boxes().map(box => box.title), ["英文発音不可"], "told rather than silent");
exit();

// Settings that cannot be written leave all as it was.
writeBytes(file, record("\x01", "default", "Neko.acs"));
start();
speech();
menu("mnuSpeakingSetting");
choose(form + "Combo1", "Fukuro.acs");
failNext("write", 61);
answer("OK");
click(form + "Command2");
check(boxes().map(box => box.title), ["エラー"], "the disk is full");
check([isOpen("frmSpeakingSetting"), calls(), readBytes(file)], [true, [], record("\x01", "default", "Neko.acs")], "nothing has changed");
click(form + "Command2");
check(readBytes(file), record("\x01", "default", "Fukuro.acs"), "the second try is written");
