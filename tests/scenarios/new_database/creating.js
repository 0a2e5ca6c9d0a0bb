// What is made: an empty dictionary that can be opened, several in a row, and paths typed in other ways.
const folder = tempDir();
start();
menu("mnuFileCreate");

function create(path) {
    setText("frmCreateDB.Text1", path);
    answer("OK");
    click("frmCreateDB.Command2");
    const [box] = boxes();
    check(box.title, "新規辞書データベースファイルの作成完了", "«" + path + "» is made");
    check(text("frmCreateDB.Text1"), "", "the box is emptied");
    return box.text.split("」")[0].slice("データベースファイル「".length);
}

for (const name of ["first", "second", "日本語の 辞書", "a.b"]) {
    const path = folder + "/" + name + ".mdb";
    check(create(drivePath(path)), name + ".mdb", "the message names it");
    check(rows(path), [], "it holds no row");
    check(exists(path + "-journal"), false, "nothing stays beside it");
}
check(pointer(), 0, "the pointer is the default one");

// Blanks around a path are no part of the file's name.
check(create("  " + drivePath(folder) + "\\blanks.mdb　 "), "blanks.mdb", "blanks around it");
check(rows(folder + "/blanks.mdb"), [], "the file bears the name without them");

// A path as the host writes it becomes its drive path.
const typed = folder + "/typed.mdb";
check(create(typed), "typed.mdb", "a path of the host");
check(exists(typed), true, "is understood");
let shown = "";
setText("frmCreateDB.Text1", typed);
answer(box => {
    shown = text("frmCreateDB.Text1");
    return "OK";
});
click("frmCreateDB.Command2");
check(shown, drivePath(typed), "and rewritten");
check(boxes().map(box => box.title), ["データベースファイル名の重複"], "before it is checked");

// The new file is a dictionary like every other.
closeForm("frmCreateDB");
check(state("CurrentDicName"), "", "nothing is registered by itself");
exit();
setCatalogue([{name: "新", path: folder + "/first.mdb", selected: true}]);
start();
boxes();
check(state("CurrentDicPath"), drivePath(folder + "/first.mdb"), "it can be registered");
