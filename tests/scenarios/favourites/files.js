// favorite.dat: the shipped one, strange files, and what the end leaves of them.
const file = appFile("favorite.dat");
const list = "frmFavorite.List1";
const field = (bytes, length) => (bytes + " ".repeat(length)).slice(0, length);
const record = (name, address) => field(name, 128) + field(address, 255);
const expectFailure = (number, what) => {
    const shown = boxes();
    check(shown.map(box => [box.title, box.icon]), [["エラー", 16]], what);
    ok(shown.length === 1 && shown[0].text.startsWith("エラー番号  " + number + " "), what + ": its number");
};
start();
menu("mnuSrchWebSite");
settle();
const open = () => mouseDown("frmFind.Picture27");
const close = () => click("frmFavorite.Command3");
const addresses = () => items(list).map((_, row) => {
    hover(list, row);
    return toolTip(list);
});

// As it ships.
const shipped = readBytes(file);
check(shipped.length, 15 * 383, "fifteen sites ship");
open();
check(items(list).length, 15, "all are listed");
check([items(list)[0], items(list)[4], items(list)[14]], ["三省堂 Web Dictionary", "Yahoo!辞書", "Wordmere Web Page"], "by their names");
check(addresses()[14], "", "the program's own page has no address");
ok(addresses().slice(0, 14).every(address => /^https?:\/\/[^\/]+\//.test(address)), "the others have one");
close();
check(readBytes(file), shipped, "closing writes them as they were");

for (const [bytes, names, urls, what] of [
    ["", [], [], "zero length"],
    [record("n".repeat(128), "a".repeat(255)), ["n".repeat(128)], ["a".repeat(255)], "full fields"],
    ["\x8c\xea".repeat(64) + field("http://x/", 255), ["語".repeat(64)], ["http://x/"], "a full name in Japanese"],
    [record("a", "http://a/") + record("b", "http://b/").slice(0, 191), ["a"], ["http://a/"], "a tail of less than half a record"],
    [record("a", "http://a/") + record("b", "http://b/").slice(0, 192), ["a", "b"], ["http://a/", "http://b/"],
        "a tail of half a record counts as one"],
    [record("a", "http://a/").slice(0, 382), ["a"], ["http://a/"], "the last byte is missing"],
    ["ab", [], [], "two bytes"],
    ["\x00".repeat(383), [""], [""], "NUL alone"],
    ["x" + "\x00".repeat(127) + "http://x/" + "\x00".repeat(246), ["x"], ["http://x/"], "padded with NUL"],
    [record("\x81\x40 a \x81\x40", " http://a/ "), ["a"], ["http://a/"], "blanks around"],
    ["a".repeat(127) + "\x8c" + field("\xea", 255), ["a".repeat(127) + "・"], ["・"], "a character cut in two"],
    [record("caf&#xE9;", "http://x/?a=1&amp;b=&#x26;"), ["café"], ["http://x/?a=1&amp;b=&"], "references"],
    ["\xff".repeat(383), ["・".repeat(128)], ["・".repeat(255)], "bytes that are no text"],
    [record("same", "http://1/") + record("same", "http://2/"), ["same", "same"], ["http://1/", "http://2/"], "one name twice"],
]) {
    writeBytes(file, bytes);
    open();
    check([items(list), addresses()], [names, urls], what);
    close();
    check([isOpen("frmFavorite"), enabled("frmFind"), size(file)], [false, true, names.length * 383], what + ": written whole");
    open();
    check([items(list).length, addresses().length], [names.length, urls.length], what + ": and read again");
    close();
}
check(boxes(), [], "none of them is worth a word");

// What is too long is cut on a character.
writeBytes(file, "");
setText("frmFind.Combo2", "http://" + "長".repeat(200));
open();
answerInput("名".repeat(70));
click("frmFavorite.Command1");
check(items(list), ["名".repeat(70)], "the list has the whole name");
close();
boxes();
check(readBytes(file), "\x96\xbc".repeat(64) + "http://" + "\x92\xb7".repeat(124), "the record what fits");
check(size(file), 383, "one record");
open();
check([items(list), addresses()], [["名".repeat(64)], ["http://" + "長".repeat(124)]], "read again");
close();

// Failures: nothing is lost, and the program goes on.
writeBytes(file, record("kept", "http://kept/"));
failNext("read", 57);
answer("OK");
open();
expectFailure(57, "a file that cannot be read");
check([isOpen("frmFavorite"), enabled("frmFind"), readBytes(file)], [false, true, record("kept", "http://kept/")],
    "no dialog, and the file as it was");
for (const [what, number] of [["delete", 70], ["rename", 70], ["write", 61]]) {
    open();
    answerInput("lost " + what);
    click("frmFavorite.Command1");
    boxes();
    failNext(what, number);
    answer("OK");
    close();
    expectFailure(number, what + " fails at the close");
    check([isOpen("frmFavorite"), enabled("frmFind")], [false, true], what + ": the dialog goes");
    check(readBytes(file), record("kept", "http://kept/"), what + ": the old file stays whole");
}

// The window frame and Esc save too; so does the end of the program.
for (const [way, end] of [["frame", () => closeForm("frmFavorite")], ["Esc", () => press(list, "Esc")]]) {
    writeBytes(file, "");
    setText("frmFind.Combo2", "http://" + way + "/");
    open();
    answerInput(way);
    click("frmFavorite.Command1");
    boxes();
    end();
    check([isOpen("frmFavorite"), enabled("frmFind")], [false, true], "closed by " + way);
    check(readBytes(file), record(way, "http://" + way + "/"), way + " saves");
}

// The keys.
open();
const order = [];
focusOn(list);
for (let i = 0; i < 5; ++i) {
    order.push(focused().replace("frmFavorite.", ""));
    press("frmFavorite", "Tab");
}
check(order, ["List1", "Command1", "Command2", "Command4", "Command3"], "the tab order");
closeForm("frmFind");
check(isOpen("frmFavorite"), true, "the main window's frame does nothing meanwhile");
close();
closeForm("frmFind");
check(openForms(), [], "the end");
