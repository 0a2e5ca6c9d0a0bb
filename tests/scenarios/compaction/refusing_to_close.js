// The window frame is refused while the work goes on; the main window's too.
const folder = tempDir();
const dictionary = folder + "/words.mdb";
const many = [];
for (let i = 0; i < 60000; ++i)
    many.push(["word " + (i * 7919 % 60000), null, 2, "意味 " + i + "あ".repeat(700), null]);
makeDictionary(dictionary, many);
setCatalogue([{name: "英和", path: dictionary, selected: true}]);
start();
menu("mnuCompress");
choose("frmDBCompress.Combo1", 0);
let during = null;
atYield(2, () => {
    during = [state("frmDBCompress.IsOptimizing"), pointer()];
    answer("OK");
    closeForm("frmDBCompress");
    during.push(isOpen("frmDBCompress"), boxes().map(box => [box.title, box.text, box.icon, box.beep, box.buttons]));
    press("frmDBCompress", "Esc");
    during.push(isOpen("frmDBCompress"));
});
answer("OK");
click("frmDBCompress.Command2");
check(during, [1, 11, true, [["キャンセル不可", "[×]ボタンをクリックして処理をキャンセルできません！\r\n\r\n" +
    "最適化処理が終了するまでしばらくお待ちください。", 48, 0, ["OK"]]], true], "refused, and nothing else closes it");
check(boxes().map(box => box.title), ["最適化完了"], "the work goes on to its end");
check(rows(dictionary).length, 60000, "with every row");
closeForm("frmDBCompress");
check([isOpen("frmDBCompress"), enabled("frmFind")], [false, true], "then the frame closes");
