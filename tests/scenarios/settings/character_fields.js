// The record of the character as no dialog writes it: flags, the word default, names that lead nowhere.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["owl", null, 1, "梟", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const record = (flag, folder, file) => flag + folder + " ".repeat(255 - folder.length) + file + " ".repeat(50 - file.length);
const chars = drivePath(appFile("msagent/Chars"));
const off = "英文発音不可";

for (const [what, bytes, told, folder, loads] of [
    ["flag 1", record("\x01", "default", ""), [], chars, true],
    ["blanks around the word", record("\x01", " default ", ""), [], chars, true],
    ["flag 2", record("\x02", "default", ""), [], chars, false],
    ["flag 255", record("\xff", "default", ""), [], chars, false],
    ["the word in capitals", record("\x01", "DEFAULT", ""), [], "DEFAULT", false],
    ["no folder", record("\x01", "", ""), [], "", false],
    ["a file that is not there", record("\x01", "default", "none.acs"), ["キャラクタ ファイルの誤り"], chars, false],
    ["a file that is no character", record("\x01", "default", "..\\..\\favorite.dat"), ["キャラクタ ファイルの誤り"], chars, false],
    ["a pattern for a name", record("\x01", "default", "*.acs"), ["キャラクタ ファイルの誤り"], chars, false],
]) {
    writeBytes(appFile("AgentDefi.dat"), bytes);
    told.forEach(() => answer("OK"));
    speech();
    start();
    const shown = boxes();
    check(shown.map(box => box.title), told, what + ": what is told");
    check(shown.map(box => box.icon), told.map(() => 48), what + ": its icon");
    check(state("CharacterFolder"), folder, what + ": the folder");
    check(state("SpeechEnabled") === 1, loads, what + ": on or off");
    setText("frmFind.txtFind", "owl");
    if (!loads)
        answer("OK");
    speech();
    menu("mnuSpeakKeyWord");
    check(boxes().map(box => box.title), loads ? [] : [off], what + ": speaking");
    check(speech().some(({call}) => call === "Speak"), loads, what + ": said or not");
    exit();
    ok(readBytes(appFile("AgentDefi.dat")) === bytes, what + ": the file is not touched");
}
