// An address that ends in an encoded blank: the box and a favourite keep it so that it leads to the same page.
const folder = tempDir() + "/../../";
const site = exists(folder + "site") ? readText(folder + "site") : "";
const arrived = () => readText(folder + "requests").split("\n").filter(line => line.includes("q="));
const box = "frmFind.Combo2";
start();
menu("mnuSrchWebSite");
settle();
check([state("SearchMode"), boxes()], [7, []], "web mode");

const browse = () => {
    const go = address => { setText(box, address); press(box, "Enter"); settle(); };
    for (const query of ["cat%20", "%E7%8C%AB%E3%80%80", "x%C2%A0"]) {
        go(site + "second?q=" + query);
        const asked = arrived().pop();
        mouseDown("frmFind.Picture27");
        answerInput("kept " + query);
        click("frmFavorite.Command1");
        click("frmFavorite.Command3");
        press(box, "Enter");
        settle();
        check(arrived().pop(), asked, "Enter on the address shown asks for the same page: " + query);
        mouseDown("frmFind.Picture27");
        doubleClick("frmFavorite.List1", items("frmFavorite.List1").length - 1);
        settle();
        click("frmFavorite.Command3");
        check(arrived().pop(), asked, "and so does the favourite: " + query);
    }
    boxes();
};
if (site !== "")
    browse();
else
    note("no web to browse");
