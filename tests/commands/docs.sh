# ./test docs
# The documentation: the sessions of the manual and of the README, the manual's programs, the chapter of messages, the
# HTML with its links and pictures, and the reference without warnings.
#
# Read in by ./test, whose functions it uses.

set_up "${TEST_PACKAGES[@]}" "${DOCS_PACKAGES[@]}"
build release --target vyrcfd docs_examples -DVYRCFD_BUILD_TESTS=ON
results=$root/build/release/test-results.xml
log=$root/build/docs.log
figures=""
failures=0

# part NAME COMMAND...: runs it in the repository; its last line has its figures.
part() {
    say "--- $1"
    if ! (cd "$root" && "${@:2}") >"$log" 2>&1; then
        failures=$((failures + 1))
        say "$1: failed"
    fi
    cat "$log" >&2
    figures+="${figures:+; }$1: $(tail -n 1 "$log")"
}

# The programs and the chapter of messages, as ctest runs them.
programs() {
    local status=0 passed failed
    rm -f "$results"
    ctest --preset release -L '^docs$' -E '^docs\.sessions$' --output-on-failure --output-junit "$results" \
        --no-tests=error || status=1
    read -r _ passed failed _ < <(python3 -B tests/house/count_tests.py release "$results") || status=1
    echo "${passed:-0} passed, ${failed:-1} failed"
    # A program that its document no longer names would pass in silence.
    [ "$status" -eq 0 ] && [ "${passed:-0}" -ge 3 ]
}

part sessions python3 -B tests/docs/sessions.py build/release/bin/vyrcfd README.md docs/manual/*.md
part "programs and messages" programs
part reference docs/build reference
part html docs/build html
[ "$failures" -eq 0 ] && word=PASSED || word=FAILED
echo "$word - docs: $figures"
exit "$((failures != 0))"
