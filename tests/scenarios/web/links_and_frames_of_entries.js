// Schemes, forms, refreshes and frames of an entry lead nowhere, by themselves or by the keys.
const traps = [
    "<a href='mailto:a@b.invalid'>x</a>", "<a href='tel:123'>x</a>", "<a href='chrome://gpu'>x</a>",
    "<a href='view-source:http://127.0.0.1:9/'>x</a>", "<a href='data:text/html,hacked'>x</a>",
    "<a href='data:text/plain,hacked' download=evil.txt>x</a>", "<a href='#there'>x</a><p id=there>there",
    "<a href='home.html'>x</a>", "<a href='about:srcdoc'>x</a>", "<a href='blob:null/1'>x</a>",
    "<form action='home.html'><input name=q><button>x</button></form>", "<form method=post><button>x</button></form>",
    "<form method=dialog><button>x</button></form>",
    "<button formaction='http://127.0.0.1:9/' form=f>x</button><form id=f></form>",
    "<meta http-equiv=refresh content='0'>", "<meta http-equiv=refresh content='0;url=home.html'>",
    "<meta http-equiv=refresh content='0;url=data:text/html,hacked'>", "<meta http-equiv=refresh content='0;url=chrome://gpu'>",
    "<meta http-equiv=refresh content=\"0;url=javascript:document.body.textContent='hacked'\">",
    "<iframe src='data:text/html,hacked'></iframe>", "<iframe src='chrome://version'></iframe>",
    "<iframe srcdoc=\"<script>document.body.textContent='hacked';parent.document.title='hacked'</script>\"></iframe>",
    "<iframe srcdoc=\"<a href='javascript:document.body.textContent=`hacked`'>x</a>\"></iframe>",
    "<iframe name=inner></iframe><a href='data:text/html,hacked' target=inner>x</a>",
    "<object data='javascript:1'></object><embed src=\"javascript:document.body.textContent='hacked'\">",
    "<svg><a href='javascript:document.body.textContent=`hacked`'><text y=20>x</text></a></svg>",
    "<map name=m><area href='http://127.0.0.1:9/' coords='0,0,99,99'></map><img usemap='#m' width=99 height=99>",
];
const dictionary = tempDir() + "/hostile.mdb";
makeDictionary(dictionary, traps.map((trap, i) => ["trap" + String(i).padStart(2, "0"), null, 1, "ENTRY " + trap, null]));
setCatalogue([{name: "罠", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "05001050005001503000\r\n");
start();

traps.forEach((trap, i) => {
    setText("frmFind.txtFind", "trap" + String(i).padStart(2, "0"));
    settle();
    focusOn("frmFind.WebBrowser1");
    for (const key of ["Tab", "Enter", "Space"]) {
        press("frmFind.WebBrowser1", key);
        for (let turn = 0; turn < 4; ++turn)
            settle();
    }
    check(paneAddress(), drivePath(appFile("home.html")), trap + ": it stays");
    ok(paneText().includes("ENTRY") && !paneText().includes("hacked"), trap + ": and shows what it is");
    check([caption("frmFind"), openForms()], ["Wordmere", ["frmFind"]], trap + ": in its window");
});
check(boxes(), [], "no box came up");
