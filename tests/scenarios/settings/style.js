// sscDefi.dat: the default look of a page, when it is made, and when it is left alone.
const rule = (number, decoration, color, weight, style) => "#sty" + number + " {line-height: 1.5; text-decoration: " +
    decoration + ";font-family: \"ＭＳ Ｐゴシック\"; font-size: 9pt;color: " + color + ";font-weight: " + weight +
    ";font-style: " + style + ";}";
const standard = [
    "<HTML><html lang=\"ja\"><HEAD><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;CHARSET=x-sjis\">" +
        "<TITLE></TITLE><STYLE TYPE=\"text/css\">",
    rule(1, "none", "Blue", "bold", "normal"),
    rule(2, "none", "Black", "normal", "normal"),
    rule(3, "none", "Black", "normal", "normal"),
    rule(4, "none", "Black", "normal", "Italic"),
    rule(5, "none", "Red", "bold", "normal"),
    rule(6, "Underline", "Red", "bold", "normal"),
    "</STYLE></HEAD><BODY oncontextmenu=\"return false\">",
].map(line => line + "\r\n").join("");
const style = () => readText(appFile("sscDefi.dat"));
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["fog", null, 1, "霧", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);

start();
check(style(), standard, "the default look");
ok(readBytes(appFile("sscDefi.dat")).includes("\x82\x6c\x82\x72 \x82\x6f"), "in Shift_JIS");
typeText("frmFind.txtFind", "fog");
ok(page().startsWith(standard), "a page begins with all eight lines");
ok(page().endsWith("</BODY></HTML>\r\n"), "and closes what they open");
exit();

// Without the fonts both are made again; without the style the style alone, and by default.
const fonts = readBytes(appFile("FontDefi.dat"));
const changed = fonts.slice(0, 30) + "\x0c\x00" + fonts.slice(32);
const mine = "<html><head></head><body>\r\n<!-- mine -->\r\n";
writeBytes(appFile("FontDefi.dat"), changed);
writeText(appFile("sscDefi.dat"), mine);
start();
check(style(), mine, "a style that is there is left alone");
check(state("HtmlHeaderLines"), ["<html><head></head><body>", "<!-- mine -->", ""], "and used, of whatever length");
typeText("frmFind.txtFind", "fog");
ok(page().startsWith(mine), "at the top of the page");
exit();

remove(appFile("FontDefi.dat"));
start();
check(readBytes(appFile("FontDefi.dat")), fonts, "lost fonts come back by default");
check(style(), standard, "and the style with them");
exit();

writeBytes(appFile("FontDefi.dat"), changed);
remove(appFile("sscDefi.dat"));
start();
check(readBytes(appFile("FontDefi.dat")), changed, "with the style alone lost, the fonts stay");
check(state("FontSizes")[0], 12, "as the user set them");
check(style(), standard, "and the style is the default one");
exit();

writeBytes(appFile("sscDefi.dat"), "");
start();
check(state("HtmlHeaderLines"), [""], "an empty file has no lines");
typeText("frmFind.txtFind", "fog");
ok(page().includes("霧"), "the entry is shown without a header");
check(size(appFile("sscDefi.dat")), 0, "the file stays");
