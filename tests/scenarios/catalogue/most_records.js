// The greatest number of records that a 16-bit count holds.
const record = "x".repeat(50) + "C:\\x.mdb" + " ".repeat(247) + "\x00\x00\x00\x00";
writeBytes(appFile("lexicons.dat"), record.repeat(32767));
answer("OK");
start();
check(boxes().map(box => box.text), [], "nothing to tell");
check(items("frmFind.Combo1").length, 32767, "all are offered");
