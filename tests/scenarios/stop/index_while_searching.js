// A failure that the default handling tells while a list search has the index built.
const large = tempDir() + "/large.mdb";
makeDictionary(large, Array.from({length: 120000}, (_, i) => ["w" + String(i * 7919 % 120000).padStart(6, "0"), null, 1, "訳", null]));
setCatalogue([{name: "大", path: large, selected: true}]);
start();
menu("mnuPreSrch");
const versionAt = 63, bytes = readBytes(large);
writeBytes(large, bytes.slice(0, versionAt) + "\0" + bytes.slice(versionAt + 1));
setText("frmFind.txtFind", "w00001");
atYield(1, () => { answer("OK"); menu("mnuOpen"); });
press("frmFind.txtFind", "Enter");
boxes();
check([pointer(), visible("frmFind.Picture0"), visible("frmFind.Picture00"), enabled("frmFind")], [0, true, false, true], "the window is ready");
