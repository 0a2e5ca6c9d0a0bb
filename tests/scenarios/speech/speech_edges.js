// Speech at its edges: a copy that fails, blanks that are selected, the very corner, a window that closes under it.
const record = (flag, folder, file) => flag + folder + " ".repeat(255 - folder.length) + file + " ".repeat(50 - file.length);
const dictionary = tempDir() + "/two.mdb";
makeDictionary(dictionary, [["cat", null, 1, "a small animal", null], ["dog", null, 1, "犬", null]]);
setCatalogue([{name: "二", path: dictionary, selected: true}]);
const calls = () => speech().map(each => each.call);
const one = () => { menu("mnuListSettings"); setText("frmListSettings.Combo1", "1"); click("frmListSettings.Command1"); click("frmListSettings.Command2"); };
const select = word => {
    setText("frmFind.txtFind", word);
    settle();
    menu("mnuSelectAll");
    settle();
};
writeBytes(appFile("AgentDefi.dat"), record("\x01", "default", "Neko.acs"));
start({screenWidth: 1000});
check(speech().length, 3, "loaded");
one();
settle();
execs();

// What fails on the way to the selection goes to the default handling, and nothing is said.
select("cat");
execs();
setClipboard("kept");
failNext("ExecWB", 5);
answer("OK");
menu("mnuSpeakSelectedArea");
check(boxes().map(box => box.title), ["エラー"], "a copy that fails is told");
check([execs(), calls(), clipboard()], [[12], [], "kept"], "it was the copy; nothing is said, the clipboard is as it was");
menu("mnuSpeakSelectedArea");
check(execs(), [12], "one copy");
const said = speech();
check(said.map(each => each.call), ["Show", "Show", "MoveTo", "Speak"], "the next one speaks");
check(said[2].args, [1000 - 140, 800 - 170], "the lower right corner, over all of the screen");
check([boxes(), clipboard()], [[], "kept"], "no box");

// An order of the checks: what is empty is told before what is not English, that before speech that is off.
mouseDown("frmFind.Picture28");
for (const [typed, message] of [["\u3000 ", "発音する英文がありません！"], ["ａ", "英文以外の文字(全角文字)が含まれています！"]]) {
    setText("frmSpeaking.Text1", typed);
    answer("OK");
    click("frmSpeaking.Command2");
    check(boxes().map(box => [box.title, box.text, box.icon]), [["英文発音不可", message, 48]], message);
}
setText("frmSpeaking.Text1", " ｱｲｳ \r\n half width ");
focusOn("frmSpeaking.Command2");
click("frmSpeaking.Command2");
check([boxes(), speech().map(each => each.args)], [[], [[], [], [" ｱｲｳ \r\n half width "]]], "half-width katakana pass, and all is said as it stands");
check(focused(), "frmSpeaking.Text1", "the focus");

// The main window closes in the middle of it, with the dialog open.
setText("frmSpeaking.Text1", "never ending story. ".repeat(50000));
click("frmSpeaking.Command2");
check(calls(), ["Show", "Show", "Speak"], "a million characters");
settle();
exit();
check([calls(), openForms()], [[], []], "the program ends");
