// F1 shows the topic of the form in front, also beside a modal form.
const dictionary = tempDir() + "/one.mdb";
makeDictionary(dictionary, [["cat", null, 1, "猫", null]]);
setCatalogue([{name: "一", path: dictionary, selected: true}]);
start();
settle();
const topic = () => caption("frmHelp").replace(" - Wordmere ヘルプ", "");

for (const control of ["txtFind", "List1", "Combo1", "WebBrowser1"]) {
    typeText("frmFind.txtFind", "c");
    press("frmFind." + control, "F1");
    check([isOpen("frmHelp") && topic(), focused()], ["画面の説明", "frmHelp.TopicView"], "F1 in " + control);
    press("frmHelp.TopicView", "Esc");
    check(isOpen("frmHelp"), false, "Esc closes the help");
    check(enabled("frmFind"), true, "the main window is as before");
    setText("frmFind.txtFind", "");
}
press("frmFind.txtFind", "Shift+F1");
press("frmFind.txtFind", "Ctrl+F1");
check(openForms(), ["frmFind"], "other keys than F1 alone do nothing");

// From a drop-down list.
press("frmFind.Combo1", "Alt+Down");
press("frmFind.Combo1", "F1");
check(topic(), "画面の説明", "F1 with the drop-down list open");
press("frmHelp.TopicView", "F1");
check(topic(), "ヘルプの使い方", "F1 in the help itself");
click("frmHelp.ButtonBack");
check(topic(), "画面の説明", "and back");
closeForm("frmHelp");

// From a modal form.
menu("mnuAbout");
press("frmAbout.Command1", "F1");
check(openForms(), ["frmFind", "frmAbout", "frmHelp"], "beside the dialog");
check(topic(), "バージョン情報", "the dialog's topic");
click("frmHelp.ButtonLarger");
press("frmHelp.TopicView", "Ctrl+0");
clickRow("frmHelp.ContentsTree", 0);
check(topic(), "はじめに", "the help takes input");
click("frmAbout.Command2");
check(caption("frmAbout.Label2"), "システム情報:", "and so does the dialog");
typeText("frmFind.txtFind", "x");
check(text("frmFind.txtFind"), "", "but not the main window");
press("frmAbout.Command1", "F1");
check([topic(), openForms()], ["バージョン情報", ["frmFind", "frmAbout", "frmHelp"]], "F1 again in the same window");
press("frmHelp.TopicView", "Esc");
check(openForms(), ["frmFind", "frmAbout"], "closing the help leaves the dialog");
press("frmAbout.Command1", "F1");
press("frmAbout.Command1", "Esc");
check(openForms(), ["frmFind", "frmHelp"], "closing the dialog leaves the help");
clickRow("frmHelp.ContentsTree", 0);
check(topic(), "はじめに", "which takes input on");
typeText("frmFind.txtFind", "c");
check(text("frmFind.txtFind"), "c", "beside the main window");

// A dialog that opens while the help stands.
menu("mnuAbout");
clickRow("frmHelp.ContentsTree", 1);
check(topic(), "まず引いてみる", "the help takes input beside it");
press("frmAbout.Command1", "Enter");
menu("mnuAbout");
press("frmHelp.ContentsTree", "Down");
check(topic(), "画面の説明", "each time");
press("frmAbout.Command1", "Enter");
check(openForms(), ["frmFind", "frmHelp"], "and stays");

// From a box: the topic is that of the form below.
press("frmFind.txtFind", "F1");
check(topic(), "画面の説明", "F1 in the main window");
check(boxes(), [], "all without a box");
