// What others do to the files while a compaction goes on.
const folder = tempDir();
const dictionary = folder + "/words.mdb";
const many = [];
for (let i = 0; i < 60000; ++i)
    many.push(["word " + i, null, 2, "意味 " + i + "あ".repeat(700), null]);
makeDictionary(dictionary, many);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
const temporary = tempFolder() + "TemporaryDBBackupFile.mdb";
const compact = () => {
    menu("mnuCompress");
    choose("frmDBCompress.Combo1", 0);
    click("frmDBCompress.Check1");
    answer("OK");
    answer("OK");
    click("frmDBCompress.Command2");
    const told = boxes().map(box => box.title).slice(1);
    closeForm("frmDBCompress");
    return told;
};

// Another program of the same user deletes the temporary file and makes its own.
let isSwapped = false;
const swap = () => {
    if (!exists(temporary) || size(temporary) < 1000000) {
        atYield(1, swap);
        return;
    }
    remove(temporary);
    makeDictionary(temporary, [["foreign", null, 1, "よその辞書", null]]);
    isSwapped = true;
};
atYield(2, swap);
check(compact(), ["エラー"], "another file under the temporary name is no copy");
check([isSwapped, rows(dictionary).length], [true, 60000], "the dictionary is untouched");

// A dictionary that lies where the temporary file goes.
makeDictionary(temporary, [["ice", null, 1, "氷", null]]);
exit();
setCatalogue([{name: "英和", path: dictionary, selected: true}, {name: "氷", path: temporary}]);
start();
check(compact(), ["エラー"], "a registered dictionary does not go for it");
check(rows(temporary).map(row => row.Word), ["ice"], "it is still there");
check(rows(dictionary).length, 60000, "and so is the other");
remove(temporary);
check(compact(), ["最適化完了"], "without it the work is done");
