// expects: not ok 1 - failed_check.js: different
// expects: # .a[1]: got      2
// expects: #        expected 3
// expects: # .b: got      (absent)
// expects: not ok 2 - failed_check.js: does not hold
// expects: not ok 3 - failed_check.js: of another type
// expects: 1 passed, 3 failed
check({a: [1, 2]}, {a: [1, 3], b: null}, "different");
ok("", "does not hold");
check("1", 1, "of another type");
