// A double click in the list, beside its rows: it goes to the selected one, and nowhere where there is none.
const field = (bytes, length) => (bytes + " ".repeat(length)).slice(0, length);
const list = "frmFavorite.List1";
start();
writeBytes(appFile("favorite.dat"), field("a", 128) + field("http://127.0.0.1:9/a", 255));
menu("mnuSrchWebSite");
settle();
mouseDown("frmFind.Picture27");
clickRow(list, 0);
navigations();
doubleClick(list);
check(navigations(), ["http://127.0.0.1:9/a"], "a double click on the list goes to the selected row, as the button does");
click("frmFavorite.Command3");
