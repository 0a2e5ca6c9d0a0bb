// A flag is true when it holds -1; another value than 0 and -1 in FontDefi.dat.
start();
const fonts = appFile("FontDefi.dat"), style = appFile("sscDefi.dat");
exit();
const bytes = readBytes(fonts);
writeBytes(fonts, bytes.slice(0, 4 * 44 + 36) + "\x01\x00".repeat(4) + bytes.slice(5 * 44));
start();
menu("mnuColorSel");
answer("OK");
click("frmColorSelect.Command9");
check(readText(style).split("\r\n")[2], "#sty2 {line-height: 1.5; text-decoration: none;font-family: \"ＭＳ Ｐゴシック\"; font-size: 9pt;" +
    "color: Black;font-weight: normal;font-style: normal;}", "1 is not -1");
