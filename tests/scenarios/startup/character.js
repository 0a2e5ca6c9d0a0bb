// The character of the settings: the folder, the first file found, or none.
const record = (flag, folder, file) => flag + folder + " ".repeat(255 - folder.length) + file + " ".repeat(50 - file.length);
const facts = () => [state("SpeechEnabled"), state("CharacterFile"), state("CharacterID"), state("NoCharacterFile")];
const folder = tempDir() + "/chars";
const dos = drivePath(folder);

writeBytes(appFile("AgentDefi.dat"), record("\x00", "default", ""));
start();
check(state("CharacterFolder"), drivePath(appFile("msagent/Chars")), "the word default is the program's own folder");
exit();

mkdir(folder);
writeBytes(appFile("AgentDefi.dat"), record("\x01", dos, ""));
start();
check(facts(), [0, "", "", true], "a folder without a character switches speech off");
check(state("CharacterFolder"), dos, "the folder as it stands");
exit();
check(readBytes(appFile("AgentDefi.dat")), record("\x01", dos, ""), "and the file keeps its wish");

writeBytes(appFile("AgentDefi.dat"), record("\x00", dos, ""));
for (const file of ["zoe.acs", "Anna.v2.ACS", "note.txt"])
    writeBytes(folder + "/" + file, "");
start();
check(facts(), [0, "Anna.v2.ACS", "Anna.v2", false], "the first by name; the last point ends its name");
check(state("CharacterPath"), dos + "\\Anna.v2.ACS", "the path");
exit();

writeBytes(appFile("AgentDefi.dat"), record("\x00", dos, "zoe.acs"));
start();
check(facts(), [0, "zoe.acs", "zoe", false], "the one that was chosen");
exit();

writeBytes(appFile("AgentDefi.dat"), record("\x00", "Q:\\nowhere", ""));
start();
check(facts(), [0, "", "", true], "a drive that is not there has no character");
exit();

writeBytes(appFile("AgentDefi.dat"), "");
start();
check(state("SpeechEnabled"), 0, "an empty file reads as nothing");
check(state("CharacterFolder"), "", "and no folder");
exit();
writeBytes(appFile("AgentDefi.dat"), "\x01def");
start();
check(state("CharacterFolder"), "def", "a file cut short reads as far as it goes");
check(size(appFile("AgentDefi.dat")), 4, "and is not touched");
