# ./test faults
# Scenarios all over the module, in which one host call after the other fails in every way that it may, and one
# allocation after the other: as it is delivered, and under the sanitizers.
#
# Read in by ./test, whose functions it uses.

set_up "${TEST_PACKAGES[@]}" "${SANITIZER_PACKAGES[@]}"
figures=$root/build/fault-figures
total=""
status=0
for preset in release asan-ubsan; do
    build "$preset" --target faults_test -DVYRCFD_BUILD_TESTS=ON
    : >"$figures"
    # Each group in a process of its own, so that one that is terminated does not end the others.
    (cd "$root" && VYR_FAULTS=all VYR_FAULT_FIGURES=$figures \
        ctest --preset "$preset" -j2 -L '^faults$' --timeout 1800 --output-on-failure --no-tests=error) || status=1
    # "GROUP SCENARIOS INJECTED DEFECTS", one line a test; each group is tested with calls and with allocations.
    line=$(awk '{ group[$1] = $2; injected += $3; defects += $4 }
                END { for (name in group) scenarios += group[name]
                      printf "%d scenarios, %d injected failures, %d defects", scenarios, injected, defects }' "$figures")
    echo "$preset: $line"
    [ "${line##*, }" = "0 defects" ] || status=1
    total+="${total:+; }$preset: $line"
done
[ "$status" -eq 0 ] && word=PASSED || word=FAILED
echo "$word - faults: $total"
exit "$status"
