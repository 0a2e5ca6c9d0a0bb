// The page of entries of the incremental search, byte for byte.
const dictionary = tempDir() + "/bytes.mdb";
makeDictionary(dictionary, [
    ["abc", "x", 1, "D", null],
    ["abd", "", 1, "意味", "例文 here"],
    ["abe", null, 1, null, ""],
    ["abf　 ", "  éi  ", 1, "　<b>太字</b> & 1 < 2　", " ex "],
    ["abg", null, 1, "一行目\r\n二行目", "line 1\nline 2"],
    ["naïve", "nɑːˈiːv", 1, "素朴な “él” 😀 —～", "naïve artist"],
]);
setCatalogue([{name: "字", path: dictionary, selected: true}]);
start();

const header = readBytes(appFile("sscDefi.dat"));
check(header.slice(0, 30), '<HTML><html lang="ja"><HEAD><M', "the header of the pages");
check(header.slice(-52), '</STYLE></HEAD><BODY oncontextmenu="return false">\r\n', "and its end");
const open = '<table width="97%" border="0%"><tr><td width="2%"></td><td width="98%"><SPAN ID=sty3>';
const middle = "</SPAN></td> </tr> <tr> <td></td> <td><SPAN ID=sty4>";
const close = "</SPAN></td></tr></table>\r\n";
const label = "\x81\x79\x97\x70\x97\xe1\x81\x7a ";
const lineOf = (word, sound, meaning, example) =>
    "<SPAN ID=sty1>" + word + "</SPAN><SPAN ID=sty2>" + sound + "</SPAN>" + open + meaning + middle + example + close;
const lines = {
    abc: lineOf("abc", " [x]", "D", ""),
    abd: lineOf("abd", "", "\x88\xd3\x96\xa1", label + "\x97\xe1\x95\xb6 here"),
    abe: lineOf("abe", "", "", ""),
    abf: lineOf("abf", " [&#233;i]", "<b>\x91\xbe\x8e\x9a</b> & 1 < 2", label + "ex"),
    abg: lineOf("abg", "", "\x88\xea\x8d\x73\x96\xda\r\n\x93\xf1\x8d\x73\x96\xda", label + "line 1\nline 2"),
    naive: lineOf("na&#239;ve", " [n&#593;&#720;&#712;i&#720;v]",
        "\x91\x66\x96\x70\x82\xc8 \x81\x67&#233;l\x81\x68 &#128512; \x81\x5c\x81\x60", label + "na&#239;ve artist"),
};
const end = "</BODY></HTML>\r\n";
const pageOf = (...entries) => header + entries.join("") + end;
const shown = typed => {
    setText("frmFind.txtFind", typed);
    return readBytes(appFile("home.html"));
};

check(shown("abg"), pageOf(lines.abg, lines.naive), "line breaks stay, what the code page lacks is a number");
check(shown("abe"), pageOf(lines.abe, lines.abf, lines.abg, lines.naive), "no example: its row stays, without a label");
check(shown("abd"), pageOf(lines.abd, lines.abe, lines.abf, lines.abg, lines.naive), "no pronunciation: no brackets");
check(shown("abc"), pageOf(lines.abc, lines.abd, lines.abe, lines.abf, lines.abg, lines.naive), "all of them in order");

check(items("frmFind.List1")[3], "abf", "a word with blanks behind it is listed without them");

// The same bytes by the other ways to a page.
check(shown("abc"), pageOf(lines.abc, lines.abd, lines.abe, lines.abf, lines.abg, lines.naive), "by the walk");
clickRow("frmFind.List1", 4);
check(readBytes(appFile("home.html")), pageOf(lines.abg, lines.naive), "by a click");
menu("mnuSrchFromWord");
check(shown("ab"), pageOf(lines.abc, lines.abd, lines.abe, lines.abf, lines.abg), "by the limited search");
clickRow("frmFind.List1", 2);
check(readBytes(appFile("home.html")), pageOf(lines.abe, lines.abf, lines.abg), "by a click there");
