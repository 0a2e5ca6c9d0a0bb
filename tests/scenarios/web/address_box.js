// The address box: what it shows and keeps, its keys, and what is no address. Nothing here leaves the machine.
start();
const box = "frmFind.Combo2";
const home = drivePath(appFile("home.html"));
const local = name => {
    const path = tempDir() + "/" + name + ".html";
    writeText(path, "<html><head><title>" + name + "</title></head><body><p>page " + name + "</p></body></html>");
    return drivePath(path);
};
const a = local("a"), b = local("b");
const go = address => {
    setText(box, address);
    press(box, "Enter");
    settle();
};

menu("mnuSrchWebSite");
settle();
check(text(box), home, "the address box shows where the pane is");
check(items(box), [], "what the program shows is not kept");
navigations();

// Enter.
go(a);
check([navigations(), items(box), text(box)], [[a], [a], a], "Enter goes there and keeps the address");
check(paneText().trim(), "page a", "the page is shown");
check(focused(), box, "the key stays in the box");
press(box, "Enter");
settle();
check([navigations(), items(box)], [[a], [a]], "twice on the same address leaves one");
go(b);
check(items(box), [b, a], "a new address goes to the top");
go(a);
check(items(box), [b, a], "one that is known keeps its place");
go(b.toUpperCase());
check(items(box)[0], b.toUpperCase(), "only the very same text is the same address");
const kept = items(box).length;

// Other keys type.
setText(box, "");
typeText(box, a);
check(text(box), a, "keys type into the box");
check(items(box).length, kept, "and keep nothing");
press(box, "Backspace");
check(text(box), a.slice(0, -1), "Backspace too");
press(box, "Esc");
check(text(box), a.slice(0, -1), "Esc does nothing");
typeText(box, "l");

// A beginning is not made longer by what is known.
navigations();
setText(box, "");
typeText(box, a.slice(0, 6));
check(text(box), a.slice(0, 6), "nothing is completed");
focusOn("frmFind.Picture1");
check([navigations(), text(box)], [[], a.slice(0, 6)], "leaving the box goes nowhere");
setText(box, a);
focusOn("frmFind.Picture1");
settle();
check(navigations(), [], "with a known address neither");

// Choosing an item.
navigations();
choose(box, b);
settle();
check([navigations(), text(box), items(box).length], [[b], b, kept], "a choice goes there");
check(paneText().trim(), "page b", "the page of the choice");
choose(box, b);
settle();
check(navigations(), [b], "chosen again, it goes there again");

// The button beside the box.
setText(box, a);
mouseDown("frmFind.Picture0");
settle();
check([navigations(), paneText().trim()], [[a], "page a"], "the start button goes there too");

// The browser's commands.
menu("mnuGoBack");
settle();
check(paneText().trim(), "page b", "back");
check(text(box), b, "the box follows");
mouseDown("frmFind.Picture23");
settle();
check(paneText().trim(), "page a", "forward");
mouseDown("frmFind.Picture22");
settle();
check(paneText().trim(), "page b", "back by its picture");
menu("mnuGoForward");
settle();
check(text(box), a, "forward by its entry");
check(items(box).length, kept, "known addresses are not kept twice");
writeText(tempDir() + "/a.html", "<p>changed</p>");
menu("mnuReflesh");
settle();
check(paneText().trim(), "changed", "refresh reads again");
writeText(tempDir() + "/a.html", "<p>once more</p>");
mouseDown("frmFind.Picture25");
settle();
check(paneText().trim(), "once more", "by its picture too");
for (const stop of [() => menu("mnuCancel"), () => mouseDown("frmFind.Picture24")]) {
    stop();
    settle();
    check([paneText().trim(), text(box)], ["once more", a], "nothing to stop");
}
navigations();
for (const way of [() => menu("mnuGoForward"), () => mouseDown("frmFind.Picture23")]) {
    way();
    settle();
    check([paneText().trim(), text(box), navigations()], ["once more", a, []], "forward at the end changes nothing");
}

// Back, forward and home keep what stands in the box; stop and refresh do not.
setText(box, "not kept yet");
menu("mnuCancel");
menu("mnuReflesh");
settle();
check(items(box).length, kept, "stop and refresh keep nothing");
setText(box, "typed");
menu("mnuGoForward");
check(items(box)[0], "typed", "forward keeps the text of the box, whatever it is");
check(items(box).length, kept + 1, "once");

// What is no address.
go(a);
const before = paneAddress();
for (const address of ["javascript:alert(1)", " JavaScript:document.title='x'", "data:text/html,<p>x", "http://", "",
    "view-source:http://example.com/", "chrome://version", "blob:x", "Z:\\no\\such\\page.html", "Q:\\page.html"]) {
    navigations();
    go(address);
    check(navigations(), [address], "asked for: " + address);
    check([paneAddress(), paneText().trim()], [before, "once more"], "but nothing happens: " + address);
}
check(boxes(), [], "and nothing is said in a box");
go("file:" + "//" + tempDir() + "/b.html");
check(paneText().trim(), "page b", "a file that the user types is shown");

// Home: the program's own page of sites.
for (const way of [() => menu("mnuGoHome"), () => mouseDown("frmFind.Picture26")]) {
    go(a);
    way();
    settle();
    ok(paneText().includes("Cambridge Dictionaries Online"), "home lists the sites");
    check(text(box), drivePath(appFile("sites.html")), "and the box says where that is");
}
ok(paneText().includes("三省堂") && paneText().includes("英和"), "in Japanese");
go(a);
remove(appFile("sites.html"));
failNext("rename", 70);
menu("mnuGoHome");
settle();
check([paneText().trim(), boxes()], ["once more", []], "a home that cannot be written is passed over");
menu("mnuGoHome");
settle();
ok(paneText().includes("OneLook"), "and comes the next time");

// Start: nothing of this is kept.
restart();
menu("mnuSrchWebSite");
check(items(box), [], "the addresses go with the run");
