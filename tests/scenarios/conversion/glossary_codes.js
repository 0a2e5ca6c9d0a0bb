// Every category code of a glossary, small letters too, and what is none.
start();
const form = "frmDataConv.";
const folder = tempDir();
const names = [
    ["TXT", "Text"], ["MSG", "Message"], ["CMT", "Comment"], ["STS", "Status Bar"], ["TOL", "Tool Tip"],
    ["KEY", "Key Name"], ["ARG", "Argument Name"], ["FUN", "Function Name"], ["FLD", "Folder Name"],
    ["FNT", "Font Name"], ["TXB", "Static Text"], ["TDB", "Dialog Title"], ["TAB", "Tab Control"],
    ["GBT", "Group Box Title"], ["EDT", "Edit Box"], ["BUT", "Button"], ["OPT", "Option Button"],
    ["CHK", "Check Box"], ["CST", "Custom Control"], ["TKB", "Slider Bar"], ["PGB", "Progress Bar"],
    ["DRV", "Drive Control"], ["FLC", "Folder Control"], ["MNU", "Menu Item"], ["ACL", "Accelerator"],
    ["VER", "Version"], ["TRX", "Translation Record"], ["LBX", "List Box"], ["SLB", "Scroll Bar"],
    ["CBX", "Combo Box"], ["RDB", "Radio Button"], ["GRP", "Group Box"], ["GEN", "General"], ["UNK", "Unknown"],
    ["KWD", "KeyWord"], ["TTL", "Topic Title"], ["PTL", "Page Title"], ["COM", "Command"], ["ADR", "Address"],
    ["ALT", "Alternative Text"], ["HTX", "HTML Text"], ["HTT", "HTML Title"], ["JST", "Java Text"],
    ["NUM", "Number"], ["PGI", "Page Information"], ["STY", "Style"], ["VST", "VB Script Text"], ["PTY", "Property"],
    ["MAC", "Macro Action"], ["FIL", "File Name"], ["BIL", "Billboards"], ["DIA", "Dialog Item"],
    ["DES", "Description"], ["FTL", "Feature Title"], ["FDS", "Feature Description"], ["IFN", "INI File Name"],
    ["IFK", "INI File Key"], ["IFS", "INI File Section"], ["IFV", "INI File Value"], ["APD", "AppData"],
    ["RGV", "Registry Value"], ["RSD", "Resource Data"], ["SHD", "Shortcut Description"], ["SHN", "Shortcut Name"],
    ["SHH", "Shortcut HotKey"], ["SHA", "Shortcut Argument"], ["VRB", "Verb"], ["ARM", "Argument"],
    ["CID", "ComponentId"], ["FLS", "File Size"], ["FLV", "File Version"], ["FLL", "File Language"],
    ["DOC", "Documentation"],
];
check(names.length, 73, "all codes");
const others = ["ZZZ", "TX", "TXTS", "ＴＸＴ", "T T"];
const codes = [...names, ...names.map(([code, name]) => [code.toLowerCase(), name]), ...others.map(code => [code, "Unknown"])];
writeText(folder + "/codes.csv", "h\r\nh\r\n" + codes.map(([code]) => code + ",1,訳,2," + code + ",NT,Excel\r\n").join(""));
menu("mnuCnv");
choose(form + "ConvDicLst", 4);
answerFile(folder + "/codes.csv");
click(form + "sourceButton");
answerFile(folder + "/codes.mdb");
click(form + "targetButton");
answer("はい");
answer("OK");
click(form + "StartButton");
boxes();
const stored = rows(folder + "/codes.mdb").sort((a, b) => a.AutoID - b.AutoID);
check(stored.map(row => [row.Word, row.Example.split("\r\n")[0]]), codes.map(([code, name]) => [code, "【String Category】" + name]),
    "the names of the categories");
