// Markup in a record of a dictionary reaches nothing, neither network nor file, before a visit to the web and right
// after it. A local server counts what arrives.
const folder = tempDir() + "/../../";
const hasWeb = exists(folder + "site");
const site = hasWeb ? readText(folder + "site") : "http://127.0.0.1:9/";
const datagrams = hasWeb ? readText(folder + "datagrams") : "9";
const arrived = () => (hasWeb ? readText(folder + "requests") : "").split("\n").filter(line => line !== "");
const secret = tempDir() + "/secret.html";
writeText(secret, "<p>secret</p>");
const file = "file://" + secret;
const evil = site + "evil/";
const script = "document.title='hacked';document.body.innerHTML='hacked';fetch('" + evil + "fetch');" +
    "new Image().src='" + evil + "img';navigator.sendBeacon('" + evil + "beacon');" +
    "let p=new RTCPeerConnection({iceServers:[{urls:'stun:127.0.0.1:" + datagrams + "'}]});p.createDataChannel('x');" +
    "p.createOffer().then(o=>p.setLocalDescription(o));location.href='" + evil + "location'";
const traps = [
    "<script>" + script + "</script>",
    "<img src=x onerror=\"" + script + "\">",
    "<svg onload=\"" + script + "\"></svg>",
    "<body onload=\"" + script + "\">",
    "<img src='" + evil + "i.png'><img srcset='" + evil + "s.png 1x'><input type=image src='" + evil + "n.png'>",
    "<img src='" + file + "'><iframe src='" + file + "'></iframe><object data='" + file + "'></object>",
    "<link rel=stylesheet href='" + evil + "a.css'><link rel=preload as=image href='" + evil + "b'>" +
        "<link rel=prefetch href='" + evil + "c'><link rel=preconnect href='" + evil + "'><link rel=icon href='" + evil + "d'>",
    "<style>@import '" + evil + "e.css';@font-face{font-family:x;src:url(" + evil + "f)}body{font-family:x;" +
        "background:url(" + evil + "g)}</style>",
    "<div style='background:url(" + evil + "h);width:9px;height:9px'></div>",
    "<iframe src='" + evil + "frame'></iframe><iframe srcdoc=\"<img src='" + evil + "j'>\"></iframe>",
    "<object data='" + evil + "k'></object><embed src='" + evil + "l'>",
    "<video src='" + evil + "m' poster='" + evil + "o' autoplay></video><audio src='" + evil + "p' autoplay></audio>",
    "<meta http-equiv=refresh content='0;url=" + evil + "q'>",
    "<meta http-equiv=refresh content='0;url=" + file + "'>",
    "<base href='" + evil + "'><img src=r>",
    "<form action='" + evil + "form'><input name=a autofocus><button autofocus>x</button></form>",
    "<a href='" + evil + "link' autofocus ping='" + evil + "ping'>x</a>",
    "<a href='" + evil + "blank' target=_blank>x</a>",
];
const dictionary = tempDir() + "/hostile.mdb";
makeDictionary(dictionary, traps.map((trap, i) => ["trap" + String(i).padStart(2, "0"), null, 1, "ENTRY " + trap, null]));
setCatalogue([{name: "罠", path: dictionary, selected: true}]);
start();

const show = (word, what) => {
    setText("frmFind.txtFind", word);
    settle();
    // The keys open what a page has put under them.
    focusOn("frmFind.WebBrowser1");
    press("frmFind.WebBrowser1", "Tab");
    press("frmFind.WebBrowser1", "Enter");
    settle();
    ok(page().includes("ENTRY"), what + ": on the page");
    ok(!paneText().includes("hacked"), what + ": its script does not run");
    ok(!paneText().includes("secret"), what + ": it shows no other file");
    check(paneAddress(), drivePath(appFile("home.html")), what + ": it does not go anywhere");
};

// Each as the first of its page.
traps.forEach((_, i) => show("trap" + String(i).padStart(2, "0"), "trap " + i));
check(arrived(), [], "nothing has arrived");

// The entry that the pane comes back to, from a web page with script.
const comeBackFromTheWeb = () => {
    menu("mnuSrchWebSite");
    const go = address => {
        setText("frmFind.Combo2", address);
        press("frmFind.Combo2", "Enter");
        settle();
    };
    const settled = () => { for (let i = 0; i < 15; ++i) settle(); };
    const home = drivePath(appFile("home.html"));
    traps.forEach((trap, i) => {
        writeText(appFile("home.html"), "<html><body>ENTRY " + trap + "</body></html>");
        go(site + "script");
        check(paneText().trim(), "scripted", "web pages keep their script: " + i);
        go(home);
        settled();
        ok(!paneText().includes("hacked") && !paneText().includes("secret"), "after the web: trap " + i);
        check(paneAddress(), home, "it stays: trap " + i);
        go(site + "script");
        menu("mnuGoBack");
        settled();
        ok(!paneText().includes("hacked") && !paneText().includes("secret"), "by going back: trap " + i);
        check(paneAddress(), home, "and stays there: trap " + i);
    });
    check(arrived().filter(line => line !== "GET /script" && line !== "GET /favicon.ico"), [],
        "beside the visits nothing has arrived");
    check(arrived().filter(line => line === "GET /script").length, 2 * traps.length, "the visits have been counted");
    // What is counted: a page of the web that does the same reaches both.
    go(site + "udp");
    for (let i = 0; i < 100 && !arrived().includes("UDP"); ++i)
        settle();
    ok(arrived().includes("UDP"), "a datagram would have been seen");
};
if (hasWeb)
    comeBackFromTheWeb();
else
    note("no web to come back from");
check(boxes(), [], "no box came up");
