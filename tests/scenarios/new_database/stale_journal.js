// A journal that a killed write has left beside a dictionary that was deleted since: it belongs to no new one.
// One page, filled with A5, of a file of 22; as the engine writes it.
const number = value => [24, 16, 8, 0].map(shift => String.fromCharCode(value >> shift & 255)).join("");
const pageSize = 16384;
let sum = 0;
for (let at = pageSize - 200; at > 0; at -= 200)
    sum += 0xa5;
const journal = ("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7" + number(1) + number(0) + number(22) + number(512) + number(pageSize))
    .padEnd(512, "\x00") + number(1) + "\xa5".repeat(pageSize) + number(sum);

const target = tempDir() + "/words.mdb";
writeBytes(target + "-journal", journal);
start();
menu("mnuFileCreate");
setText("frmCreateDB.Text1", drivePath(target));
answer("OK");
click("frmCreateDB.Command2");
check(boxes().map(box => box.title), ["新規辞書データベースファイルの作成完了"], "the dictionary is made");
let found;
try {
    found = rows(target);
} catch (error) {
    found = error.message;
}
check(found, [], "and is an empty dictionary");
closeForm("frmCreateDB");

// A conversion into a new file.
if (exists(target)) remove(target);
writeBytes(target + "-journal", journal);
const source = tempDir() + "/words.txt";
writeText(source, "■apple : 林檎\r\n■pear : 梨\r\n");
menu("mnuCnv");
choose("frmDataConv.ConvDicLst", 0);
answerFile(source);
click("frmDataConv.sourceButton");
answerFile(target);
click("frmDataConv.targetButton");
boxes();
for (let i = 0; i < 4; ++i)
    answer(box => box.buttons[0]);
click("frmDataConv.StartButton");
note(boxes().map(box => box.title + "|" + box.text));
let words;
try {
    words = rows(target).map(row => row.Word);
} catch (error) {
    words = error.message;
}
check(words, ["apple", "pear"], "converted into a file of that name");
