// Texts far longer than anyone types: the fields take them whole, the hints show what fits.
const long = "a".repeat(100000);
start();
writeBytes(appFile("Wildhist.dat"), long + "\r\nb\r\n");
menu("mnuWildCardBuilder");
check(text("frmSearch.Text1").length, long.length, "the field has all of it");
for (const hint of ["Text4", "Text5"])
    ok(text("frmSearch." + hint).length <= 2001, hint + " shows its beginning: " + text("frmSearch." + hint).length);
ok(text("frmSearch.Text4").endsWith("…"), "and says so");
setText("frmSearch.Text1", "a");
check(text("frmSearch.Text4"), "見出し語中の「a」と 「b」の間の文字数が", "a short one is shown whole");
