// A script link in a frame of an entry, opened while a page of the web is on its way, reaches nothing either.
const folder = tempDir() + "/../../";
const hasWeb = exists(folder + "site");
const site = hasWeb ? readText(folder + "site") : "http://127.0.0.1:9/";
const datagrams = hasWeb ? readText(folder + "datagrams") : "9";
const arrived = () => (hasWeb ? readText(folder + "requests") : "").split("\n").filter(line => line !== "");
const script = "document.body.textContent=`hacked`;let p=new RTCPeerConnection({iceServers:[{urls:`stun:127.0.0.1:" +
    datagrams + "`}]});p.createDataChannel(`x`);p.createOffer().then(o=>p.setLocalDescription(o))";
const trap = "<iframe srcdoc=\"<a href='javascript:" + script + "'>quiet</a>\"></iframe>";
const dictionary = tempDir() + "/hostile.mdb";
makeDictionary(dictionary, [["trap", null, 1, "ENTRY " + trap, null]]);
setCatalogue([{name: "罠", path: dictionary, selected: true}]);
start();

// An entry beside the web: found by a search mode, which stays usable there.
setText("frmFind.txtFind", "ENTRY");
menu("mnuSrchWebSite");
menu("mnuTxtInMeaning");
mouseDown("frmFind.Picture0");
settle();
const visit = () => {
    ok(paneText().includes("quiet"), "the entry is shown");
    setText("frmFind.Combo2", site + "slow");
    press("frmFind.Combo2", "Enter");
    // Some seconds.
    paneText();
    focusOn("frmFind.WebBrowser1");
    press("frmFind.WebBrowser1", "Tab");
    press("frmFind.WebBrowser1", "Enter");
    ok(!paneText().includes("hacked"), "its script does not run while a page comes");
    check(arrived().filter(line => line === "UDP"), [], "and nothing leaves");
};
if (hasWeb)
    visit();
else
    note("no web that could come");
