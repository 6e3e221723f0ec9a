# ./test tool
# All about vyrcfd: its own tests and those of the schema, the sessions and messages of the manual, the manual page, the
# completion of bash, zsh and fish in these shells, what happens around it - interrupts, full disks, broken pipes - and
# what checking a large installation costs.
#
# Read in by ./test, whose functions it uses.

set_up "${TEST_PACKAGES[@]}" "${SHELL_PACKAGES[@]}"
build release --target tool_test vyrcfd_interface docs_examples -DVYRCFD_BUILD_TESTS=ON
program=$root/build/release/bin/vyrcfd
results=$root/build/release/test-results.xml
rm -f "$results"
failures=0

# part NAME COMMAND...: runs it in the repository and tells how it went.
part() {
    say "--- $1"
    (cd "$root" && "${@:2}") >&2 || { say "$1: failed"; failures=$((failures + 1)); }
}

part tests ctest --preset release -j2 -L '^(tool|schema|docs)$' --output-on-failure --output-junit "$results" --no-tests=error
read -r _ passed failed _ < <(python3 -B "$root/tests/house/count_tests.py" release "$results") || true
part interface python3 -B tests/tool/interface.py "$program"
part robustness python3 -B tests/tool/robustness.py "$program"
part cost python3 -B tests/tool/check_cost.py --within 2 "$program"
[ "$failures" -eq 0 ] && word=PASSED || word=FAILED
echo "$word - tool: ${passed:-0} tests passed, ${failed:-1} failed; of 4 parts $failures failed"
exit "$((failures != 0))"
