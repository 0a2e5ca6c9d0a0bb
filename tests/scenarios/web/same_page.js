// The address box always shows where the pane is: also when the page that comes is the one that was there.
const folder = tempDir() + "/../../";
const site = exists(folder + "site") ? readText(folder + "site") : "";
const box = "frmFind.Combo2";
const field = (bytes, length) => (bytes + " ".repeat(length)).slice(0, length);
start();
writeBytes(appFile("favorite.dat"), field("a", 128) + field(site + "second", 255));
settle();
menu("mnuSrchWebSite");
settle();
check([state("SearchMode"), boxes()], [7, []], "web mode");
check(selectedText(box), text(box), "typing replaces the address, for no load has taken the selection away");

const browse = () => {
    const go = address => { setText(box, address); press(box, "Enter"); settle(); };
    go(site + "second");
    setText(box, "half typed");
    menu("mnuReflesh");
    settle();
    check(text(box), site + "second", "refresh");
    setText(box, "half typed");
    mouseDown("frmFind.Picture27");
    doubleClick("frmFavorite.List1", 0);
    settle();
    click("frmFavorite.Command3");
    check(text(box), site + "second", "a favourite of the page that is shown");
    go(site.replace("http://", "") + "second");
    check(text(box), site + "second", "Enter on the same address without its scheme");
    menu("mnuGoHome");
    settle();
    setText(box, "half typed");
    menu("mnuGoHome");
    settle();
    check(text(box), drivePath(appFile("sites.html")), "home once more");
};
if (site !== "")
    browse();
else
    note("no web to browse");
