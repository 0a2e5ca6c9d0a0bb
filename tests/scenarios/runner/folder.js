// Files and folders, before any start.
const file = tempDir() + "/sub/note.txt";
ok(exists(tempDir()), "the script's own folder is there");
check(exists(file), false, "nothing is in it");

writeText(file, "語 é\r\n");
check(readBytes(file), "\x8c\xea ?\r\n", "Shift_JIS is the default; what it lacks becomes a question mark");
check(size(file), 6, "size in bytes");
check(readText(file), "語 ?\r\n", "Shift_JIS back");

for (const encoding of ["UTF-8", "UTF-16LE", "UTF-16BE"]) {
    writeText(file, "語é😀", encoding);
    check(readText(file, encoding), "語é😀", encoding + " there and back");
    writeText(file, "\ufeff語", encoding);
    check(readText(file, encoding), "\ufeff語", encoding + " keeps a byte order mark");
}
writeText(file, "語", "UTF-16BE");
check(readBytes(file), "\x8a\x9e", "no byte order mark of itself");
writeText(file, "語", undefined);
check(readBytes(file), "\x8c\xea", "an undefined argument takes the default");

writeBytes(file, "\x00\xff\r\n");
check(readBytes(file), "\x00\xff\r\n", "bytes there and back");
check(drivePath("/a/b.mdb"), "Z:\\a\\b.mdb", "the drive path of a host path");
ok(exists(drivePath(file)), "a drive path means the same file");
check(drivePath(file).slice(0, 3), "Z:\\", "drive Z: is the root");

mkdir(tempDir() + "/a/b/c");
ok(exists(tempDir() + "/a/b/c"), "folders are made with those above them");
remove(tempDir() + "/a");
check(exists(tempDir() + "/a"), false, "a folder goes with what it holds");
remove(tempDir() + "/a");
remove(file);
check(exists(file), false, "a file goes");

// The application folder, before the first start.
ok(exists(appFile("Help.HLP")), "the help is installed");
check(appFile("x.dat"), appFile("") + "/x.dat", "a file of the application folder");
check(exists(appFile("lexicons.dat")), false, "no sample is registered");
ok(tempFolder().slice(-1) === "\\", "the temporary folder is a drive path that ends with a backslash");

const locked = tempDir() + "/locked.txt";
writeText(locked, "a");
makeReadOnly(locked);
check(readText(locked), "a", "a read-only file can be read");
