# ./test threads
# Eight models on eight threads, each applying configurations, switching Choices and saving, under the thread sanitizer.
#
# Read in by ./test, whose functions it uses.

set_up "${TEST_PACKAGES[@]}" "${SANITIZER_PACKAGES[@]}"
# The sanitizer has nothing to see in the other tests.
build tsan --target threads_test -DVYRCFD_BUILD_TESTS=ON
results=$root/build/tsan/test-results.xml
rm -f "$results"
status=0
(cd "$root" && ctest --preset tsan -L '^threads$' --output-on-failure --output-junit "$results") || status=1
read -r _ passed failed _ < <(python3 -B "$root/tests/house/count_tests.py" tsan "$results") || status=1
[ "${failed:-1}" -eq 0 ] || status=1
[ "$status" -eq 0 ] && word=PASSED || word=FAILED
echo "$word - threads: ${passed:-0} passed, ${failed:-1} failed, no data race reported by a passed test"
exit "$status"
