// The path of the help is set although the file was missing at the start: put back, it opens.
const help = readBytes(appFile("Help.HLP"));
remove(appFile("Help.HLP"));
answer("OK");
start();
check(boxes().map(box => box.title), ["ヘルプファイル未検出"], "missing at the start");
answer("OK");
menu("mnuTopicSearch");
const [box] = boxes();
check([box.title, box.icon], ["ヘルプファイル未検出", 48], "and when it is asked for");
ok(box.text.startsWith(drivePath(appFile("Help.HLP")) + "\r\n"), "which file it is");
check(openForms(), ["frmFind"], "no help");
writeBytes(appFile("Help.HLP"), help);
menu("mnuTopicSearch");
check([boxes(), openForms()], [[], ["frmFind", "frmHelp"]], "put back, it opens");
