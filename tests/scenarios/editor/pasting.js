// A headword pasted with its line end is a line without one; a stored one that nobody touches stays as it is.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["bee", null, 1, "蜂", null], ["two\nlines", "p\r\nq", 1, "二行", null]]);
setCatalogue([{name: "語", path: dictionary, selected: true}]);
start();
menu("mnuOpen");
click("frmMstmnt.Command5");
const paste = (box, value) => {
    setClipboard(value);
    press("frmMstmnt." + box, "Ctrl+V");
};
paste("Text1", "cat\r\n");
paste("Text2", "k\næt\n");
setText("frmMstmnt.Text3", "猫");
answer("はい");
click("frmMstmnt.Command6");
check(rows(dictionary).map(row => [row.Word, row.Pronunciation])[1], ["cat", "k æt"], "lines become one");
boxes();
answerInput("cat\r\n");
statements();
click("frmMstmnt.Command10");
check([statements().length, text("frmMstmnt.Text3")], [1, "猫"], "and the exact word is found, pasted into the search as well");

click("frmMstmnt.Command4");
setText("frmMstmnt.Text3", "二行です");
answer("はい");
click("frmMstmnt.Command6");
check(rows(dictionary).map(row => [row.Word, row.Pronunciation, row.Description])[2], ["two\nlines", "p\r\nq", "二行です"],
      "what is stored in lines stays so");
