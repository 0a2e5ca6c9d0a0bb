// Checks, values and the plainest of the files: nothing here starts the program.
check(1, 1, "equal numbers");
check([1, "a", null, undefined, true], [1, "a", null, undefined, true], "equal arrays");
check({a: {b: [1, {c: "x"}]}}, {a: {b: [1, {c: "x"}]}}, "nested objects");
check({b: 2, a: 1}, {a: 1, b: 2}, "the order of members does not matter");
check(NaN, NaN, "not a number equals itself");
ok([], "an empty array counts as true");
note("a remark");
note({a: [1, "あ"]});

// A script may have variables of the names of functions.
(function () {
    const rows = 3;
    check(rows, 3, "a function's name as a local variable");
})();

let message = "";
try {
    text("frmNowhere.Text1");
} catch (error) {
    message = error.message;
}
check(message, "the form frmNowhere is not loaded", "a mistake reaches the script as an exception");

try {
    message = "";
    failNext("Open", "no number");
} catch (error) {
    message = error.message;
}
ok(message.indexOf("argument 2 must be a number") >= 0, "wrong arguments are refused: " + message);
