# ./test reports
# The table of every report that the module can make: each row provoked, and each text of the sources looked up in it.
#
# Read in by ./test, whose functions it uses.

set_up "${TEST_PACKAGES[@]}"
build release --target reports_test -DVYRCFD_BUILD_TESTS=ON
program=$root/build/release/bin/reports_test
status=0
(cd "$root" && "$program" --gtest_brief=1) || status=1
# Its last line has the figures.
table=$(python3 -B "$root/tests/reports/collect.py" check "$root/VYRCfdModel" "$program") || status=1
printf '%s\n' "$table"
[ "$status" -eq 0 ] && word=PASSED || word=FAILED
echo "$word - reports: ${table##*$'\n'}"
exit "$status"
