// The end saves the catalogue and takes the result store away, but only where a catalogue was loaded.
const first = tempDir() + "/first.mdb", second = tempDir() + "/second.mdb";
makeDictionary(first, [["one", null, 1, "一", null]]);
makeDictionary(second, [["two", null, 1, "二", null]]);
setCatalogue([{name: "一番", path: first, selected: true}, {name: "二番", path: second}]);
const selected = bytes => [bytes.slice(305, 307), bytes.slice(309 + 305, 309 + 307)];

start();
writeBytes(appFile("ListData.dat"), "results");
remove(appFile("lexicons.dat"));
const settings = ["FontDefi.dat", "sscDefi.dat", "ListDefi.dat", "AgentDefi.dat"];
const before = settings.map(file => readBytes(appFile(file)));
resize("frmFind", 15000, 10500);
menu("mnuExit");
settle();
check(isOpen("frmFind"), false, "the menu ends the program");
check(boxes(), [], "nobody is asked");
check(exists(appFile("ListData.dat")), false, "the result store is gone");
check(size(appFile("lexicons.dat")), 618, "the catalogue is saved, whatever became of the file");
check(selected(readBytes(appFile("lexicons.dat"))), ["\xff\xff", "\x00\x00"], "with the choice that was made");
check(settings.map(file => readBytes(appFile(file))), before, "no settings file is written");
exit();

start();
check(bounds("frmFind").width, 12000, "the window's size is not remembered");
choose("frmFind.Combo1", 1);
closeForm("frmFind");
check(isOpen("frmFind"), false, "the frame does the same");
check(selected(readBytes(appFile("lexicons.dat"))), ["\x00\x00", "\xff\xff"], "the new choice is saved");
exit();

start();
check(text("frmFind.Combo1"), "二番", "and comes back");
exit();

setCatalogue([]);
start();
writeBytes(appFile("ListData.dat"), "results");
exit();
check(readBytes(appFile("ListData.dat")), "results", "without a catalogue the result store stays behind");
check(size(appFile("lexicons.dat")), 0, "and the catalogue is not written");
