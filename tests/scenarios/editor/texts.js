// What the boxes hold and hand out: ends of lines, unusual characters, lengths, a megabyte.
const dictionary = tempDir() + "/texts.mdb";
const odd = "a\u00a0b\u3000c\u202fd\te\u2028f\u200b\ufeff😀é ⟨<b>&amp;⟩";
makeDictionary(dictionary, [
    ["lf", null, 1, "一\n二\n", "x\ry\r\nz"],
    ["odd", "ə\u00a0ɑ", 1, odd, odd],
]);
setCatalogue([{name: "文", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
const row = autoID => rows(dictionary).find(candidate => candidate.AutoID === autoID);
const here = () => row(state("CurrentAutoID"));
const save = () => {
    answer("はい");
    click("frmMstmnt.Command6");
    boxes();
};

// Not touched, written back as it was; touched, with CR LF.
check([text("frmMstmnt.Text3"), text("frmMstmnt.Text4")], ["一\r\n二\r\n", "x\r\ny\r\nz"], "every end of a line ends one");
check(state("frmMstmnt.OrigExample"), "x\r\ny\r\nz", "the snapshot is what the box returns");
typeText("frmMstmnt.Text2", "p");
save();
check([here().Description, here().Example, here().Pronunciation], ["一\n二\n", "x\ry\r\nz", "p"], "as it was");
typeText("frmMstmnt.Text3", "0");
save();
check([here().Description, here().Example], ["0一\r\n二\r\n", "x\ry\r\nz"], "only what was touched");
press("frmMstmnt.Text3", "Enter");
save();
check(here().Description, "0\r\n一\r\n二\r\n", "Enter makes a line");
setText("frmMstmnt.Text1", "crlf");
save();
check([here().AutoID, here().Description, here().Example], [3, "0\r\n一\r\n二\r\n", "x\ry\r\nz"], "a renaming keeps what was not touched");

click("frmMstmnt.Command4");
press("frmMstmnt.Text2", "End");
typeText("frmMstmnt.Text2", "x");
save();
check([here().Description, here().Example], [odd, odd], "unusual characters, not touched");
typeText("frmMstmnt.Text3", "x");
save();
check([here().Description, here().Pronunciation], ["x" + odd, "ə\u00a0ɑx"], "and touched");

// Lengths in code units; no character is cut in half.
typeText("frmMstmnt.Text1", "w".repeat(5));
setText("frmMstmnt.Text1", "w".repeat(300));
check(text("frmMstmnt.Text1").length, 255, "a word of 255");
typeText("frmMstmnt.Text1", "x");
check(text("frmMstmnt.Text1"), "w".repeat(255), "takes no more");
setText("frmMstmnt.Text2", "p".repeat(100));
check(text("frmMstmnt.Text2"), "p".repeat(64), "a pronunciation of 64");
setText("frmMstmnt.Text2", "p".repeat(63) + "😀");
check(text("frmMstmnt.Text2"), "p".repeat(63), "half a character is none");
setText("frmMstmnt.Text2", "p".repeat(62) + "😀");
check(text("frmMstmnt.Text2"), "p".repeat(62) + "😀", "a whole one is");
save();
check([here().Word, here().Pronunciation], ["w".repeat(255), "p".repeat(62) + "😀"], "stored");
answerInput("w".repeat(255));
click("frmMstmnt.Command1");
click("frmMstmnt.Command10");
check(state("CurrentWord").length, 255, "and found");
answer("はい");
click("frmMstmnt.Command8");
boxes();
click("frmMstmnt.Command5");
setText("frmMstmnt.Text1", "　 it's [100%] _ ");
setText("frmMstmnt.Text3", "%");
save();
check([here().Word, text("frmMstmnt.Text1")], ["it's [100%] _", "it's [100%] _"], "apostrophe, brackets, signs");

// A megabyte, pasted and typed into.
const line = "訳語 meaning\u00a0😀 ";
const many = (line + "\r\n").repeat(80000);
setClipboard(many);
setText("frmMstmnt.Text4", "");
press("frmMstmnt.Text4", "Ctrl+V");
press("frmMstmnt.Text4", "Ctrl+Home");
typeText("frmMstmnt.Text4", "x");
save();
check([here().Example.length, here().Example === "x" + many.slice(0)], [many.length + 1, true], "a megabyte in lines");
const one = line.trim().repeat(80000);
setClipboard(one);
setText("frmMstmnt.Text3", "");
press("frmMstmnt.Text3", "Ctrl+V");
save();
check([here().Description.length, here().Description === one], [one.length, true], "a megabyte in one line");
const before = Date.now();
click("frmMstmnt.Command4");
check(text("frmMstmnt.Text3") === here().Description, true, "and shown again");
note("shown in " + (Date.now() - before) + " ms");
