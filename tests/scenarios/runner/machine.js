// What stands in for the machine: clipboard, free space, facts, the pane's record.
check(clipboard(), null, "an empty clipboard");
setClipboard("語");
check(clipboard(), "語", "text on the clipboard");
setClipboardImage();
check(clipboard(), null, "an image is no text");
setClipboard(null);
check(clipboard(), null, "emptied");
freeSpace(10);
freeSpace();
system({version: "10.0", memory: 4294967296, load: 50});
system();
check(speech(), [], "nothing was spoken");

answer("OK");
start({bare: true, splash: false});
check(exists(appFile("favorite.dat")), false, "a bare folder has no favourites");
settle();
check(navigations().filter(address => address === drivePath(appFile("home.html"))).length > 0, true,
    "the pane was sent to its page");
check(navigations(), [], "drained");
check(execs(), [], "no command ran");
ok(page().indexOf("<") >= 0, "the page's text");
check(paneText().trim(), "", "a blank page shows nothing");
