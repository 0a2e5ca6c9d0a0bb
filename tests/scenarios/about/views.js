// The version dialog: its first view, the report on the machine, and the way back.
start();
system({version: "5.0", build: "2195", platform: "2", processor: 586, memory: 536379392, load: 43});
check(enabled("mnuAbout"), true, "the entry can be chosen");
menu("mnuAbout");
check(openForms(), ["frmFind", "frmAbout"], "the dialog is open");
check(caption("frmAbout"), "Wordmere のバージョン情報", "its title");
check(caption("frmAbout.Label1"), "Wordmere", "the product");
check(caption("frmAbout.Label3"), "Version 2.0.2", "the version");
check(caption("frmAbout.Label4"), "Includes Microsoft Agent technology", "the attribution");
check(caption("frmAbout.Command1"), "OK", "the first button");
check(caption("frmAbout.Command2"), "システム情報(&S)", "the second button");

const heading = caption("frmAbout.Label2");
const words = caption("frmAbout.Label5");
ok(words.includes("GPL-3.0-or-later"), "the licence is shown at first");
ok(words.includes("FreeDict contributors"), "and whose the sample dictionary is");
const place = bounds("frmAbout.Command1");
const size = bounds("frmAbout");

click("frmAbout.Command2");
check(caption("frmAbout.Label2"), "システム情報:", "the heading of the report");
check(caption("frmAbout.Label5"), "Windows バージョン: 5.0 (Build 2195)\r\n" +
    "Windows プラットフォーム: Windows NT/2000\r\nCPU タイプ: Intel Pentium\r\nRAM: 511.53 MB (43% 使用)", "the report");
check(caption("frmAbout.Command2"), "システム情報(&S)", "the button keeps its words");
check([bounds("frmAbout.Command1"), bounds("frmAbout")], [place, size], "nothing moves");

click("frmAbout.Command2");
check(caption("frmAbout.Label2"), heading, "the heading is back");
check(caption("frmAbout.Label5"), words, "the text is back");

// The report is made when it is asked for.
system({version: "6.0", build: "6000", platform: "2", processor: 8664, memory: 17179869184, load: 100});
click("frmAbout.Command2");
check(caption("frmAbout.Label5"), "Windows バージョン: 6.0 (Build 6000)\r\n" +
    "Windows プラットフォーム: Windows XP\r\nCPU タイプ: Non-Intel\r\nRAM: 16,384.00 MB (100% 使用)", "of that moment");
click("frmAbout.Command1");

// [facts, second line, third line, fourth line]
const machines = [
    [{version: "4.10", platform: "1", processor: 386, memory: 67108864, load: 5},
        "Windows 95/98", "Intel 386", "64.00 MB (5% 使用)"],
    [{version: "4.0", platform: "2", processor: 486, memory: 131072, load: 0},
        "Windows NT/2000", "Intel 486", ".13 MB (% 使用)"],
    [{version: "5.0", platform: "3", processor: 587, memory: 1073741824, load: 99},
        "", "Non-Intel", "1,024.00 MB (99% 使用)"],
    [{version: "5.1", platform: "3", processor: 0, memory: 0, load: 1},
        "Windows XP", "Non-Intel", ".00 MB (1% 使用)"],
    [{version: "6.1", platform: "Debian GNU/Linux 12 (bookworm)", processor: 8664, memory: 1048576, load: 50},
        "Debian GNU/Linux 12 (bookworm)", "Non-Intel", "1.00 MB (50% 使用)"],
];
for (const [facts, platform, processor, memory] of machines) {
    system(facts);
    menu("mnuAbout");
    check(caption("frmAbout.Label2"), heading, "each time with the first view");
    click("frmAbout.Command2");
    check(caption("frmAbout.Label5").split("\r\n").slice(1),
        ["Windows プラットフォーム: " + platform, "CPU タイプ: " + processor, "RAM: " + memory], JSON.stringify(facts));
    click("frmAbout.Command1");
}

// This machine's own figures.
system();
menu("mnuAbout");
click("frmAbout.Command2");
ok(/^Windows バージョン: \d+\.\d+ \(Build .+\)\r\nWindows プラットフォーム: .+\r\nCPU タイプ: .+\r\nRAM: [\d,]*\.\d\d MB \(\d*% 使用\)$/
    .test(caption("frmAbout.Label5")), "of the same form");
