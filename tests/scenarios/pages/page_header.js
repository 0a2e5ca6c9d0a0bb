// The page header is the style file, line by line, as it was at the start.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);

start();
exit();

const entry = '<SPAN ID=sty1>cat</SPAN><SPAN ID=sty2></SPAN><table width="97%" border="0%"><tr><td width="2%"></td>' +
    '<td width="98%"><SPAN ID=sty3>\x94\x4c</SPAN></td> </tr> <tr> <td></td> <td><SPAN ID=sty4></SPAN></td></tr></table>\r\n';
const end = "</BODY></HTML>\r\n";
const pageWith = style => {
    writeBytes(appFile("sscDefi.dat"), style);
    start();
    typeText("frmFind.txtFind", "c");
    const bytes = readBytes(appFile("home.html"));
    check(readBytes(appFile("sscDefi.dat")), style, "the style file stays as it is");
    exit();
    return bytes;
};

check(pageWith("<HTML>\r\n<BODY>\r\n"), "<HTML>\r\n<BODY>\r\n" + entry + end, "two lines");
check(pageWith("<HTML>\r\n\r\n<BODY>"), "<HTML>\r\n\r\n<BODY>\r\n" + entry + end, "an empty line, and no end of the last");
check(pageWith("\x94\x4c&#233;&amp;\r\n"), "\x94\x4c&#233;&amp;\r\n" + entry + end, "Japanese, and references");
check(pageWith(""), entry + end, "none at all");

// It is read once: what happens to the file later does not show before the next start.
writeBytes(appFile("sscDefi.dat"), "<BODY>\r\n");
start();
check(state("HtmlHeaderLines"), ["<BODY>", ""], "the lines and a spare one");
writeBytes(appFile("sscDefi.dat"), "<BODY BGCOLOR=Red>\r\n");
typeText("frmFind.txtFind", "c");
check(readBytes(appFile("home.html")), "<BODY>\r\n" + entry + end, "the header of the start");
remove(appFile("sscDefi.dat"));
typeText("frmFind.txtFind", "a");
check(readBytes(appFile("home.html")), "<BODY>\r\n" + entry + end, "also without the file");

// home.html is made anew where it has gone, and told where it cannot be written.
remove(appFile("home.html"));
typeText("frmFind.txtFind", "t");
check(readBytes(appFile("home.html")), "<BODY>\r\n" + entry + end, "a page file that has gone");
remove(appFile("home.html"));
mkdir(appFile("home.html"));
answer("OK");
press("frmFind.txtFind", "Backspace");
const shown = boxes();
check(shown.length, 1, "a folder in its place is told");
check(shown[0].title, "エラー", "by the title");
check(text("frmFind.txtFind"), "ca", "the text stays");
remove(appFile("home.html"));
typeText("frmFind.txtFind", "t");
check(readBytes(appFile("home.html")), "<BODY>\r\n" + entry + end, "and all is well again");
