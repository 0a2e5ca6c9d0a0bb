// Start, end and start again; controls, state and the keyboard.
const dictionary = tempDir() + "/animals.mdb";
makeDictionary(dictionary, [
    ["bear", null, 1, "熊", null],
    ["cat", null, 1, "猫", null],
    ["cat nap", null, 2, "うたた寝", null],
    ["dog", null, 1, "犬", null],
]);
setCatalogue([{name: "動物", path: dictionary, selected: true}]);

check(openForms(), [], "nothing is open before the start");
check(start(), true, "the main window stands");
check(isOpen("frmFind"), true, "it is open");
check(openForms(), ["frmFind"], "and nothing else");
check(caption("frmFind"), "Wordmere", "a form's caption");
check(caption("mnuExit"), "終了(&X)", "a menu entry's caption keeps its mark");
check(enabled("frmFind"), true, "the form takes input");
check(enabled("frmFind.txtFind"), true, "a control's own flag");
check(checked("mnuIncSrch"), true, "a menu entry's check mark");
check(checked("mnuPreSrch"), false, "and none");
check(status(), "Ready", "the status bar");
check(text("frmFind.StatusBar1"), "Ready", "the same by its control");
check(pointer(), 0, "the pointer");
check(visible("frmFind.Picture00"), false, "a hidden control");
check(state("SearchMode"), 0, "a shared number");
check(state("CurrentDicName"), "動物", "a shared text");
check(state("TableFirstWord"), "bear", "a member of the main window");
check(state("frmFind.TableLastWord"), "dog", "the same with the form's name");
check(state("ViewConnection"), false, "an object reference that is none");
check(state("Lexicons").length, 2, "the catalogue with its spare slot");
check(state("Lexicons")[0].IsSelected, -1, "a member of the catalogue");
check(state("CatalogueFlag1"), -1, "the first flag");
check(state("FontColors"), [0xff0000, 0xff0000, 0xff0000, 0xff0000, 0, 0, 0, 255, 255], "a shared array");
check(fontOf("frmFind.Label1"), {
    name: "ＭＳ Ｐゴシック", size: 9, color: 0xff0000, bold: false, italic: false, strikeout: false, underline: false,
}, "a control's font");
check(colorOf("frmFind.List1"), 0xff0000, "a control's colour");
check(text("frmFind.Combo1"), "動物", "a drop-down box's text");
check(items("frmFind.Combo1"), ["動物"], "and its items");

typeText("frmFind.txtFind", "cat");
check(text("frmFind.txtFind"), "cat", "typed key by key");
check(items("frmFind.List1"), ["cat", "cat nap", "dog"], "and followed");
check(focused(), "frmFind.txtFind", "the focus");
check(selectedRow("frmFind.List1"), -1, "nothing is selected");
press("frmFind.txtFind", "Backspace");
check(text("frmFind.txtFind"), "ca", "a key by its name");
check(state("IncWords").slice(0, 3), ["cat", "cat nap", "dog"], "a shared array of texts");
setText("frmFind.txtFind", "d");
check(items("frmFind.List1"), ["dog"], "a text put in raises the change as well");
typeText("frmFind.txtFind", "犬");
check(text("frmFind.txtFind"), "d犬", "what an input method commits");
press("frmFind.txtFind", "Esc");
check(text("frmFind.txtFind"), "", "Esc");

typeText("frmFind.txtFind", "cat");
clickRow("frmFind.List1", 1);
check(text("frmFind.txtFind"), "cat nap", "a click on a row");
check(selectedRow("frmFind.List1"), 1, "the row is selected");
hover("frmFind.List1", 2);
check(toolTip("frmFind.List1"), "dog", "the pointer over a row");
click("frmFind.Label1");
check(text("frmFind.Label1"), "単語：", "a click on a label");
menu("mnuSrchFromAll");
check(state("SearchTarget"), 0, "a menu entry");
click("mnuSrchFromPhrase");
check(state("SearchTarget"), 2, "the same by a click");
menu("mnuSrchFromAll");

check(bounds("frmFind.List1").width, 3550 - 3550 % 15 + (3550 % 15 > 7 ? 15 : 0), "a width to the pixel");
dragListEdge(4500);
check(bounds("frmFind.List1").width, 4500, "the list's edge is dragged");
resize("frmFind", 13500, 9750);
check(bounds("frmFind").width, 13500, "the form's width");
check(bounds("frmFind").height, 9750, "the form's height");

exit();
check(openForms(), [], "nothing is open after the end");
ok(exists(appFile("lexicons.dat")), "the folder stays");
start({screenWidth: 640});
check(bounds("frmFind").width, 9600, "a small screen");
check(text("frmFind.txtFind"), "", "the state is fresh");
closeForm("frmFind");
check(isOpen("frmFind"), false, "closed by its frame");
exit();
check(start(), true, "and again");
restart();
check(isOpen("frmFind"), true, "exit and start in one");
