// More records than 16 bits count: the overflow is told, and the file is left alone.
const dictionary = tempDir() + "/words.mdb";
makeDictionary(dictionary, [["run", null, 1, "走る", null]]);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
const book = appFile("WordBook.dat");
writeBytes(book, "a".repeat(255 * 32768));
start();
answer("OK");
menu("mnuHistory");
check(boxes().map(box => [box.title, box.text, box.icon]),
    [["エラー", "エラー番号  6 Wordmere でエラーが発生しました。\rオーバーフローしました。", 16]], "told");
check([isOpen("frmHistory"), enabled("frmFind")], [false, true], "the dialog does not come");
check(size(book), 255 * 32768, "the file is whole");
writeBytes(book, "a".repeat(255 * 32767));
menu("mnuHistory");
check(items("frmHistory.List1").length, 300, "one record less is read up to the limit");
click("frmHistory.Command3");
