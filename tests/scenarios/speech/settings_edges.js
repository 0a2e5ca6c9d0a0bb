// The settings of the character at their edges: failures on opening, a file that has gone while speech is off,
// the frame's button, and the first character of a folder.
const record = (flag, folder, file) => flag + folder + " ".repeat(255 - folder.length) + file + " ".repeat(50 - file.length);
const file = appFile("AgentDefi.dat");
const chars = drivePath(appFile("msagent/Chars"));
const form = "frmSpeakingSetting.";
const missing = "上記のファイルなし。発音機能は現在無効。";
const calls = () => speech().map(each => each.call);
const other = tempDir() + "/other";
mkdir(other);

// A file that cannot be read, and one that has gone.
start();
failNext("read", 57);
answer("OK");
menu("mnuSpeakingSetting");
check([boxes().map(box => box.title), isOpen("frmSpeakingSetting"), enabled("frmFind")], [["エラー"], false, true], "what cannot be read is told, and nothing is left open");
remove(file);
menu("mnuSpeakingSetting");
check([isOpen("frmSpeakingSetting"), readBytes(file)], [true, record("\x00", "default", "")], "a lost file is made again");
closeForm("frmFind");
check(isOpen("frmFind"), true, "the main window stays while it is open");
click(form + "Command3");
check(boxes(), [], "unchanged");
exit();

// Off, and the file not there: told, though the label is disabled.
writeBytes(file, record("\x00", drivePath(other), "Gone.acs"));
start();
check([state("SpeechEnabled"), state("NoCharacterFile"), state("CharacterID")], [0, false, "Gone"], "named, so it counts as there");
menu("mnuSpeakingSetting");
check([checked(form + "Check1"), text(form + "Text1"), items(form + "Combo1"), text(form + "Combo1"), caption(form + "Label3"), enabled(form + "Label3")],
    [true, drivePath(other), [], "Gone.acs", missing, false], "shown as it was written");
check(state("NoCharacterFile"), true, "the note");
click(form + "Command2");
check([isOpen("frmSpeakingSetting"), readBytes(file)], [false, record("\x00", drivePath(other), "Gone.acs")], "nothing changed, nothing written");

// The frame's button asks as the other one does.
menu("mnuSpeakingSetting");
click(form + "Check1");
setText(form + "Text1", chars);
check([items(form + "Combo1"), text(form + "Combo1"), caption(form + "Label3")], [["Fukuro.acs", "Neko.acs"], "Fukuro.acs", ""], "another folder: its first character is there");
answer("キャンセル");
closeForm("frmSpeakingSetting");
const asked = boxes();
check(asked.map(box => [box.title, box.icon, box.buttons, box.defaultButton]), [["終了確認", 32, ["OK", "キャンセル"], "OK"]], "asked");
check(isOpen("frmSpeakingSetting"), true, "it stays");
setText(form + "Text1", drivePath(other));
check([text(form + "Combo1"), caption(form + "Label3")], ["", ""], "no character there");
answer("OK");
closeForm("frmSpeakingSetting");
check([boxes().length, isOpen("frmSpeakingSetting"), readBytes(file)], [1, false, record("\x00", drivePath(other), "Gone.acs")], "left without saving");

// Switched off by its box alone: the character goes, folder and file stay written.
exit();
writeBytes(file, record("\x01", "default", "Neko.acs"));
start();
speech();
menu("mnuSpeakingSetting");
click(form + "Check1");
answer("キャンセル");
press(form + "Command2", "Esc");
check(boxes().length, 1, "Esc is the closing button");
click(form + "Command2");
check([readBytes(file), calls(), state("SpeechEnabled")], [record("\x00", "default", "Neko.acs"), ["Unload", "Connected"], 0], "off");
check([state("CharacterFile"), state("CharacterID"), state("NoCharacterFile")], ["Neko.acs", "Neko", false], "and known all the same");
menu("mnuSpeakingSetting");
click(form + "Check1");
click(form + "Command2");
check([readBytes(file), calls(), state("CharacterMoved")], [record("\x01", "default", "Neko.acs"), ["Connected", "Load", "LanguageID"], 0], "and on again, without a start");

// A character in use by its place, not by its name: closed under the name that it has.
exit();
writeBytes(file, record("\x01", "default", ""));
start();
check(speech().map(each => each.call), ["Connected", "Load", "LanguageID"], "the first one");
menu("mnuSpeakingSetting");
check([text(form + "Combo1"), checked(form + "Check1")], ["Fukuro.acs", false], "shown by its name");
choose(form + "Combo1", "Neko.acs");
click(form + "Command2");
const changed = speech();
check([changed[0], changed.map(each => each.call)], [{call: "Unload", args: ["Fukuro"]}, ["Unload", "Connected", "Connected", "Load", "LanguageID"]], "the first one goes");
