// expects: ok 1 - script_error.js: before
// expects: not ok 2 - script_error.js: JavaScript error: ReferenceError: nowhere is not defined
// expects: # line 6
// expects: 1 passed, 1 failed
ok(true, "before");
nowhere();
