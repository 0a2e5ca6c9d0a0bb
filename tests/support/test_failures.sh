#!/bin/sh
# Runs the scenarios that must fail, and looks in their output for each text that their heads expect.
# Usage: test_failures.sh RUNNER [OPTIONS OF THE RUNNER]
folder=$(dirname "$0")/failing
export WORDMERE_SCENARIO_TIMEOUT=5
missed=0
for file in "$folder"/*.js; do
    output=$("$@" "$file" 2>/dev/null)
    if [ $? -ne 1 ]; then
        echo "not ok - $file: the runner does not end with 1"
        missed=1
    fi
    sed -n 's|^// expects: ||p' "$file" > "${TMPDIR:-/tmp}/expected.$$"
    while IFS= read -r line; do
        if ! printf '%s\n' "$output" | grep -qF -- "$line"; then
            echo "not ok - $file: nothing said \"$line\""
            missed=1
        fi
    done < "${TMPDIR:-/tmp}/expected.$$"
    rm -f "${TMPDIR:-/tmp}/expected.$$"
done
[ $missed -eq 0 ] && echo "ok - every failure is told"
exit $missed
