// What the pane makes of the page: characters of all kinds, live markup, and no script.
const dictionary = tempDir() + "/shown.mdb";
makeDictionary(dictionary, [
    ["café", "kæˈfeɪ", 1, "喫茶店 ①㈱ ～−", "le café 😀"],
    ["markup", null, 1, "<b>太い</b><br>次の行", null],
    ["script", null, 1, "前<script>document.write('破れ')</script>後", null],
]);
setCatalogue([{name: "表示", path: dictionary, selected: true}]);
start();

const shown = typed => {
    setText("frmFind.txtFind", typed);
    settle();
    return paneText();
};
const first = shown("café");
for (const part of ["café", "[kæˈfeɪ]", "喫茶店 ①㈱ ～", "【用例】", "le café 😀"])
    ok(first.indexOf(part) >= 0, part + " is shown");
ok(first.indexOf("&#") < 0, "no reference is seen as such");
const second = shown("markup");
ok(second.indexOf("太い") >= 0, "markup is live");
ok(second.indexOf("<b>") < 0, "its signs are not seen");
const third = shown("script");
ok(third.indexOf("破れ") < 0, "a record's script does not run");
ok(third.indexOf("前") >= 0 && third.indexOf("後") >= 0, "its text stands");

// Many pages in a row: the last one stays.
typeText("frmFind.txtFind", "");
for (const typed of ["c", "m", "s", "m", "c", "s", "café"])
    setText("frmFind.txtFind", typed);
settle();
check(paneText(), first, "the page of the last change");
press("frmFind.txtFind", "Esc");
settle();
check(paneText().trim(), "", "Esc blanks it");
