// Favourites in great number, names of every kind, and a file that is none or cannot be written.
const file = appFile("favorite.dat");
const list = "frmFavorite.List1";
const field = (bytes, length) => (bytes + " ".repeat(length)).slice(0, length);
const record = (name, address) => field(name, 128) + field(address, 255);
start();
menu("mnuSrchWebSite");
settle();
const open = () => mouseDown("frmFind.Picture27");
const close = () => click("frmFavorite.Command3");

// There is no limit on their number.
const many = 40000;
let bytes = "";
for (let i = 0; i < many; ++i)
    bytes += record("site " + i, "http://127.0.0.1:9/" + i);
writeBytes(file, bytes);
open();
check([items(list).length, items(list)[many - 1]], [many, "site " + (many - 1)], "all are listed");
hover(list, 32767);
check(toolTip(list), "http://127.0.0.1:9/32767", "the row of the greatest number that hovering tells");
clickRow(list, 32768);
navigations();
click("frmFavorite.Command4");
check(navigations(), ["http://127.0.0.1:9/32768"], "one beyond 32767 leads to its own address");
close();
check(readBytes(file) === bytes, true, "and written as they were");

// Names.
writeBytes(file, "");
setText("frmFind.Combo2", "http://127.0.0.1:9/x");
open();
const names = ["a<b>&amp;", "é😀", "Ａ", "ｱ", "ア", "a&#x41;"];
for (const name of names) {
    answerInput(name);
    click("frmFavorite.Command1");
}
check(items(list), names, "added in order, each another one");
for (const [name, row] of [["ａ", 2], ["É😀", 1]]) {
    answerInput(name);
    answer("OK");
    click("frmFavorite.Command1");
    check([items(list).length, selectedRow(list)], [names.length, row], "capitals of any kind make no other name: " + name);
}
boxes();
close();
open();
check(items(list), names, "and come back so");
close();
check(size(file), names.length * 383, "a record each");

// A folder in its place.
remove(file);
mkdir(file);
answer("OK");
open();
const shown = boxes();
check(shown.map(box => [box.title, box.icon]), [["エラー", 16]], "a folder is no file");
check([isOpen("frmFavorite"), enabled("frmFind"), exists(file)], [false, true, true], "no dialog, and the window goes on");
remove(file);

// A file that can only be read.
writeBytes(file, record("kept", "http://kept/"));
makeReadOnly(file);
open();
check(items(list), ["kept"], "one that cannot be written is read");
answer("OK");
close();
check(boxes().map(box => box.title), ["エラー"], "the close tells that it cannot be written");
check([isOpen("frmFavorite"), enabled("frmFind"), readBytes(file)], [false, true, record("kept", "http://kept/")], "and leaves it");
