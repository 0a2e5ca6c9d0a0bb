// The page of hits, byte for byte.
const dictionary = tempDir() + "/bytes.mdb";
makeDictionary(dictionary, [
    ["abc", "x", 1, "D", null],
    ["Abd", null, 1, "<b>意味</b> D d", "例文 d"],
    ["xab", " é ", 1, "　D\r\nd ", null],
    ["xaby", null, 1, null, "E"],
]);
setCatalogue([{name: "字", path: dictionary, selected: true}]);
start();

const header = readBytes(appFile("sscDefi.dat")), end = "</BODY></HTML>\r\n";
const label = "\x81\x79\x97\x70\x97\xe1\x81\x7a ";
const span = (style, words) => "<SPAN ID=sty" + style + ">" + words + "</SPAN>";
const entry = (headword, sound, meaning, example) => headword + span(2, sound) +
    '<table width="97%" border="0%"><tr><td width="2%"></td><td width="98%">' + meaning +
    "</td> </tr> <tr> <td></td> <td>" + example + "</tr></table>\r\n";
const shown = (mode, typed) => {
    menu(mode);
    setText("frmFind.txtFind", typed);
    navigations();
    press("frmFind.txtFind", "Enter");
    check(navigations(), [drivePath(appFile("home.html")), drivePath(appFile("home.html"))], typed + ": the blank page, then the hits");
    return readBytes(appFile("home.html"));
};
const imi = "<b>\x88\xd3\x96\xa1</b> ", reibun = "\x97\xe1\x95\xb6 ";

check(shown("mnuPreSrch", "ab"), header +
    entry(span(5, "ab") + span(1, "c"), " [x]", span(3, "D"), span(4, "")) +
    entry(span(5, "ab") + span(1, "d"), "", span(3, imi + "D d"), span(4, label + reibun + "d")) + end, "prefix");
check(shown("mnuMidSrch", "AB"), header +
    entry(span(1, "x") + span(5, "AB") + span(1, "y"), "", span(3, ""), span(4, label + "E")) + end, "middle");
check(shown("mnuPostSrch", "aB"), header +
    entry(span(1, "x") + span(5, "aB"), " [&#233;]", span(3, "D\r\nd"), span(4, "")) + end, "suffix");
check(shown("mnuWildCard", "x%"), header +
    entry(span(1, "xab"), " [&#233;]", span(3, "D\r\nd"), span(4, "")) +
    entry(span(1, "xaby"), "", span(3, ""), span(4, label + "E")) + end, "wildcard");
check(shown("mnuTxtInMeaning", "d"), header +
    entry(span(1, "abc"), " [x]", span(3, "") + span(6, "D") + span(3, ""), span(4, "")) +
    entry(span(1, "Abd"), "", span(3, imi) + span(6, "D") + span(3, " d"), span(4, label + reibun + "d")) +
    entry(span(1, "xab"), " [&#233;]", span(3, "") + span(6, "D") + span(3, "\r\nd"), span(4, "")) + end, "text in meanings");
check(shown("mnuTxtInExample", "D"), header +
    entry(span(1, "Abd"), "", span(3, imi + "D d"), span(4, label + reibun) + span(6, "d") + span(4, "")) + end, "text in examples");
check(shown("mnuWildCard", "a%/T:d/E:文"), header +
    entry(span(1, "Abd"), "", span(3, imi) + span(6, "D") + span(3, " d"),
        span(4, label + "\x97\xe1") + span(6, "\x95\xb6") + span(4, " d")) + end, "both conditions");
settle();
ok(paneText().includes("意味") && paneText().includes("Abd"), "the pane shows it");
check(boxes(), [], "no box");

// Texts that a record holds for the pattern, but not as they were typed, end the page with its message.
for (const [mode, typed] of [["mnuMidSrch", "[a]b"], ["mnuTxtInMeaning", "[D]"], ["mnuTxtInExample", "[d]"],
    ["mnuPreSrch", "a/T:[d]"], ["mnuPreSrch", "a/E:[d]"]]) {
    menu(mode);
    setText("frmFind.txtFind", typed);
    answer("OK");
    press("frmFind.txtFind", "Enter");
    const [box] = boxes();
    check([box.title, box.icon, box.beep], ["設定辞書「字」の辞書データベースなし", 16, 16], mode + " " + typed + ": the message");
    ok(box.text.endsWith("メニューバーの [ツール]から [辞書設定] を選んで確認して下さい。"), "with its last line");
    ok(items("frmFind.List1").length > 0, "the list stands");
    check([pointer(), state("ViewConnection")], [11, true], "the hourglass and the table stay until the next page");
}
menu("mnuPreSrch");
shown("mnuPreSrch", "ab");
check([pointer(), state("ViewConnection")], [0, false], "which puts both away");
