// expects: not ok 1 - default_handling.js: a failure went to the default handling: エラー番号  57
failNext("read", 57);
start();
