// A dictionary that fails the editor: gone, replaced, locked, read-only; a record that went.
const dictionary = tempDir() + "/words.mdb";
const make = () => makeDictionary(dictionary, [["a", null, 1, "一", null], ["b", null, 1, "二", null], ["c", null, 1, "三", null]]);
make();
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
const stored = () => rows(dictionary).map(row => [row.Word, row.Description, row.AutoID]);
const original = stored();
const open = () => menu("mnuOpen");
const fields = () => [1, 2, 3, 4].map(number => text("frmMstmnt.Text" + number));
const usable = () => [enabled("frmMstmnt"), enabled("frmFind"), isOpen("frmProcessing"), state("ViewConnection"), pointer()];
const fine = [true, false, false, false, 0];
const titles = () => boxes().map(box => box.title);
const drop = () => {
    answer("いいえ");
    closeForm("frmMstmnt");
    boxes();
};

// Every command of a record with changes, with the file removed, or a text in its place.
const answers = {Command6: ["はい", "OK"], Command8: ["はい", "OK"], Command3: ["はい", "OK"], Command5: ["はい", "OK"], Command7: ["OK"], Command9: ["はい", "OK"], Command10: ["はい", "OK"]};
for (const [what, spoil] of [["removed", () => remove(dictionary)], ["a text", () => writeText(dictionary, "no dictionary")]]) {
    make();
    open();
    typeText("frmMstmnt.Text3", "x");
    spoil();
    for (const command of Object.keys(answers)) {
        answers[command].forEach(word => answer(word));
        click("frmMstmnt." + command);
        check(titles().slice(-1), ["エラー"], what + ", " + command + ": told");
        check([fields(), usable()], [["a", "", "x一", ""], fine], what + ", " + command + ": what was typed stays, and the form works");
    }
    answer("はい");
    answer("OK");
    closeForm("frmMstmnt");
    check([isOpen("frmMstmnt"), titles()], [true, ["変更確認", "エラー"]], what + ": it does not close over what cannot be stored");
    drop();
    check([openForms(), enabled("frmFind")], [["frmFind"], true], what + ": given up by the user alone");
}
remove(dictionary);

// While it opens.
make();
for (const operation of ["Open", "EOF", "Seek", "Value", "Close"]) {
    failNext(operation, -2147467259);
    answer("OK");
    open();
    check([titles(), openForms(), enabled("frmFind"), state("ViewConnection")], [["エラー"], ["frmFind"], true, false], operation + " fails at the load: undone");
}
open();
check(fields()[0], "a", "and then it opens");

// Each operation of a saving, by an injected failure.
for (const operation of ["Open", "Seek", "Value", "Update"]) {
    typeText("frmMstmnt.Text3", "x");
    failNext(operation, -2147467259);
    answer("はい");
    answer("OK");
    click("frmMstmnt.Command6");
    check([titles(), stored(), fields()[2], usable()], [["保存確認", "エラー"], original, "x一", fine], operation + " fails: nothing changes");
    click("frmMstmnt.Command7");
}
for (const operation of ["Execute", "Open", "Seek", "AddNew", "Update", "Delete"]) {
    setText("frmMstmnt.Text1", "d");
    failNext(operation, -2147467259);
    answer("はい");
    answer("OK");
    click("frmMstmnt.Command6");
    check([titles(), stored(), fields()[0], usable()], [["保存確認", "エラー"], original, "d", fine], operation + " fails at a renaming: nothing is lost");
    click("frmMstmnt.Command7");
}
for (const operation of ["Open", "Seek", "Delete"]) {
    failNext(operation, -2147467259);
    answer("はい");
    answer("OK");
    click("frmMstmnt.Command8");
    check([titles(), stored(), fields()[0], usable()], [["削除確認", "エラー"], original, "a", fine], operation + " fails at a deletion: nothing is deleted");
}
click("frmMstmnt.Command5");
setText("frmMstmnt.Text1", "e");
setText("frmMstmnt.Text3", "五");
for (const operation of ["Open", "AddNew", "Update"]) {
    failNext(operation, 61);
    answer("はい");
    answer("OK");
    click("frmMstmnt.Command6");
    check([titles(), stored(), fields(), state("frmMstmnt.EditState")], [["保存確認", "エラー"], original, ["e", "", "五", ""], 1], operation + " fails at an adding: it goes on");
}
// Stored, but it cannot be shown: it must not be added twice.
failNext("Seek", -2147467259);
answer("はい");
answer("OK");
click("frmMstmnt.Command6");
check([titles(), stored().length, state("frmMstmnt.EditState"), state("CurrentWord")], [["保存確認", "エラー"], 4, 0, "e"], "stored: it is edited from then on");
click("frmMstmnt.Command9");
check([openForms(), boxes()], [["frmFind"], []], "with nothing to save");

// The search.
make();
open();
for (const operation of ["Open", "EOF", "Execute", "Seek", "Value"]) {
    failNext(operation, -2147467259);
    answerInput("b");
    answer("OK");
    click("frmMstmnt.Command10");
    check([titles(), fields()[0], usable()], [["検索", "エラー"], "a", fine], operation + " fails in a search: the small window goes");
}

// A record that went behind the editor's back.
click("frmMstmnt.Command3");
deleteRow(dictionary, 2);
typeText("frmMstmnt.Text3", "x");
answer("はい");
answer("OK");
click("frmMstmnt.Command6");
check([titles(), fields()[2], usable(), stored().length], [["保存確認", "エラー"], "x二", fine, 2], "a change of it fails, and stays in the boxes");
setText("frmMstmnt.Text1", "bb");
answer("はい");
answer("OK");
click("frmMstmnt.Command6");
check([titles(), fields()[0], usable(), stored().length], [["保存確認", "エラー"], "bb", fine, 2], "a renaming too");
answer("はい");
answer("OK");
click("frmMstmnt.Command8");
check([titles(), stored().length], [["削除確認", "エラー"], 2], "a deletion too");
answer("いいえ");
click("frmMstmnt.Command1");
check([titles(), fields()[0]], [["変更確認"], "a"], "the first record can be shown");
click("frmMstmnt.Command9");

// Another dictionary in its place: a key that is in both is found.
open();
makeDictionary(dictionary, [["a", null, 1, "別", null], ["z", null, 1, "末", null]]);
click("frmMstmnt.Command3");
check(fields(), ["z", "", "末", ""], "replaced: the walk goes on in the new one");
click("frmMstmnt.Command9");

// Read-only.
makeReadOnly(dictionary);
open();
click("frmMstmnt.Command4");
check(fields()[0], "z", "a read-only dictionary can be walked");
typeText("frmMstmnt.Text3", "x");
for (const [command, prepare] of [["Command6", () => {}], ["Command6", () => setText("frmMstmnt.Text1", "y")], ["Command8", () => {}]]) {
    prepare();
    const typed = fields();
    answer("はい");
    answer("OK");
    click("frmMstmnt." + command);
    check([titles().slice(-1), fields(), usable()], [["エラー"], typed, fine], "but not changed by " + command);
}
drop();
check(stored(), [["a", "別", 1], ["z", "末", 2]], "nothing was");
