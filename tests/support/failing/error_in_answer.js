// expects: not ok 1 - error_in_answer.js: JavaScript error in the answer to a box: Error: inside
remove(appFile("Help.HLP"));
answer(() => { throw new Error("inside"); });
start();
