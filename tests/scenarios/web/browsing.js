// The web itself, from a server on this machine: there, back, forward, stop, refresh, what a page may do, and the
// favourites.
const folder = tempDir() + "/../../";
const site = exists(folder + "site") ? readText(folder + "site") : "";
const arrived = () => readText(folder + "requests").split("\n").filter(line => line !== "");
const box = "frmFind.Combo2";
start();
menu("mnuSrchWebSite");
settle();
check([state("SearchMode"), boxes()], [7, []], "web mode");

const browse = () => {
    const go = address => {
        setText(box, address);
        press(box, "Enter");
        settle();
    };

    go(site);
    check([paneText().includes("first page"), text(box), paneAddress()], [true, site, site], "a page of the web");
    check(items(box), [site], "is kept");
    go(site.replace("http://", "").replace("/", "") + "/second");
    check([paneText().trim(), text(box)], ["second page, second to none", site + "second"], "without the scheme");
    check(items(box)[0], site.replace("http://", "").replace("/", "") + "/second", "what was typed is kept as it was typed");
    const two = items(box).length;

    menu("mnuGoBack");
    settle();
    check([paneText().includes("first page"), text(box)], [true, site], "back");
    menu("mnuGoForward");
    settle();
    check(text(box), site + "second", "forward");
    ok(items(box).length >= two, "the addresses stay");
    go(site + "moved");
    check(text(box), site + "second", "a redirection is followed, and the box tells where it leads");

    // Copy, select all, find and print work as on entries.
    execs();
    menu("mnuSelectAll");
    menu("mnuCopy");
    check(execs(), [17, 12], "select all and copy");
    check(clipboard().trim(), "second page, second to none", "the text of the web page");
    menu("mnuFind");
    check(visible("frmFind.FindText"), true, "the find bar");
    setText("frmFind.FindText", "second");
    settle();
    check(text("frmFind.FindCount"), "1 / 2 件", "finds in the page");
    press("frmFind.FindText", "Esc");
    for (const [name, number] of [["mnuPrint", 6], ["mnuPrintView", 7], ["mnuPageSettings", 8]]) {
        menu(name);
        check(execs(), [number], name);
    }

    // Script, refresh, pop-ups and cookies.
    go(site + "script");
    check(paneText().trim(), "scripted", "script runs");
    go(site + "refresh");
    const count = () => Number(paneText().trim().replace("count ", ""));
    const before = count();
    menu("mnuReflesh");
    settle();
    check(count() > before, true, "refresh asks the server again");
    go(site + "popup");
    for (let i = 0; i < 40 && !paneText().includes("second page"); ++i)
        settle();
    check([paneText().trim(), openForms()], ["second page, second to none", ["frmFind"]], "a pop-up opens in the pane");
    go(site + "cookie");
    ok(paneText().includes("sent: none"), "no cookie at first");
    go(site);
    go(site + "cookie");
    ok(paneText().includes("sent: taste=sweet"), "it is sent the next time");

    // A page of the web may not go to a file.
    go(site + "tofile");
    for (let i = 0; i < 10; ++i)
        settle();
    check([paneText().trim(), text(box)], ["stays on the web", site + "tofile"], "no file");

    // A file that is handed out: the user says where it goes.
    go(site);
    const target = tempDir() + "/saved.bin";
    const fetch = () => {
        setText(box, site + "file");
        press(box, "Enter");
        for (let i = 0; i < 60; ++i)
            settle();
    };
    answerFile(null);
    fetch();
    check(boxes().map(each => [each.kind, each.title, each.defaultText]), [["file", "名前を付けて保存", "words.bin"]], "it asks for the place");
    check([exists(target), paneText().includes("first page")], [false, true], "cancelled, nothing is written");
    answerFile(target);
    fetch();
    check([boxes().length, exists(target) && readBytes(target)], [1, "bytes"], "saved");
    writeBytes(target, "mine");
    answerFile(target);
    answer("いいえ");
    fetch();
    check([boxes().map(each => each.title), readBytes(target)], [["名前を付けて保存", "上書きの確認"], "mine"], "a file that is there stays");
    answerFile(target);
    answer("はい");
    fetch();
    boxes();
    check(readBytes(target), "bytes", "unless the user wants it written over");
    ok(paneText().includes("first page"), "the page stays all the while");

    // A page that hangs, and its stop.
    go(site);
    setText(box, site + "slow");
    press(box, "Enter");
    for (let i = 0; i < 100 && !arrived().includes("GET /slow"); ++i)
        text(box);
    menu("mnuCancel");
    check(settle(), true, "stopped");
    ok(paneText().includes("first page"), "the page that was there stays");
    setText(box, site + "slow");
    press(box, "Enter");
    mouseDown("frmFind.Picture24");
    check(settle(), true, "stopped at once by the picture");
    ok(paneText().includes("first page"), "and the page that was there stays again");

    // No server, and no such place: the browser's own page, without a box.
    for (const address of ["http://127.0.0.1:9/", "http://127.0.0.256/"]) {
        go(address);
        check(text(box), address, "the address stays: " + address);
        check(boxes(), [], "the program says nothing: " + address);
    }
    menu("mnuGoBack");
    settle();
    go(site + "second");
    check(paneText().trim(), "second page, second to none", "and goes on");

    // The favourites.
    mouseDown("frmFind.Picture27");
    answerInput(shown => shown.defaultText);
    click("frmFavorite.Command1");
    check(boxes().map(each => each.defaultText), ["二番目"], "the title of the page is proposed");
    click("frmFavorite.Command3");
    go(site);
    ok(paneText().includes("first page"), "elsewhere");
    mouseDown("frmFind.Picture27");
    const row = items("frmFavorite.List1").indexOf("二番目");
    hover("frmFavorite.List1", row);
    check(toolTip("frmFavorite.List1"), site + "second", "its address");
    doubleClick("frmFavorite.List1", row);
    settle();
    check([paneText().trim(), text(box), isOpen("frmFavorite")], ["second page, second to none", site + "second", true],
        "the favourite is shown, and the dialog stays");
    click("frmFavorite.Command3");
    check(readBytes(appFile("favorite.dat")).length, 16 * 383, "sixteen are kept");

    // Cookies that are to stay outlive the run.
    restart();
    menu("mnuSrchWebSite");
    settle();
    go(site + "cookie");
    ok(paneText().includes("sent: taste=sweet"), "the cookie of the last run is sent");
    check(items(box), [site + "cookie"], "the addresses of the last run are gone");
};
if (site !== "")
    browse();
else
    note("no web to browse");
