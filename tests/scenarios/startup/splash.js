// The splash stands for three seconds before the main window comes.
const begun = Date.now();
check(start({splash: true}), true, "the program starts");
const seconds = (Date.now() - begun) / 1000;
ok(seconds >= 3, "the splash stood for " + seconds + " s");
ok(seconds < 10, "and not much longer");
check(openForms(), ["frmFind"], "then it goes");
check(pointer(), 0, "with its hourglass");
exit();

const again = Date.now();
start();
ok(Date.now() - again < 3000, "without a splash nothing is waited for");
