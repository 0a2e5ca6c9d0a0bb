// expects: takes longer than 5 s, at last in ok (hanging.js:3)
// expects: 1 passed, 2 failed
ok(true, "then it hangs");
while (true) {}
